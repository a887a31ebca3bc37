// The current codeplug layout: one INI section per channel field, keys numbered with two digits,
// and a Config section for the settings.
#include "model/editing.h"
#include "persistence/codeplug_file.h"

namespace {

struct ChannelSection {
    const char* section;
    const char* stem;
    QString ChannelRecord::*field;
};

// In writing order. The first six are grid cells, the last four the custom-code memories.
const ChannelSection kChannelSections[] = {
    {"Rxfreq", "rxfreq", &ChannelRecord::rxfreq},
    {"Txfreq", "txfreq", &ChannelRecord::txfreq},
    {"RxCtc", "rxctc", &ChannelRecord::rxctc},
    {"TxCtc", "txctc", &ChannelRecord::txctc},
    {"BAND", "band", &ChannelRecord::band},
    {"POWER", "power", &ChannelRecord::power},
    {"RxCtcFreq", "rxctcfreq", &ChannelRecord::rxctcfreq},
    {"TxCtcFreq", "txctcfreq", &ChannelRecord::txctcfreq},
    {"RxCdc", "rxcdc", &ChannelRecord::rxcdc},
    {"TxCdc", "txcdc", &ChannelRecord::txcdc},
};

const QString kConfig = QStringLiteral("Config");
const QString kChtot = QStringLiteral("chtot");
const QString kFreqstep = QStringLiteral("freqstep");

// The Config keys follow the settings' own order, with chtot and freqstep written before autolock.
constexpr SettingKey kFirstSettingAfterCounts = SettingKey::autolock;

QString slotKey(const char* stem, int slot) {  // two digits: rxfreq00 .. rxfreq24
    return QLatin1String(stem) + QLatin1Char(static_cast<char>('0' + slot / 10)) +
           QLatin1Char(static_cast<char>('0' + slot % 10));
}

}  // namespace

void writeCodeplugKeys(const Codeplug& doc, PrivateProfile& profile) {
    for (const ChannelSection& s : kChannelSections) {
        const QString section = QLatin1String(s.section);
        for (int slot = 0; slot < kSlotCount; ++slot) {
            profile.write(section, slotKey(s.stem, slot), doc.plan[slot].*s.field);
        }
    }
    const auto writeSetting = [&](SettingKey key) {
        WritePrivateProfileInt(profile, kConfig, settingKeyName(key), doc.settings[key]);
    };
    for (SettingKey key : kAllSettings) {
        if (key == kFirstSettingAfterCounts) {
            profile.write(kConfig, kChtot, doc.chtot);
            profile.write(kConfig, kFreqstep, doc.freqstep);
        }
        writeSetting(key);
    }
}

bool holdsCodeplugSection(const PrivateProfile& profile) {
    if (profile.hasSection(kConfig)) return true;
    for (const ChannelSection& s : kChannelSections) {
        if (profile.hasSection(QLatin1String(s.section))) return true;
    }
    return false;
}

void ReadSaveFile(Codeplug& doc, const PrivateProfile& profile) {
    // The mode first: rebuilding its code table resets every code, so no code of the previous
    // plan survives into slots the file leaves without one.
    doc.settings[SettingKey::normalmode] =
        profile.readInt(kConfig, settingKeyName(SettingKey::normalmode), 0);
    resetCodeTables(doc);  // every cell is read below, then redrawn

    for (const ChannelSection& s : kChannelSections) {
        const QString section = QLatin1String(s.section);
        for (int slot = 0; slot < kSlotCount; ++slot) {
            doc.plan[slot].*s.field = profile.readString(section, slotKey(s.stem, slot), QString());
        }
    }
    for (SettingKey key : kAllSettings) {
        if (key == SettingKey::normalmode) continue;  // read above
        doc.settings[key] = profile.readInt(kConfig, settingKeyName(key), 0);
    }
    doc.chtot = channelCountFromFile(profile.readString(kConfig, kChtot, QStringLiteral("22")));
    doc.freqstep = profile.readString(kConfig, kFreqstep, QStringLiteral("100"));
    RESET_TEXT(doc);
}

QString channelCountFromFile(const QString& text) {
    const double count = numericValue(text);
    if (count >= 1 && count <= kSlotCount) return text;
    return QString::number(boundedInt(count, 1, kSlotCount));
}
