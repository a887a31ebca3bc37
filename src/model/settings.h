#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>
#include <array>

#include "l10n/language.h"

// The thirteen radio-wide settings. Each value is the position of the chosen option in its
// selector's list; the key names are those of the codeplug file and the radio's image.
enum class SettingKey {
    freqsel,
    normalmode,
    txen,
    busytxdis,
    dtmfen,
    voicebrc,
    sos,
    bluetooth,
    fm,
    autolock,
    freqband,
    tot,
    agingtest,
};
constexpr int kSettingCount = 13;

// Every setting in the order above, for loops.
extern const std::array<SettingKey, kSettingCount> kAllSettings;

QString settingKeyName(SettingKey key);

class RadioSettings {
public:
    qint16 operator[](SettingKey key) const { return values_[static_cast<int>(key)]; }
    qint16& operator[](SettingKey key) { return values_[static_cast<int>(key)]; }
    bool operator==(const RadioSettings& other) const { return values_ == other.values_; }

private:
    std::array<qint16, kSettingCount> values_{};
};

// How a setting is shown: the selector's object name, the procedure name that takes the
// selector's text over, and the caption beside it.
struct SettingSelector {
    SettingKey key;
    const char* objectName;      // "Combo5"
    const char* checkProcedure;  // "chk_Combo5"
};

const SettingSelector& selectorOf(SettingKey key);

// Options of a setting's selector in list order, in the given language.
QStringList settingOptions(SettingKey key, UiLanguage language);

// The caption shown beside a setting's selector.
QString settingLabel(SettingKey key, UiLanguage language);

// Text -> position of the first equal option; a text that matches none gives the option count.
int OptionIndexLookup(const QStringList& options, const QString& text);

// Position -> the option text shown for it; an index outside the list shows an empty text.
QString Show_Combo(SettingKey key, int index, UiLanguage language);

// Takes a selector's text over into its setting (the chk_… procedures).
void takeOverSelectorText(RadioSettings& settings, SettingKey key, const QString& text,
                          UiLanguage language);

// Options of the channel-count ("1".."25") and step ("100".."900") selectors.
QStringList channelCountOptions();
QStringList frequencyStepOptions();
