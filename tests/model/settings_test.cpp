#include "model/settings.h"

#include <gtest/gtest.h>

namespace {

TEST(Settings, OptionListsInBothLanguages) {
    const struct {
        SettingKey key;
        QStringList chinese;
        QStringList english;
    } cases[] = {
        {SettingKey::freqsel,
         {"1:美国频率", "2:中国频率", "3:台湾频率", "4:自定义频率"},
         {"1:USA", "2:CHINA", "3:Taiwan", "4:custom"}},
        {SettingKey::normalmode, {"1:普通模式", "2:专业模式"}, {"1:Normal", "2:Professional"}},
        {SettingKey::txen, {"允许", "禁止"}, {"Enable", "Disable"}},
        {SettingKey::tot, {"允许", "禁止"}, {"Enable", "Disable"}},
        {SettingKey::agingtest, {"禁止", "允许"}, {"Disable", "Enable"}},
        {SettingKey::sos, {"关", "开"}, {"OFF", "ON"}},
        {SettingKey::freqband,
         {"0:400--470M", "1:300--400M", "2:200--300M", "3:100--200M"},
         {"0:400--470M", "1:300--400M", "2:200--300M", "3:100--200M"}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(settingOptions(c.key, UiLanguage::Chinese), c.chinese)
            << settingKeyName(c.key).toStdString();
        EXPECT_EQ(settingOptions(c.key, UiLanguage::English), c.english)
            << settingKeyName(c.key).toStdString();
    }
}

TEST(Settings, LookupAndShowAreInverse) {
    for (SettingKey key : kAllSettings) {
        for (UiLanguage lang : {UiLanguage::Chinese, UiLanguage::English}) {
            const QStringList options = settingOptions(key, lang);
            for (int i = 0; i < options.size(); ++i)
                EXPECT_EQ(OptionIndexLookup(options, Show_Combo(key, i, lang)), i);
            EXPECT_EQ(Show_Combo(key, static_cast<int>(options.size()), lang), "");
        }
    }
}

TEST(Settings, UnknownTextBecomesTheOptionCount) {
    RadioSettings settings;
    takeOverSelectorText(settings, SettingKey::freqsel, "5:Mars", UiLanguage::English);
    EXPECT_EQ(settings[SettingKey::freqsel], 4);
    // A Chinese option text is unknown to the English list.
    takeOverSelectorText(settings, SettingKey::txen, QString::fromUtf8("禁止"),
                         UiLanguage::English);
    EXPECT_EQ(settings[SettingKey::txen], 2);
    takeOverSelectorText(settings, SettingKey::agingtest, "Enable", UiLanguage::English);
    EXPECT_EQ(settings[SettingKey::agingtest], 1);
}

}  // namespace
