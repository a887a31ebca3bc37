#include "persistence/csv_import.h"

#include <algorithm>
#include <array>

#include "model/code_tables.h"
#include "model/editing.h"
#include "persistence/csv_cells.h"
#include "persistence/csv_format.h"
#include "persistence/csv_table.h"
#include "persistence/file_access.h"
#include "persistence/text_encoding.h"

namespace {

constexpr int kSettingKeyCount = kSettingCount + 1;  // and freqstep
constexpr int kFreqstepIndex = kSettingCount;

bool same(const QString& cell, const QString& name) {
    return cell.trimmed().compare(name, Qt::CaseInsensitive) == 0;
}

// A spreadsheet pads every row with empty fields to its widest row: they are not counted.
QStringList fieldsOf(const CsvRow& row, int expected) {
    QStringList fields = row.fields;
    while (fields.size() > expected && fields.last().trimmed().isEmpty()) fields.removeLast();
    return fields;
}

struct SettingsSection {
    RadioSettings values;
    QString freqstep;
    std::array<bool, kSettingKeyCount> read{};  // the key's value was good
};

class Importer {
public:
    Importer(const Codeplug& base, const QString& text) : base_(base), rows_(parseCsv(text)) {}

    CsvImport run() {
        for (const CsvRow& row : rows_) {
            if (row.unterminatedQuote) fault(row, 0, QString(), CellFaultKind::UnclosedQuote);
        }
        const auto first = std::find_if(rows_.begin(), rows_.end(),
                                        [](const CsvRow& row) { return !row.isBlank(); });
        if (first == rows_.end()) {
            faultAt(1, 0, QString(), CellFaultKind::HeaderName,
                    {csv_format::channelHeader().join(QLatin1Char(','))});
            return finish();
        }
        checkHeader(*first, csv_format::channelHeader());
        const auto settingsHeader = std::find_if(first + 1, rows_.end(), [](const CsvRow& row) {
            return same(row.fields.first(), QLatin1String(csv_format::kSettingColumn));
        });
        const int endRow = settingsHeader == rows_.end() ? rowAfterLast() : settingsHeader->number;
        if (settingsHeader == rows_.end()) {
            faultAt(endRow, 0, QString(), CellFaultKind::SettingsMissing);
        } else {
            checkHeader(*settingsHeader, csv_format::settingHeader());
            readSettings(*settingsHeader, settingsHeader + 1);
        }
        readChannels(first + 1, settingsHeader, endRow);
        return finish();
    }

private:
    using Rows = std::vector<CsvRow>::const_iterator;

    void fault(const CsvRow& row, int column, const QString& name, CellFaultKind kind,
               QStringList args = {}) {
        faultAt(row.number, column, name, kind, std::move(args));
    }
    void faultAt(int row, int column, const QString& name, CellFaultKind kind,
                 QStringList args = {}) {
        faults_.push_back(CellFault{row, column, name, kind, std::move(args)});
    }

    int rowAfterLast() const { return rows_.empty() ? 1 : rows_.back().number + 1; }

    bool checkLength(const CsvRow& row, const QStringList& fields, int expected) {
        if (fields.size() == expected) return true;
        fault(row, 0, QString(), CellFaultKind::RowLength,
              {QString::number(fields.size()), QString::number(expected)});
        return false;
    }

    void checkHeader(const CsvRow& row, const QStringList& names) {
        const QStringList fields = fieldsOf(row, static_cast<int>(names.size()));
        if (!checkLength(row, fields, static_cast<int>(names.size()))) return;
        for (int column = 0; column < names.size(); ++column) {
            if (!same(fields[column], names[column])) {
                fault(row, column + 1, names[column], CellFaultKind::HeaderName, {names[column]});
            }
        }
    }

    void readSettings(const CsvRow& header, Rows from) {
        const QStringList keys = csv_format::settingKeys();
        const QString keyColumn = QLatin1String(csv_format::kSettingColumn);
        const QString valueColumn = QLatin1String(csv_format::kValueColumn);
        std::array<bool, kSettingKeyCount> seen{};
        for (Rows row = from; row != rows_.end(); ++row) {
            if (row->isBlank()) continue;
            const QStringList fields = fieldsOf(*row, 2);
            if (!checkLength(*row, fields, 2)) continue;
            const QString key = fields[0].trimmed();
            const auto found = std::find_if(keys.begin(), keys.end(), [&key](const QString& k) {
                return key.compare(k, Qt::CaseInsensitive) == 0;
            });
            const int index = static_cast<int>(found - keys.begin());
            if (found == keys.end()) {
                fault(*row, 1, keyColumn, CellFaultKind::SettingUnknown, {key});
                continue;
            }
            if (seen[index]) {
                fault(*row, 1, keyColumn, CellFaultKind::SettingRepeated, {keys[index]});
                continue;
            }
            seen[index] = true;
            const QString value = fields[1].trimmed();
            if (index == kFreqstepIndex) {
                settings_.read[index] = isWholeNumberText(value);
                if (settings_.read[index])
                    settings_.freqstep = value;
                else
                    fault(*row, 2, valueColumn, CellFaultKind::NotAWholeNumber, {value});
                continue;
            }
            const SettingKey setting = kAllSettings[index];
            if (const std::optional<qint16> chosen = settingValueOf(setting, value)) {
                settings_.values[setting] = *chosen;
                settings_.read[index] = true;
            } else {
                fault(*row, 2, valueColumn, CellFaultKind::SettingValue,
                      {value, settingOptionsText(setting)});
            }
        }
        for (int index = 0; index < kSettingKeyCount; ++index) {
            if (!seen[index])
                fault(header, 0, QString(), CellFaultKind::SettingMissing, {keys[index]});
        }
    }

    ChannelRules channelRules() const {
        ChannelRules rules;
        rules.language = base_.language;
        const auto known = [this](SettingKey key) { return settings_.read[static_cast<int>(key)]; };
        if (known(SettingKey::freqband)) {
            rules.band = BandLimits::forBand(settings_.values[SettingKey::freqband]);
        }
        if (known(SettingKey::normalmode)) {
            rules.codeTable =
                buildCodeTable(settings_.values[SettingKey::normalmode], base_.language);
        }
        return rules;
    }

    void readChannels(Rows from, Rows to, int endRow) {
        const ChannelRules rules = channelRules();
        std::array<bool, kSlotCount> seen{};
        for (Rows row = from; row != to; ++row) {
            if (row->isBlank()) continue;
            const QStringList fields = fieldsOf(*row, csv_format::ColumnCount);
            const std::optional<int> channel = channelNumberOf(fields.value(0));
            const bool repeated = channel && seen[*channel - 1];
            if (channel) seen[*channel - 1] = true;
            if (!checkLength(*row, fields, csv_format::ColumnCount)) continue;
            if (!channel) {
                fault(*row, 1, csv_format::columnName(csv_format::Channel),
                      CellFaultKind::ChannelNumber, {fields[0].trimmed()});
            } else if (repeated) {
                fault(*row, 1, csv_format::columnName(csv_format::Channel),
                      CellFaultKind::ChannelRepeated, {QString::number(*channel)});
            }
            CsvRow padded = *row;
            padded.fields = fields;
            ChannelRow read = readChannelCells(padded, rules, faults_);
            if (channel && !repeated) {
                slots_[*channel - 1] = std::move(read);
                slotRows_[*channel - 1] = row->number;
            }
        }
        for (int slot = 0; slot < kSlotCount; ++slot) {
            if (seen[slot]) continue;
            faultAt(endRow, 0, QString(), CellFaultKind::ChannelMissing,
                    {QString::number(slot + 1)});
        }
        checkActiveRun();
    }

    // The active channels are 1 to chtot: one at least, and none after an inactive one. Each
    // gap is named once, at the first active channel after it.
    void checkActiveRun() {
        const auto activeFault = [this](int slot, CellFaultKind kind, QStringList args) {
            faultAt(slotRows_[slot], csv_format::Active + 1,
                    csv_format::columnName(csv_format::Active), kind, std::move(args));
        };
        bool afterInactive = false;
        bool anyActive = false;
        for (int slot = 0; slot < kSlotCount; ++slot) {
            const std::optional<bool> active = slots_[slot].active;
            if (!slotRows_[slot] || !active) continue;
            anyActive = anyActive || *active;
            const bool gap = *active && afterInactive;
            afterInactive = !*active;
            if (gap) {
                activeFault(slot, CellFaultKind::ActiveAfterInactive, {QString::number(slot + 1)});
            }
        }
        if (!anyActive && slotRows_[0] && slots_[0].active) {
            activeFault(0, CellFaultKind::NoActiveChannel, {});
        }
    }

    CsvImport finish() {
        CsvImport result;
        std::stable_sort(faults_.begin(), faults_.end(),
                         [](const CellFault& a, const CellFault& b) {
                             return a.row != b.row ? a.row < b.row : a.column < b.column;
                         });
        result.faults = std::move(faults_);
        if (!result.faults.empty()) return result;

        Codeplug doc = base_;
        doc.settings = settings_.values;
        doc.freqstep = settings_.freqstep;
        doc.codeTable = buildCodeTable(doc.settings[SettingKey::normalmode], doc.language);
        int active = 0;
        for (int slot = 0; slot < kSlotCount; ++slot) {
            doc.plan[slot] = slots_[slot].record;
            if (slots_[slot].active.value_or(false)) ++active;
        }
        doc.chtot = QString::number(active);
        RESET_TEXT(doc);
        result.document = std::move(doc);
        return result;
    }

    const Codeplug& base_;
    const std::vector<CsvRow> rows_;
    CellFaults faults_;
    SettingsSection settings_;
    std::array<ChannelRow, kSlotCount> slots_{};
    std::array<int, kSlotCount> slotRows_{};  // 0: no row seen
};

}  // namespace

CsvImport importCsvText(const Codeplug& base, const QString& text) {
    return Importer(base, text).run();
}

CsvImport importCsvBytes(const Codeplug& base, const QByteArray& bytes) {
    return importCsvText(base, decodeFileText(bytes));
}

Result<CsvImport> importCsvFile(const Codeplug& base, const QString& path) {
    const Result<QByteArray> content = readWholeFile(path);
    if (!content) return content.error();
    return importCsvBytes(base, *content);
}
