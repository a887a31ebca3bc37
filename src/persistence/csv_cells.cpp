#include "persistence/csv_cells.h"

#include <QRegularExpression>

#include "l10n/csv_texts.h"
#include "l10n/texts.h"
#include "model/code_tables.h"
#include "model/custom_tone.h"
#include "persistence/csv_format.h"

namespace {

using csv_format::Column;

constexpr int kMaxFrequencyLength = 9;
constexpr double kHighestFrequency = 1000.0;  // "000.00000" has three integer digits
// Beyond what the radio's record holds for a custom tone not in use: 0.1 Hz in 16 bits.
constexpr double kFirstToneTooHigh = 6553.5;
constexpr int kHighestDcsWord = 0xFFFFFF;
constexpr int kHighestOptionNumber = 32767;

bool same(const QString& a, const QString& b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

// Which of two words of either language a cell holds: the caption index, or nothing.
std::optional<int> wordOf(const QString& cell, int first, int second) {
    for (int caption : {first, second}) {
        for (UiLanguage language : {UiLanguage::English, UiLanguage::Chinese}) {
            if (same(cell, l10n::caption(caption, language))) return caption;
        }
    }
    return std::nullopt;
}

QString wordsOf(int first, int second) {
    return QStringList{
        l10n::caption(first, UiLanguage::English), l10n::caption(second, UiLanguage::English),
        l10n::caption(first, UiLanguage::Chinese), l10n::caption(second, UiLanguage::Chinese)}
        .join(QLatin1String(", "));
}

class RowReader {
public:
    RowReader(const CsvRow& row, const ChannelRules& rules, CellFaults& faults)
        : row_(row), rules_(rules), faults_(faults) {}

    QString cell(Column column) const { return row_.fields[column].trimmed(); }

    void fault(Column column, CellFaultKind kind, QStringList args = {}) {
        faults_.push_back(
            cellFault(row_, column + 1, csv_format::columnName(column), kind, std::move(args)));
    }

    std::optional<bool> active() {
        const QString text = cell(Column::Active);
        for (bool value : {true, false}) {
            for (UiLanguage language : {UiLanguage::English, UiLanguage::Chinese}) {
                if (same(text, l10n::activeWord(value, language))) return value;
            }
        }
        const QString words = QStringList{l10n::activeWord(true, UiLanguage::English),
                                          l10n::activeWord(false, UiLanguage::English),
                                          l10n::activeWord(true, UiLanguage::Chinese),
                                          l10n::activeWord(false, UiLanguage::Chinese)}
                                  .join(QLatin1String(", "));
        fault(Column::Active, CellFaultKind::UnknownWord, {text, words});
        return std::nullopt;
    }

    // "000.00000" marks a slot without a frequency. Any other frequency of an active channel
    // lies in the band; an inactive channel keeps any frequency the picture can show.
    QString frequency(Column column, bool active) {
        const QString text = cell(column);
        if (text.size() > kMaxFrequencyLength) {
            fault(column, CellFaultKind::TooLong, {text, QString::number(kMaxFrequencyLength)});
            return text;
        }
        const std::optional<double> value = strictNumber(text);
        if (!value) {
            fault(column, CellFaultKind::NotANumber, {text});
        } else if (*value == 0) {
            return text;
        } else if (active && rules_.band && !rules_.band->contains(*value)) {
            fault(
                column, CellFaultKind::OutOfBand,
                {text, QString::number(rules_.band->lower), QString::number(rules_.band->upper())});
        } else if (!active && !(*value >= 0 && *value < kHighestFrequency)) {
            fault(column, CellFaultKind::OutOfBand,
                  {text, QStringLiteral("0"), QString::number(kHighestFrequency)});
        }
        return text;
    }

    // The code as the active list writes it ("d023" is "D023"); the custom-tone word of either
    // language is taken, and shown in the document's language once the cells are redrawn.
    QString code(Column column) {
        const QString text = cell(column);
        if (!rules_.codeTable) return text;
        for (const QString& entry : *rules_.codeTable) {
            if (same(text, entry)) return entry;
        }
        const bool professional = rules_.codeTable->size() == kProfessionalCodeCount;
        for (UiLanguage language : {UiLanguage::English, UiLanguage::Chinese}) {
            const QString custom = l10n::caption(l10n::CapCustomTone, language);
            if (professional && same(text, custom)) return custom;
        }
        fault(column, CellFaultKind::CodeNotInList, {text});
        return text;
    }

    QString word(Column column, int first, int second, UiLanguage language) {
        const QString text = cell(column);
        if (const std::optional<int> caption = wordOf(text, first, second)) {
            return l10n::caption(*caption, language);
        }
        fault(column, CellFaultKind::UnknownWord, {text, wordsOf(first, second)});
        return text;
    }

    // In use, the tone the custom tone dialog takes; otherwise empty, or what the radio's record
    // can hold.
    QString customTone(Column column, bool inUse) {
        const QString text = cell(column);
        if (!inUse && text.isEmpty()) return text;
        const std::optional<double> value = strictNumber(text);
        if (!value) {
            fault(column, CellFaultKind::NotANumber, {text});
        } else if (inUse && !ChkCtcOk_Int(text)) {
            fault(column, CellFaultKind::ToneOutOfRange,
                  {text, QStringLiteral("67.0"), QStringLiteral("255.0")});
        } else if (!inUse && !(*value >= 0 && *value < kFirstToneTooHigh)) {
            fault(column, CellFaultKind::ToneOutOfRange,
                  {text, QStringLiteral("0"), QString::number(kFirstToneTooHigh)});
        }
        return text;
    }

    // "D023" or "I754" (any case), or the 24-bit word a radio read leaves; empty while unused.
    QString customDcs(Column column, bool inUse) {
        const QString text = cell(column);
        if (!inUse && text.isEmpty()) return text;
        static const QRegularExpression code(QStringLiteral("^[DI][0-7]{3}$"),
                                             QRegularExpression::CaseInsensitiveOption);
        static const QRegularExpression number(QStringLiteral("^[0-9]{1,8}$"));
        if (code.match(text).hasMatch()) return text.toUpper();
        if (number.match(text).hasMatch() && text.toInt() <= kHighestDcsWord) return text;
        fault(column, CellFaultKind::NotADcsCode, {text});
        return text;
    }

private:
    const CsvRow& row_;
    const ChannelRules& rules_;
    CellFaults& faults_;
};

}  // namespace

CellFault cellFault(const CsvRow& row, int column, const QString& columnName, CellFaultKind kind,
                    QStringList args) {
    return CellFault{row.number, column, columnName, kind, std::move(args)};
}

ChannelRow readChannelCells(const CsvRow& row, const ChannelRules& rules, CellFaults& faults) {
    RowReader in(row, rules, faults);
    ChannelRow result;
    result.active = in.active();
    ChannelRecord& ch = result.record;
    const bool active = result.active.value_or(false);
    ch.rxfreq = in.frequency(Column::RxFrequency, active);
    ch.txfreq = in.frequency(Column::TxFrequency, active);
    ch.rxctc = in.code(Column::RxCode);
    ch.txctc = in.code(Column::TxCode);
    ch.band = in.word(Column::Bandwidth, l10n::CapNarrow, l10n::CapWide, rules.language);
    ch.power = in.word(Column::Power, l10n::CapHigh, l10n::CapLow, rules.language);
    ch.rxctcfreq = in.customTone(Column::RxCustomTone, isCustomToneText(ch.rxctc));
    ch.txctcfreq = in.customTone(Column::TxCustomTone, isCustomToneText(ch.txctc));
    ch.rxcdc = in.customDcs(Column::RxCustomDcs, ch.rxctc == QLatin1String(kCdcssText));
    ch.txcdc = in.customDcs(Column::TxCustomDcs, ch.txctc == QLatin1String(kCdcssText));
    return result;
}

std::optional<int> channelNumberOf(const QString& cell) {
    const QString text = cell.trimmed();
    if (!isWholeNumberText(text)) return std::nullopt;
    const int number = text.toInt();
    if (number < 1 || number > kSlotCount) return std::nullopt;
    return number;
}

std::optional<qint16> settingValueOf(SettingKey key, const QString& cell) {
    const QString text = cell.trimmed();
    for (UiLanguage language : {UiLanguage::English, UiLanguage::Chinese}) {
        const QStringList options = settingOptions(key, language);
        for (int index = 0; index < options.size(); ++index) {
            if (same(text, options[index])) return static_cast<qint16>(index);
        }
    }
    if (isWholeNumberText(text) && text.toInt() <= kHighestOptionNumber) {
        return static_cast<qint16>(text.toInt());
    }
    return std::nullopt;
}

QString settingOptionsText(SettingKey key) {
    QStringList words = settingOptions(key, UiLanguage::English);
    for (const QString& option : settingOptions(key, UiLanguage::Chinese)) {
        if (!words.contains(option)) words << option;
    }
    return words.join(QLatin1String(", "));
}

bool isWholeNumberText(const QString& cell) {
    static const QRegularExpression digits(QStringLiteral("^[0-9]{1,9}$"));
    return digits.match(cell).hasMatch();
}
