#include <gtest/gtest.h>

#include "model/code_tables.h"
#include "model/codeplug.h"
#include "model/editing.h"

using l10n::MessageId;

namespace {

Codeplug startup(UiLanguage lang = UiLanguage::Chinese) {
    StartupConfig config;
    config.language = lang;
    return buildStartupCodeplug(config);
}

const Notice kWarnSlot0{MessageId::MsgChannelFreqError, 1};

TEST(FrequencyEntry, ReceiveRuleInBand0) {
    const struct {
        const char* typed;
        const char* rxAfter;
        const char* txAfter;  // "" when the transmit cell is not touched
        Notices notices;
    } cases[] = {
        {"400.00000", "400.00000", "400.00000", {}},
        {"499.99999", "499.99999", "499.99999", {}},
        // Copied to Tx first, which warns and keeps it; then Rx warns and becomes L.
        {"500.00000", "400", "500.00000", {kWarnSlot0, kWarnSlot0}},
        {"399.9999", "400", "", {kWarnSlot0}},
        {"0", "400", "", {}},
        {"4", "4", "", {}},
        {"46", "46", "", {}},
        {"462.5", "462.5", "", {}},
        {"399.99", "399.99", "", {}},  // six characters: never checked while typing
        {"462.562", "462.562", "", {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        Codeplug doc = startup();
        const Notices notices = enterRxFrequency(doc, 0, c.typed);
        EXPECT_EQ(doc.plan[0].rxfreq, c.rxAfter);
        EXPECT_EQ(doc.plan[0].txfreq, *c.txAfter ? c.txAfter : "000.00000");
        EXPECT_EQ(notices, c.notices);
    }
}

TEST(FrequencyEntry, TransmitWarnsAndKeepsItsText) {
    Codeplug doc = startup();
    EXPECT_EQ(enterTxFrequency(doc, 4, "500.00000"), (Notices{{MessageId::MsgChannelFreqError, 5}}));
    EXPECT_EQ(doc.plan[4].txfreq, "500.00000");
    EXPECT_TRUE(enterTxFrequency(doc, 4, "0").empty());
    EXPECT_EQ(doc.plan[4].txfreq, "0");
}

TEST(FrequencyEntry, BandDecidesTheLimit) {
    Codeplug doc = startup();
    doc.settings[SettingKey::freqband] = 1;
    EXPECT_TRUE(enterRxFrequency(doc, 0, "350.00000").empty());
    EXPECT_EQ(enterRxFrequency(doc, 0, "450.00000").size(), 2u);
    EXPECT_EQ(doc.plan[0].rxfreq, "300");
}

TEST(Raster, FlagsAndMovesWithTheOldFloatSteps) {
    const struct {
        const char* in;
        const char* out;
        bool flag;
    } cases[] = {
        {"446.00625", "446.00625", true},  {"446.00500", "446.00500", false},
        {"446.00300", "446.00000", false}, {"446.02500", "446.02500", true},
        {"462.55550", "462.55500", false}, {"462.56250", "462.56250", true},
        {"", "000.00000", true},           {"400", "400.00000", true},
        {"abc", "abc", false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.in);
        Codeplug doc = startup();
        doc.plan[3].rxfreq = c.in;
        doc.plan[3].txfreq = c.in;
        RESET_FER(doc);
        EXPECT_EQ(doc.plan[3].rxfreq, c.out);
        EXPECT_EQ(doc.plan[3].txfreq, c.out);
        EXPECT_EQ(doc.RxStepFlags[3], c.flag);
        EXPECT_EQ(doc.TxStepFlags[3], c.flag);
    }
}

TEST(CodeCells, CustomToneShowsInTheCurrentLanguageWithItsTone) {
    for (UiLanguage lang : {UiLanguage::Chinese, UiLanguage::English}) {
        Codeplug doc = startup(lang);
        doc.plan[2].rxctc = "Custom";
        doc.plan[2].rxctcfreq = "88.5";
        doc.plan[2].txctc = QString::fromUtf8("自定义");
        doc.plan[2].txctcfreq = "100.0";
        doc.plan[3].rxctc = "CDCSS";
        doc.plan[3].rxcdc = "D123";
        doc.plan[3].rxCodeToolTip = "stale";
        doc.plan[4].rxCodeToolTip = "stale";
        RESET_TEXT(doc);
        const QString word = lang == UiLanguage::Chinese ? QString::fromUtf8("自定义") : "Custom";
        EXPECT_EQ(doc.plan[2].rxctc, word);
        EXPECT_EQ(doc.plan[2].txctc, word);
        EXPECT_EQ(doc.plan[2].rxCodeToolTip, "88.5");
        EXPECT_EQ(doc.plan[2].txCodeToolTip, "100.0");
        EXPECT_EQ(doc.plan[3].rxctc, "CDCSS");
        EXPECT_EQ(doc.plan[3].rxCodeToolTip, "D123");
        EXPECT_EQ(doc.plan[4].rxCodeToolTip, "");
    }
}

TEST(ModeSwitch, ResetsEveryCodeIncludingInactiveSlots) {
    Codeplug doc = startup();
    doc.chtot = "3";
    ASSERT_TRUE(switchMode(doc, 1));
    EXPECT_EQ(doc.codeTable.size(), 268);
    for (const ChannelRecord& ch : doc.plan) {
        EXPECT_EQ(ch.rxctc, "OFF");
        EXPECT_EQ(ch.txctc, "OFF");
    }
    doc.plan[0].rxctc = "I023";
    ASSERT_TRUE(switchMode(doc, 0));
    EXPECT_EQ(doc.codeTable.size(), 100);
    EXPECT_EQ(doc.plan[0].rxctc, "OFF");

    doc.channelsFixed = true;
    doc.plan[0].rxctc = "D023";
    EXPECT_FALSE(switchMode(doc, 1));
    EXPECT_EQ(doc.settings[SettingKey::normalmode], 0);
    EXPECT_EQ(doc.plan[0].rxctc, "D023");
}

TEST(Toggles, BandwidthAndPowerFlipUnlessFixed) {
    Codeplug doc = startup(UiLanguage::English);
    toggleBandwidth(doc, 0);
    togglePower(doc, 0);
    EXPECT_EQ(doc.plan[0].band, "wide");
    EXPECT_EQ(doc.plan[0].power, "low");
    EXPECT_EQ(powerColour(doc.plan[0].power), kPowerColourLow);
    toggleBandwidth(doc, 0);
    togglePower(doc, 0);
    EXPECT_EQ(doc.plan[0].band, "narrow");
    EXPECT_EQ(doc.plan[0].power, "high");
    EXPECT_EQ(powerColour(doc.plan[0].power), kPowerColourHigh);

    // A word of the other language is not this language's "wide"/"high": it becomes them.
    doc.plan[1].band = QString::fromUtf8("宽带");
    doc.plan[1].power = QString::fromUtf8("大");
    toggleBandwidth(doc, 1);
    togglePower(doc, 1);
    EXPECT_EQ(doc.plan[1].band, "wide");
    EXPECT_EQ(doc.plan[1].power, "high");

    doc.channelsFixed = true;
    toggleBandwidth(doc, 0);
    togglePower(doc, 0);
    EXPECT_EQ(doc.plan[0].band, "narrow");
    EXPECT_EQ(doc.plan[0].power, "high");
}

TEST(Language, SwitchTranslatesWhatEachRowHolds) {
    StartupConfig config;
    config.presets.bandwidth[0] = QString::fromUtf8("窄带");
    config.presets.power[1] = "low";
    Codeplug doc = buildStartupCodeplug(config);
    switchMode(doc, 1);
    doc.plan[0].band = QString::fromUtf8("宽带");  // edited after start-up: kept
    doc.plan[1].power = QString::fromUtf8("大");
    doc.plan[2].band = "narrow";  // a file's English word in a Chinese document
    doc.plan[3].band = "???";     // unknown words count as wide and low
    doc.plan[3].power = "???";
    doc.plan[5].rxctc = QString::fromUtf8("自定义");

    applyLanguage(doc, UiLanguage::English);
    EXPECT_EQ(doc.plan[0].band, "wide");
    EXPECT_EQ(doc.plan[1].power, "high");
    EXPECT_EQ(doc.plan[2].band, "narrow");
    EXPECT_EQ(doc.plan[3].band, "wide");
    EXPECT_EQ(doc.plan[3].power, "low");
    EXPECT_EQ(doc.plan[5].rxctc, "Custom");
    EXPECT_EQ(doc.codeTable[266], "Custom");

    applyLanguage(doc, UiLanguage::Chinese);
    EXPECT_EQ(doc.plan[0].band, QString::fromUtf8("宽带"));
    EXPECT_EQ(doc.plan[1].power, QString::fromUtf8("大"));
    EXPECT_EQ(doc.plan[2].band, QString::fromUtf8("窄带"));
}

TEST(CellClicks, ReceiveReformatsOnlyWhenCompleteTransmitAlways) {
    struct Case {
        CodeDirection direction;
        const char* rx;
        const char* tx;
        bool reformatted;
        const char* rxAfter;
        const char* txAfter;
    };
    const Case cases[] = {
        {CodeDirection::Rx, "400", "446.003", false, "400", "446.003"},
        {CodeDirection::Rx, "446.00300", "446.003", true, "446.00000", "446.00000"},
        {CodeDirection::Tx, "400", "446.003", true, "400.00000", "446.00000"},
    };
    for (const Case& c : cases) {
        Codeplug doc = startup();
        doc.plan[4].rxfreq = c.rx;
        doc.plan[4].txfreq = c.tx;
        EXPECT_EQ(frequencyCellClicked(doc, 4, c.direction), c.reformatted) << c.rx;
        EXPECT_EQ(doc.plan[4].rxfreq, c.rxAfter);
        EXPECT_EQ(doc.plan[4].txfreq, c.txAfter);
    }
}

TEST(CodePicks, TheProfessionalCustomEntryAsksForATone) {
    Codeplug doc = startup();
    EXPECT_FALSE(pickCode(doc, 2, CodeDirection::Tx, 1));
    EXPECT_EQ(doc.plan[2].txctc, "67.0");

    switchMode(doc, 1);
    EXPECT_TRUE(pickCode(doc, 2, CodeDirection::Rx, kProfessionalCustomTonePosition));
    EXPECT_EQ(doc.plan[2].rxctc, QString::fromUtf8("自定义"));
    EXPECT_EQ(doc.plan[2].rxCodeToolTip, "67.0");
    EXPECT_FALSE(pickCode(doc, 2, CodeDirection::Rx, kProfessionalCdcssPosition));
    EXPECT_EQ(doc.plan[2].rxctc, "CDCSS");
    EXPECT_EQ(doc.plan[2].rxCodeToolTip, "D023");
}

TEST(ChannelCount, EditableSlotsFollowChtot) {
    Codeplug doc = startup();
    for (const auto& [chtot, active] : {std::pair{"1", 1}, {"25", 25}, {"0", 0}, {"30", 25}, {"x", 0}}) {
        ASSERT_TRUE(setChannelCount(doc, chtot));
        const auto editable = RESET_Ch_Sel(doc);
        for (int slot = 0; slot < kSlotCount; ++slot) EXPECT_EQ(editable[slot], slot < active) << chtot;
    }
    doc.channelsFixed = true;
    EXPECT_FALSE(setChannelCount(doc, "5"));
    EXPECT_EQ(doc.chtot, "x");
}

}  // namespace
