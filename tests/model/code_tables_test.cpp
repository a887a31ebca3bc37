#include "model/code_tables.h"

#include <gtest/gtest.h>

#include "model/settings.h"

namespace {

TEST(CodeTables, NormalTablePositions) {
    const QStringList table = NormalCodeTable();
    ASSERT_EQ(table.size(), kNormalCodeCount);
    const std::pair<int, const char*> positions[] = {{0, "OFF"},    {1, "67.0"},  {12, "100"},
                                                     {38, "250.3"}, {39, "D023"}, {99, "D503"}};
    for (const auto& [position, text] : positions) EXPECT_EQ(table[position], text) << position;
    EXPECT_FALSE(table.contains("D506"));
    EXPECT_FALSE(table.contains("I023"));
}

TEST(CodeTables, ProfessionalTablePositions) {
    const QStringList table = ProfessionalCodeTable(UiLanguage::Chinese);
    ASSERT_EQ(table.size(), kProfessionalCodeCount);
    const std::pair<int, const char*> positions[] = {
        {0, "OFF"},    {2, "69.3"},   {50, "254.1"}, {51, "95.2"},  {52, "125.4"},
        {53, "143.1"}, {54, "175.1"}, {55, "245.1"}, {56, "D023"},  {160, "D754"},
        {161, "I023"}, {162, "I025"}, {265, "I754"}, {267, "CDCSS"}};
    for (const auto& [position, text] : positions) EXPECT_EQ(table[position], text) << position;
    EXPECT_EQ(table[266], QString::fromUtf8("自定义"));
    EXPECT_EQ(ProfessionalCodeTable(UiLanguage::English)[266], "Custom");
    // Every inverted code is its normal code + 105.
    for (int i = 56; i <= 160; ++i) EXPECT_EQ(table[i + 105].mid(1), table[i].mid(1)) << i;
}

TEST(CodeTables, ModeChoosesTheTable) {
    EXPECT_EQ(buildCodeTable(0, UiLanguage::English).size(), kNormalCodeCount);
    EXPECT_EQ(buildCodeTable(1, UiLanguage::English).size(), kProfessionalCodeCount);
    EXPECT_EQ(buildCodeTable(2, UiLanguage::English).size(), kNormalCodeCount);
}

TEST(CodeTables, NumberAndTextConvert) {
    const QStringList table = NormalCodeTable();
    EXPECT_EQ(OptionIndexLookup(table, "D023"), 39);
    EXPECT_EQ(OptionIndexLookup(table, "I023"), 100);  // not in the list: the list size
    EXPECT_EQ(codeText(table, 1), "67.0");
    EXPECT_EQ(codeText(table, 100), "");
    EXPECT_TRUE(isCustomToneText("Custom"));
    EXPECT_TRUE(isCustomToneText(QString::fromUtf8("自定义")));
    EXPECT_FALSE(isCustomToneText("custom"));
}

}  // namespace
