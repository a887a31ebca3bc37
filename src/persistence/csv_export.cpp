#include "persistence/csv_export.h"

#include "l10n/csv_texts.h"
#include "l10n/texts.h"
#include "model/code_tables.h"
#include "persistence/csv_format.h"
#include "persistence/csv_table.h"
#include "persistence/file_access.h"

namespace {

constexpr UiLanguage kWords = UiLanguage::English;

QString bandwidthText(const QString& word) {
    if (isNarrowWord(word)) return narrowWord(kWords);
    if (isWideWord(word)) return wideWord(kWords);
    return word;
}

QString powerText(const QString& word) {
    if (isHighPowerWord(word)) return highPowerWord(kWords);
    if (word == lowPowerWord(UiLanguage::Chinese)) return lowPowerWord(kWords);
    return word;
}

QString codeText(const QString& code) {
    return isCustomToneText(code) ? l10n::caption(l10n::CapCustomTone, kWords) : code;
}

// The option as the English selector shows it; an index no option has, as its number.
QString settingText(SettingKey key, int index) {
    const QStringList options = settingOptions(key, kWords);
    return index >= 0 && index < options.size() ? options[index] : QString::number(index);
}

QStringList channelRow(const Codeplug& doc, int slot) {
    const ChannelRecord& ch = doc.plan[slot];
    QStringList row(csv_format::ColumnCount);
    row[csv_format::Channel] = QString::number(slot + 1);
    row[csv_format::Active] = l10n::activeWord(slot < doc.activeChannelCount(), kWords);
    row[csv_format::RxFrequency] = ch.rxfreq;
    row[csv_format::TxFrequency] = ch.txfreq;
    row[csv_format::RxCode] = codeText(ch.rxctc);
    row[csv_format::TxCode] = codeText(ch.txctc);
    row[csv_format::Bandwidth] = bandwidthText(ch.band);
    row[csv_format::Power] = powerText(ch.power);
    row[csv_format::RxCustomTone] = ch.rxctcfreq;
    row[csv_format::TxCustomTone] = ch.txctcfreq;
    row[csv_format::RxCustomDcs] = ch.rxcdc;
    row[csv_format::TxCustomDcs] = ch.txcdc;
    return row;
}

}  // namespace

QString codeplugCsvText(const Codeplug& doc) {
    std::vector<QStringList> rows{csv_format::channelHeader()};
    for (int slot = 0; slot < kSlotCount; ++slot) rows.push_back(channelRow(doc, slot));
    rows.push_back({});
    rows.push_back(csv_format::settingHeader());
    for (SettingKey key : kAllSettings) {
        rows.push_back({settingKeyName(key), settingText(key, doc.settings[key])});
    }
    rows.push_back({QLatin1String(csv_format::kFreqstepKey), doc.freqstep});
    return csvText(rows);
}

QByteArray codeplugCsvBytes(const Codeplug& doc) {
    return codeplugCsvText(doc).toUtf8();
}

Result<void> exportCsvFile(const Codeplug& doc, const QString& path) {
    return saveWholeFile(path, codeplugCsvBytes(doc));
}
