#include <gtest/gtest.h>

#include "model/code_tables.h"
#include "model/codeplug.h"
#include "model/custom_tone.h"

namespace {

TEST(Startup, DefaultsWithoutConfiguration) {
    const Codeplug doc = buildStartupCodeplug(StartupConfig{});
    for (const ChannelRecord& ch : doc.plan) {
        EXPECT_EQ(ch.rxfreq, "000.00000");
        EXPECT_EQ(ch.txfreq, "000.00000");
        EXPECT_EQ(ch.rxctc, "67.0");
        EXPECT_EQ(ch.txctc, "67.0");
        EXPECT_EQ(ch.band, QString::fromUtf8("窄带"));
        EXPECT_EQ(ch.power, QString::fromUtf8("大"));
        EXPECT_EQ(ch.rxctcfreq, "67.0");
        EXPECT_EQ(ch.rxcdc, "D023");
    }
    EXPECT_EQ(doc.chtot, "22");
    EXPECT_EQ(doc.activeChannelCount(), 22);
    EXPECT_EQ(doc.settings[SettingKey::freqband], 0);
    EXPECT_EQ(doc.settings[SettingKey::freqsel], 3);
    EXPECT_EQ(doc.settings[SettingKey::normalmode], 0);
    EXPECT_EQ(doc.codeTable, NormalCodeTable());
}

TEST(Startup, ConfigurationDrivesTheDocument) {
    StartupConfig config;
    config.language = UiLanguage::English;
    config.channelsFixed = true;
    config.defband = 2;
    config.maxch = "5";
    config.presets.frequency[0] = "250.5";
    config.presets.power[0] = QString::fromUtf8("小");
    config.presets.bandwidth[0] = "wide";
    const Codeplug doc = buildStartupCodeplug(config);
    EXPECT_EQ(doc.settings[SettingKey::normalmode], 1);
    EXPECT_EQ(doc.codeTable.size(), kProfessionalCodeCount);
    EXPECT_EQ(doc.bandLimits().lower, 200);
    EXPECT_EQ(doc.defaultBand, 2);
    EXPECT_EQ(doc.plan[0].rxfreq, "250.50000");
    EXPECT_EQ(doc.plan[0].power, "low");
    EXPECT_EQ(doc.plan[0].band, "wide");
    EXPECT_EQ(doc.plan[1].band, "narrow");
    EXPECT_EQ(doc.activeChannelCount(), 5);
}

TEST(CustomTone, KeyFilter) {
    const struct {
        const char* current;
        int key;
        KeyAction action;
    } cases[] = {
        {"", '7', KeyAction::Accept},      {"88", '.', KeyAction::Accept},
        {"88", 'a', KeyAction::Discard},   {"88", kKeyBackspace, KeyAction::Accept},
        {"88", kKeyDelete, KeyAction::Accept}, {"88", kKeyEnter, KeyAction::FocusNext},
        {"123.4", '5', KeyAction::Discard}, {"123.4", kKeyDelete, KeyAction::Discard},
        {"123.4", kKeyBackspace, KeyAction::Accept},
    };
    for (const auto& c : cases) EXPECT_EQ(customToneKey(c.current, c.key), c.action) << c.current << c.key;
}

TEST(CustomTone, PictureAndRange) {
    const struct {
        const char* typed;
        const char* shown;
        bool valid;
    } cases[] = {
        {"88.5", "88.5", true},   {"100", "100.0", true},  {"67", "67.0", true},
        {"66.9", "66.9", false},  {"255", "255.0", false}, {"254.9", "254.9", true},
        {"", "", false},          {"7", "07.0", false},    {"..", "..", false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        Codeplug doc = buildStartupCodeplug(StartupConfig{});
        const CustomToneResult result = confirmCustomTone(doc, 4, CodeDirection::Tx, c.typed);
        EXPECT_EQ(result.fieldText, c.shown);
        EXPECT_EQ(result.accepted, c.valid);
        EXPECT_EQ(doc.plan[4].txctcfreq, c.valid ? c.shown : "67.0");
        EXPECT_EQ(result.notices.size(), c.valid ? 0u : 1u);
    }
}

}  // namespace
