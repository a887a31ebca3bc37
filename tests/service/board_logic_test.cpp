// The hardware options and the two level tables without a radio: their requests byte for byte,
// the threshold table, what a reply shows and what a write refuses.

#include <gtest/gtest.h>

#include "service/hardware_options.h"
#include "service/volume_tables.h"

namespace {

constexpr UiLanguage kEn = UiLanguage::English;

QString hex(const QByteArray& bytes) {
    return QString::fromLatin1(bytes.toHex(' '));
}

LevelValues levels(LevelTable table, std::initializer_list<std::pair<size_t, const char*>> typed) {
    LevelValues values(table);
    for (const auto& [field, text] : typed) values.text[field] = QString::fromUtf8(text);
    return values;
}

TEST(BoardRequests, HoldTheirBytes) {
    const struct {
        const char* what;
        QByteArray frame;
        const char* expected;
    } cases[] = {
        {"hardware read", hardwareReadRequest({0, 0}), "65 03 00 00 05 6d"},
        {"P2.1 with 2.00", hardwareWriteRequest({1, 4}, {0, 0}, kEn).frame,
         "64 06 00 00 ff 04 02 6d dc"},
        {"P2.4 with 2.40", hardwareWriteRequest({0, 0}, {0, 0}, kEn).frame,
         "64 06 00 00 00 00 02 e9 55"},
        {"a typed pin not in the list", hardwareWriteRequest({2, 10}, {0, 0}, kEn).frame,
         "64 06 00 00 ff 0a 01 74 e8"},
        {"volume read", levelReadRequest(LevelTable::Volume, {0, 0}), "56 03 00 00 07 60"},
        {"volume write, initial values",
         levelWriteRequest(LevelValues(LevelTable::Volume), {0, 0}, kEn).frame,
         "5c 0c 00 00 0a 02 08 0a 0c 0e 10 12 16 0a e2"},
        {"40 typed into Vol01 goes out whatever the slider",
         levelWriteRequest(levels(LevelTable::Volume, {{1, "40"}}), {0, 0}, kEn).frame,
         "5c 0c 00 00 0a 28 08 0a 0c 0e 10 12 16 0a 08"},
        {"player read", levelReadRequest(LevelTable::Player, {0, 0}), "69 03 00 00 05 71"},
        {"player write, initial values",
         levelWriteRequest(LevelValues(LevelTable::Player), {0, 0}, kEn).frame,
         "6a 0b 00 00 00 03 07 0b 0f 13 17 1b 1f fd"},
        {"player write with the selectors left",
         levelWriteRequest(LevelValues(LevelTable::Player), {9, 10}, kEn).frame,
         "6a 0b 09 0a 00 03 07 0b 0f 13 17 1b 1f 10"},
    };
    for (const auto& c : cases) EXPECT_EQ(hex(c.frame), c.expected) << c.what;
}

TEST(HardwareOptions, ThresholdVoltagesBecomeConverterCounts) {
    const int counts[] = {745, 714, 683, 652, 621, 590, 559, 528, 496, 465, 372};
    ASSERT_EQ(thresholdItems().size(), 11);
    for (int index = 0; index < 11; ++index) {
        SCOPED_TRACE(thresholdItems()[index].toStdString());
        EXPECT_EQ(thresholdCount(index), counts[index]);
        const AdValue split = Get_adVal(counts[index]);
        EXPECT_EQ(split.high * 256 + split.low, counts[index]);
    }
    EXPECT_EQ(Get_adVal(496).high, 0x01);
    EXPECT_EQ(Get_adVal(496).low, 0xF0);
}

TEST(HardwareOptions, ListsGivePositionsAndTheirLengthForAnythingElse) {
    const struct {
        int (*check)(const QString&);
        const char* text;
        int index;
    } cases[] = {
        {FM10chk_Combo1, "P2.4", 0}, {FM10chk_Combo1, "P2.1", 1}, {FM10chk_Combo1, "p2.1", 2},
        {FM10chk_Combo1, "", 2},     {FM10chk_Combo2, "2.40", 0}, {FM10chk_Combo2, "1.20", 10},
        {FM10chk_Combo2, "2.1", 11}, {FM10chk_Combo2, "", 11},
    };
    for (const auto& c : cases) EXPECT_EQ(c.check(QString::fromUtf8(c.text)), c.index) << c.text;
}

TEST(HardwareOptions, ARepliedThresholdOutsideTheListShowsEmptyAndIsNotWrittenBack) {
    const struct {
        const char* reply;
        const char* pin;
        const char* threshold;
        bool writable;
    } cases[] = {
        {"0503", "P2.1", "2.10", true},     {"000a", "P2.4", "1.20", true},
        {"ff04ffff", "P2.1", "2.00", true},  // what follows the two bytes is not read
        {"000b", "P2.4", "", false},        {"01ff", "P2.1", "", false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.reply);
        const HardwareOptions options = decodeHardware(QByteArray::fromHex(c.reply));
        EXPECT_EQ(pttPinText(options.PttPinIndex), c.pin);
        EXPECT_EQ(thresholdText(options.PKeyLevelIndex), c.threshold);
        const HardwareWrite write = hardwareWriteRequest(options, {0, 0}, kEn);
        EXPECT_EQ(write.ok(), c.writable);
        if (!c.writable) {
            EXPECT_TRUE(write.frame.isEmpty());
            EXPECT_TRUE(write.error.startsWith("Pkey ad door: choose a threshold from 2.40, 2.30"))
                << write.error.toStdString();
        }
    }
}

TEST(HardwareOptions, LinesGoBackUnchangedAndTextsNotInTheListsAreRefused) {
    HardwareOptions options{1, 3};
    EXPECT_EQ(hardwareValueLines(options), QStringList({"ptt=P2.1", "pkey=2.10"}));
    EXPECT_EQ(hardwareValueLines({0, 11}), QStringList({"ptt=P2.4", "pkey="}));

    QString error;
    bool refused = false;
    HardwareOptions taken;
    EXPECT_TRUE(
        applyHardwareValues({{"ptt", " P2.1"}, {"pkey", "2.10"}}, &taken, &error, &refused, kEn));
    EXPECT_EQ(hardwareValueLines(taken), hardwareValueLines(options));

    // Texts not in the lists change nothing; the empty threshold a read printed is one.
    const struct {
        const char* name;
        const char* value;
        const char* error;
    } refusals[] = {
        {"ptt", "P2.2", "PTT PIN: \"P2.2\" is not one of P2.4, P2.1; nothing was sent"},
        {"pkey", "", "Pkey ad door: \"\" is not one of 2.40, 2.30, 2.20"},
        {"pkey", "2.05", "Pkey ad door: \"2.05\""},
        {"pin", "P2.4", "pin"},
    };
    for (const auto& r : refusals) {
        EXPECT_FALSE(applyHardwareValues({{"pkey", "1.50"}, {r.name, r.value}}, &taken, &error,
                                         &refused, kEn));
        EXPECT_EQ(refused, QLatin1String(r.name) != QLatin1String("pin"));
        EXPECT_TRUE(error.startsWith(r.error)) << error.toStdString();
        EXPECT_EQ(hardwareValueLines(taken), hardwareValueLines(options));
    }
}

TEST(LevelTables, RepliesFillTheBoxesInRecordOrder) {
    const struct {
        LevelTable table;
        const char* reply;
        std::vector<QString> shown;
    } cases[] = {
        {LevelTable::Volume, "0a02080a0c0e1012160a", LevelValues(LevelTable::Volume).text},
        {LevelTable::Player, "0003070b0f13171b1f", LevelValues(LevelTable::Player).text},
        // The player's first byte is not a level, whatever it holds.
        {LevelTable::Player, "ff03070b0f13171b1f", LevelValues(LevelTable::Player).text},
        // Beyond the slider: shown as received.
        {LevelTable::Volume,
         "00ff0102030405060740",
         {"0", "255", "1", "2", "3", "4", "5", "6", "7", "64"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.reply);
        LevelValues values(c.table);
        values.text.assign(values.text.size(), QStringLiteral("old"));
        decodeLevels(QByteArray::fromHex(c.reply), &values);
        EXPECT_EQ(values.text, c.shown);
    }
    EXPECT_EQ(levelSliderScale(LevelTable::Volume).position("255"), 63);
    EXPECT_EQ(levelSliderScale(LevelTable::Player).position("255"), 31);
    EXPECT_EQ(levelSliderScale(LevelTable::Player).position("0"), 1);
}

TEST(LevelTables, AWriteIsRefusedNamingTheFirstBoxThatDoesNotFit) {
    const struct {
        LevelValues values;
        const char* error;
    } cases[] = {
        {levels(LevelTable::Volume, {{3, "256"}}), "Vol03: \"256\" is not a number from 0 to 255"},
        {levels(LevelTable::Volume, {{9, "-1"}, {0, "x"}}), "MIC: \"x\""},
        {levels(LevelTable::Volume, {{9, ""}}), "PMIC: \"\""},
        {levels(LevelTable::Player, {{7, "31.6"}}), ""},  // rounded, within a byte
        {levels(LevelTable::Player, {{7, "255.6"}}), "Vol8: \"255.6\""},
    };
    for (const auto& c : cases) {
        const LevelWrite write = levelWriteRequest(c.values, {0, 0}, kEn);
        SCOPED_TRACE(write.error.toStdString());
        EXPECT_EQ(write.ok(), QString(c.error).isEmpty());
        if (!write.ok()) {
            EXPECT_TRUE(write.error.startsWith(c.error));
        }
    }
}

TEST(LevelTables, LinesGoBackUnchangedAndUnknownNamesChangeNothing) {
    LevelValues read = levels(LevelTable::Volume, {{0, "31"}, {9, "5"}});
    const QStringList lines = levelValueLines(read);
    EXPECT_EQ(lines.first(), "mic=31");
    EXPECT_EQ(lines[1], "vol1=2");
    EXPECT_EQ(lines.last(), "pmic=5");
    QString error;
    std::vector<Assignment> assignments;
    for (const QString& line : lines)
        assignments.push_back({line.section('=', 0, 0), line.section('=', 1)});
    LevelValues taken(LevelTable::Volume);
    EXPECT_TRUE(applyLevelValues(assignments, &taken, &error));
    EXPECT_EQ(taken.text, read.text);

    LevelValues player(LevelTable::Player);
    EXPECT_FALSE(applyLevelValues({{"vol1", "9"}, {"mic", "3"}}, &player, &error));
    EXPECT_EQ(error, "mic");
    EXPECT_EQ(player.text, LevelValues(LevelTable::Player).text);
}

}  // namespace
