#include "model/settings.h"

#include <algorithm>
#include <initializer_list>
#include <vector>

#include "l10n/texts.h"

const std::array<SettingKey, kSettingCount> kAllSettings = {
    SettingKey::freqsel,   SettingKey::normalmode, SettingKey::txen,     SettingKey::busytxdis,
    SettingKey::dtmfen,    SettingKey::voicebrc,   SettingKey::sos,      SettingKey::bluetooth,
    SettingKey::fm,        SettingKey::autolock,   SettingKey::freqband, SettingKey::tot,
    SettingKey::agingtest,
};

namespace {

constexpr int kFixedLabel = -1;

// One row per setting, in the order of SettingKey. Options are caption-table entries; a label
// is either a caption-table entry or a text that is the same in both languages.
struct SettingRow {
    SettingSelector selector;
    const char* keyName;
    std::vector<int> optionCaptions;
    int labelCaption;
    const char* fixedLabel;
};

const std::vector<SettingRow>& settingRows() {
    using K = SettingKey;
    static const std::vector<SettingRow> rows = [] {
        using namespace l10n;
        const std::vector<int> standards = {CapStandardUsa, CapStandardUsa + 1, CapStandardUsa + 2,
                                            CapStandardUsa + 3};
        const std::vector<int> bands = {CapBand0, CapBand0 + 1, CapBand0 + 2, CapBand0 + 3};
        const std::vector<int> enableDisable = {CapEnable, CapDisable};
        const std::vector<int> offOn = {CapSwitchOff, CapSwitchOn};
        return std::vector<SettingRow>{
            {{K::freqsel, "Combo1", "chk_range"}, "freqsel", standards, kFixedLabel, "频率选择"},
            {{K::normalmode, "Combo4", "chk_Combo4"},
             "normalmode",
             {CapModeNormal, CapModeProfessional},
             kFixedLabel,
             "模式选择"},
            {{K::txen, "Combo5", "chk_Combo5"}, "txen", enableDisable, CapTx, nullptr},
            {{K::busytxdis, "Combo6", "chk_Combo6"},
             "busytxdis",
             {CapOff, CapOn},
             CapBusyLock,
             nullptr},
            {{K::dtmfen, "Combo7", "chk_Combo7"}, "dtmfen", offOn, CapDtmf, nullptr},
            {{K::voicebrc, "Combo8", "chk_Combo8"}, "voicebrc", offOn, CapVoice, nullptr},
            {{K::sos, "Combo9", "chk_Combo9"}, "sos", offOn, kFixedLabel, "SOS"},
            {{K::bluetooth, "Combo10", "chk_Combo10"}, "bluetooth", offOn, CapBluetooth, nullptr},
            {{K::fm, "Combo11", "chk_Combo11"}, "fm", offOn, kFixedLabel, "FM"},
            {{K::autolock, "Combo14", "chk_Combo14"}, "autolock", offOn, CapAutoLock, nullptr},
            {{K::freqband, "Combo15", "chk_Combo15"}, "freqband", bands, kFixedLabel, "频段"},
            {{K::tot, "Combo16", "chk_Combo16"}, "tot", enableDisable, kFixedLabel, "TOT"},
            // Reversed on purpose: for the aging test, 0 means Disable.
            {{K::agingtest, "Combo17", "chk_Combo17"},
             "agingtest",
             {CapDisable, CapEnable},
             kFixedLabel,
             "老化"},
        };
    }();
    return rows;
}

const SettingRow& rowOf(SettingKey key) {
    return settingRows()[static_cast<int>(key)];
}

QStringList numberTexts(int first, int last, int step) {
    QStringList texts;
    for (int value = first; value <= last; value += step) texts << QString::number(value);
    return texts;
}

}  // namespace

QString settingKeyName(SettingKey key) {
    return QString::fromLatin1(rowOf(key).keyName);
}

const SettingSelector& selectorOf(SettingKey key) {
    return rowOf(key).selector;
}

QStringList settingOptions(SettingKey key, UiLanguage language) {
    QStringList options;
    for (int index : rowOf(key).optionCaptions) options << l10n::caption(index, language);
    return options;
}

QString settingLabel(SettingKey key, UiLanguage language) {
    const SettingRow& row = rowOf(key);
    if (row.labelCaption == kFixedLabel) return QString::fromUtf8(row.fixedLabel);
    return l10n::caption(row.labelCaption, language);
}

int OptionIndexLookup(const QStringList& options, const QString& text) {
    const auto found = std::find(options.begin(), options.end(), text);
    return static_cast<int>(found - options.begin());
}

QString Show_Combo(SettingKey key, int index, UiLanguage language) {
    return settingOptions(key, language).value(index);
}

void takeOverSelectorText(RadioSettings& settings, SettingKey key, const QString& text,
                          UiLanguage language) {
    settings[key] = static_cast<qint16>(OptionIndexLookup(settingOptions(key, language), text));
}

QStringList channelCountOptions() {
    return numberTexts(1, 25, 1);
}
QStringList frequencyStepOptions() {
    return numberTexts(100, 900, 100);
}
