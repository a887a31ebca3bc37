#include <gtest/gtest.h>

#include "model/codeplug.h"
#include "model/presets.h"

namespace {

Codeplug startup() {
    StartupConfig config;
    for (int slot = 0; slot < kSlotCount; ++slot) config.presets.frequency[slot] = "401";
    Codeplug doc = buildStartupCodeplug(config);
    doc.plan[22].rxctc = "D023";  // an inactive slot to watch
    return doc;
}

void expectActiveDefaults(const Codeplug& doc, int active, const char* code) {
    for (int slot = 0; slot < active; ++slot) {
        SCOPED_TRACE(slot);
        EXPECT_EQ(doc.plan[slot].txfreq, doc.plan[slot].rxfreq);
        EXPECT_EQ(doc.plan[slot].rxctc, code);
        EXPECT_EQ(doc.plan[slot].txctc, code);
        EXPECT_EQ(doc.plan[slot].band, QString::fromUtf8("窄带"));
        EXPECT_EQ(doc.plan[slot].power, QString::fromUtf8("大"));
    }
}

TEST(Presets, ChinaPlan) {
    Codeplug doc = startup();
    EXPECT_EQ(applyStandard(doc, 1), QString::fromUtf8("中国标准"));
    EXPECT_EQ(doc.chtot, "20");
    EXPECT_EQ(doc.settings[SettingKey::freqsel], 1);
    EXPECT_EQ(doc.plan[0].rxfreq, "409.75000");
    EXPECT_EQ(doc.plan[1].rxfreq, "409.76250");
    EXPECT_EQ(doc.plan[19].rxfreq, "409.98750");
    expectActiveDefaults(doc, 20, "OFF");
    EXPECT_EQ(doc.plan[20].rxfreq, "401.00000");  // inactive slots keep their values
    EXPECT_EQ(doc.plan[22].rxctc, "D023");
    EXPECT_FALSE(RESET_Ch_Sel(doc)[20]);
}

TEST(Presets, UsaPlanKeepsItsSlotOrder) {
    Codeplug doc = startup();
    EXPECT_EQ(applyStandard(doc, 0), QString::fromUtf8("美国标准"));
    EXPECT_EQ(doc.chtot, "22");
    EXPECT_EQ(doc.plan[0].rxfreq, "462.56250");
    EXPECT_EQ(doc.plan[13].rxfreq, "467.71250");
    EXPECT_EQ(doc.plan[14].rxfreq, "462.55000");
    EXPECT_EQ(doc.plan[21].rxfreq, "462.72500");
    expectActiveDefaults(doc, 22, "OFF");
}

TEST(Presets, TaiwanAndCustomPlans) {
    Codeplug doc = startup();
    EXPECT_EQ(applyStandard(doc, 2), QString::fromUtf8("台湾标准"));
    EXPECT_EQ(doc.chtot, "14");
    EXPECT_EQ(doc.plan[13].rxfreq, "467.67500");

    doc.settings[SettingKey::freqband] = 1;
    EXPECT_EQ(applyStandard(doc, 3), QString::fromUtf8("自定义标准"));
    EXPECT_EQ(doc.chtot, "25");
    expectActiveDefaults(doc, 25, "OFF");
    for (const ChannelRecord& ch : doc.plan) EXPECT_EQ(ch.rxfreq, "300.00000");
    EXPECT_EQ(standardTitle(7), QString::fromUtf8("自定义标准"));
}

TEST(Presets, BandRefillKeepsTheChannelCount) {
    Codeplug doc = startup();
    doc.chtot = "10";
    ASSERT_TRUE(applyBand(doc, 2));
    EXPECT_EQ(doc.bandLimits().lower, 200);
    EXPECT_EQ(doc.chtot, "10");
    for (int slot = 0; slot < 10; ++slot) EXPECT_EQ(doc.plan[slot].rxfreq, "200.00000");
    expectActiveDefaults(doc, 10, "67.0");
    EXPECT_EQ(doc.plan[10].rxfreq, "401.00000");
    EXPECT_EQ(doc.presets.frequency[24], "200");
}

TEST(Presets, FixedChannelsChangeNothing) {
    Codeplug doc = startup();
    doc.channelsFixed = true;
    const Codeplug before = doc;
    EXPECT_FALSE(applyStandard(doc, 1));
    EXPECT_FALSE(applyBand(doc, 2));
    EXPECT_EQ(doc.plan, before.plan);
    EXPECT_EQ(doc.chtot, before.chtot);
    EXPECT_EQ(doc.settings, before.settings);
}

}  // namespace
