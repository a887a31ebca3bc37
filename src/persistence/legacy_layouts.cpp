#include "persistence/legacy_layouts.h"

#include <iterator>

#include "model/editing.h"
#include "persistence/codeplug_file.h"
#include "persistence/private_profile.h"

namespace {

class LineReader {
public:
    explicit LineReader(const QStringList& lines) : lines_(lines) {}
    QString next() { return index_ < lines_.size() ? lines_[index_++] : QString(); }

private:
    const QStringList& lines_;
    qsizetype index_ = 0;
};

// The channel blocks in file order; the oldest layout stops before power.
QString ChannelRecord::*const kBlocks[] = {
    &ChannelRecord::rxfreq, &ChannelRecord::txfreq, &ChannelRecord::rxctc,
    &ChannelRecord::txctc,  &ChannelRecord::band,   &ChannelRecord::power,
};

void readBlocks(Codeplug& doc, LineReader& in, int blockCount) {
    for (int block = 0; block < blockCount; ++block) {
        for (int slot = 0; slot < kSlotCount; ++slot) doc.plan[slot].*kBlocks[block] = in.next();
    }
}

// The settings lines of the old layouts, in file order. Each layout holds a first part of the
// list: 3 (as option texts), 8, 9 or 10 settings.
constexpr SettingKey kLineSettings[] = {
    SettingKey::txen, SettingKey::busytxdis, SettingKey::dtmfen, SettingKey::voicebrc,
    SettingKey::sos,  SettingKey::bluetooth, SettingKey::fm,     SettingKey::autolock,
    SettingKey::tot,  SettingKey::agingtest,
};
constexpr int kSettingsV05 = 3, kSettingsV13 = 8, kSettingsV16 = 9, kSettingsV18 = 10;
static_assert(std::size(kLineSettings) == kSettingsV18);

// An option text as the oldest layout stored it, in either language: the first equal option of
// the document's language, else of the other one, else the option count (as a selector whose
// text matches no option gives).
qint16 optionIndex(SettingKey key, const QString& text, UiLanguage language) {
    const UiLanguage other =
        language == UiLanguage::Chinese ? UiLanguage::English : UiLanguage::Chinese;
    const QStringList options = settingOptions(key, language);
    const int index = OptionIndexLookup(options, text);
    if (index < options.size()) return static_cast<qint16>(index);
    return static_cast<qint16>(OptionIndexLookup(settingOptions(key, other), text));
}

// "True" when Chinese was active; a Boolean written as a number counts too.
UiLanguage savedLanguageFlag(const QString& text) {
    const QString flag = text.trimmed();
    const bool chinese =
        flag.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0 || leadingInteger(flag) != 0;
    return chinese ? UiLanguage::Chinese : UiLanguage::English;
}

UiLanguage readNumberedLayout(Codeplug& doc, const QStringList& lines, int settingCount) {
    LineReader in(lines);
    doc.settings[SettingKey::normalmode] = leadingInteger(in.next());
    resetCodeTables(doc);  // every cell is read below, then redrawn
    readBlocks(doc, in, 6);
    doc.settings[SettingKey::freqsel] = leadingInteger(in.next());
    doc.chtot = channelCountFromFile(in.next());
    doc.freqstep = in.next();
    for (int i = 0; i < settingCount; ++i)
        doc.settings[kLineSettings[i]] = leadingInteger(in.next());
    const UiLanguage saved = savedLanguageFlag(in.next());
    for (int slot = 0; slot < kSlotCount; ++slot) doc.plan[slot].rxctcfreq = in.next();
    for (int slot = 0; slot < kSlotCount; ++slot) doc.plan[slot].txctcfreq = in.next();
    RESET_TEXT(doc);
    return saved;
}

}  // namespace

void ReadSaveFile_V05(Codeplug& doc, const QStringList& lines) {
    LineReader in(lines);
    switchMode(doc, optionIndex(SettingKey::normalmode, in.next(), doc.language));
    readBlocks(doc, in, 5);
    doc.settings[SettingKey::freqsel] = optionIndex(SettingKey::freqsel, in.next(), doc.language);
    doc.chtot = channelCountFromFile(in.next());
    doc.freqstep = in.next();
    for (int i = 0; i < kSettingsV05; ++i) {
        const SettingKey key = kLineSettings[i];
        doc.settings[key] = optionIndex(key, in.next(), doc.language);
    }
    RESET_TEXT(doc);
}

UiLanguage ReadSaveFile_V13(Codeplug& doc, const QStringList& lines) {
    return readNumberedLayout(doc, lines, kSettingsV13);
}

UiLanguage ReadSaveFile_V16(Codeplug& doc, const QStringList& lines) {
    return readNumberedLayout(doc, lines, kSettingsV16);
}

UiLanguage ReadSaveFile_V18(Codeplug& doc, const QStringList& lines) {
    return readNumberedLayout(doc, lines, kSettingsV18);
}
