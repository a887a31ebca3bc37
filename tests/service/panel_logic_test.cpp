// The panels' rules without a radio: what is refused, how values are shown, the text files.

#include <gtest/gtest.h>

#include "service/band_table.h"
#include "service/calibration.h"
#include "service/crystal.h"
#include "service/register_grid.h"

namespace {

constexpr UiLanguage kEn = UiLanguage::English;

RegisterGrid gridOf(std::initializer_list<RegisterRow> rows) {
    RegisterGrid grid;
    int r = 1;
    for (const RegisterRow& row : rows) grid.row(r++) = row;
    return grid;
}

TEST(RegisterGrid, CountsRowsUpToTheFirstEmptyAddressAndChecksEveryValue) {
    const struct {
        RegisterGrid grid;
        int total, data;
    } cases[] = {
        {gridOf({}), 0, 1},
        {gridOf({{"3A", "1F00"}, {"5", "7"}, {"", ""}, {"40", "1"}}), 2, 1},
        // Row 4 is not sent, but its missing value still stops a write.
        {gridOf({{"3A", "1F00"}, {"5", "7"}, {"", ""}, {"40", ""}}), 2, 0},
        {gridOf({{"", "1"}, {"5", "7"}}), 0, 1},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Chk_RegTot(c.grid), c.total);
        EXPECT_EQ(Chk_RegDt(c.grid), c.data);
    }
    RegisterGrid full;
    for (RegisterRow& row : full.rows) row = {"1", "2"};
    EXPECT_EQ(Chk_RegTot(full), 10);
}

TEST(RegisterGrid, SendsHexadecimalThatFitsAndNamesTheRowAndFieldOtherwise) {
    const struct {
        RegisterRow row;
        int address, value;
        const char* error;
    } cases[] = {
        {{"3A", "1F00"}, 0x3A, 0x1F00, ""},
        {{"ff", "FFFF"}, 0xFF, 0xFFFF, ""},
        {{"0", "8000"}, 0, 0x8000, ""},
        {{"5", ""}, 5, 0, ""},
        {{"100", "1"}, 0, 0, "register address of row 2: \"100\" is not a number from 0 to FF"},
        {{"1", "10000"}, 0, 0, "register data of row 2: \"10000\" is not a number from 0 to FFFF"},
        {{"G1", "1"}, 0, 0, "register address of row 2: \"G1\""},
        {{"0x1", "1"}, 0, 0, "register address of row 2"},
        {{"+1", "1"}, 0, 0, "register address of row 2"},
        {{" 3a ", "00001"}, 0x3A, 1, ""},
        {{"1", "1.5"}, 0, 0, "register data of row 2"},
    };
    for (const auto& c : cases) {
        const RegisterGrid grid = gridOf({{"1", "1"}, c.row});
        const RegisterBytes bytes = registerBytes(grid, 2, kEn);
        if (QString(c.error).isEmpty()) {
            EXPECT_TRUE(bytes.ok()) << bytes.error.toStdString();
            EXPECT_EQ(bytes.address, c.address);
            EXPECT_EQ(bytes.value, c.value);
        } else {
            EXPECT_TRUE(bytes.error.startsWith(c.error)) << bytes.error.toStdString();
        }
    }
}

TEST(RegisterGrid, ShowsRepliesWithoutLeadingZeros) {
    EXPECT_EQ(registerRowFromReply(QByteArray::fromHex("3a1f00")), (RegisterRow{"3A", "1F00"}));
    EXPECT_EQ(registerRowFromReply(QByteArray::fromHex("050007")), (RegisterRow{"5", "7"}));
    EXPECT_EQ(registerRowFromReply(QByteArray::fromHex("000000")), (RegisterRow{"0", "0"}));
}

TEST(RegisterGrid, KeyFilterKeepsTheCellShortAndHexadecimal) {
    const struct {
        int column;
        const char* text;
        QChar key;
        bool accepted;
    } cases[] = {
        {1, "", 'a', true},        {1, "", 'F', true},      {1, "", 'g', false},
        {1, "3", '.', true},       {1, "3A", '1', false},   {1, "3A", QChar(8), true},
        {2, "1F0", '0', true},     {2, "1F00", '0', false}, {2, "", ' ', false},
        {2, "", QChar(13), false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(registerKeyAccepted(c.column, c.text, c.key), c.accepted)
            << c.column << " " << c.text << " " << c.key.unicode();
    }
}

TEST(RegisterGrid, FileHasTwentyLinesAndLoadsBack) {
    const RegisterGrid grid = gridOf({{"3A", "1F00"}, {"5", "7"}, {"10", "FFFF"}});
    const QByteArray file = registerFileBytes(grid);
    EXPECT_EQ(file.count("\r\n"), 20);
    EXPECT_TRUE(file.startsWith("3A\r\n1F00\r\n5\r\n7\r\n10\r\nFFFF\r\n\r\n"));
    QString dropped = "untouched";
    EXPECT_EQ(registerGridFromFile(file, kEn, &dropped), grid);
    EXPECT_TRUE(dropped.isEmpty());
}

TEST(RegisterGrid, ALoadTakesWhatFitsAndSaysWhatItDropped) {
    QByteArray tooLong;
    for (int i = 1; i <= 23; ++i) tooLong += QByteArray::number(i) + "\r\n";
    QString dropped;
    const RegisterGrid grid = registerGridFromFile(tooLong, kEn, &dropped);
    EXPECT_EQ(grid.row(10), (RegisterRow{"19", "20"}));
    EXPECT_EQ(dropped, "The file was not loaded entirely; dropped: 3 lines after line 20");

    const RegisterGrid odd = registerGridFromFile("1\n2\n3", kEn, &dropped);
    EXPECT_EQ(odd.row(1), (RegisterRow{"1", "2"}));
    EXPECT_EQ(odd.row(2), (RegisterRow{}));
    EXPECT_EQ(dropped, "The file was not loaded entirely; dropped: line 3 (it has no pair)");

    // Blank lines at the end are no loss.
    registerGridFromFile(registerFileBytes(grid) + "\r\n\r\n", kEn, &dropped);
    EXPECT_TRUE(dropped.isEmpty());
}

TEST(Calibration, ReadDecodesTheRecordAndLeavesTheReceivePwm) {
    const struct {
        const char* record;
        std::array<const char*, kCalibrationFields> shown;
    } cases[] = {
        {"46232a2880003535", {"42", "40", "70", "35", "99", "53", "53"}},
        // An erased record: the noise bytes read as 0, the others as received.
        {"ffffffffffffffff", {"255", "255", "255", "255", "99", "0", "0"}},
        {"c8000500800000fe", {"5", "0", "200", "0", "99", "0", "254"}},
    };
    for (const auto& c : cases) {
        CalibrationValues values;
        values[CalibrationField::RxPwm] = "99";
        decodeCalibration(QByteArray::fromHex(c.record), &values);
        for (int f = 0; f < kCalibrationFields; ++f) {
            EXPECT_EQ(values.text[static_cast<size_t>(f)], c.shown[static_cast<size_t>(f)])
                << c.record << " field " << f;
        }
    }
}

TEST(Calibration, AWriteIsRefusedNamingTheFirstBoxThatIsNotAByte) {
    const struct {
        CalibrationField field;
        const char* text;
        const char* error;
    } cases[] = {
        {CalibrationField::RssiWide, "", "RSSI Wide: \"\" is not a number from 0 to 255"},
        {CalibrationField::PowerHigh, "256", "High Power: \"256\""},
        {CalibrationField::NoiseWide, "-1", "Noise Wide: \"-1\""},
        {CalibrationField::NoiseNarrow, "4x", "Noise Narrow: \"4x\""},
        {CalibrationField::PowerLow, "255.6", "Low Power: \"255.6\""},
        {CalibrationField::RxPwm, "nonsense", ""},  // not part of the record
        {CalibrationField::PowerLow, "255.4", ""},
    };
    for (const auto& c : cases) {
        CalibrationValues values;
        values[c.field] = c.text;
        const CalibrationWrite write = calibrationWriteRequest(values, 0, 0, kEn);
        const bool expected =
            QString(c.error).isEmpty() ? write.ok() : write.error.startsWith(c.error);
        EXPECT_TRUE(expected) << c.text << " gave " << write.error.toStdString();
        EXPECT_EQ(write.frame.isEmpty(), !write.ok());
    }
    CalibrationValues values;
    values[CalibrationField::RssiWide] = "x";
    EXPECT_TRUE(calibrationWriteRequest(values, 0, 0, UiLanguage::Chinese)
                    .error.startsWith(QString::fromUtf8("RSSI宽带")));
}

TEST(Calibration, VersionTextIsTheLinesUpToTheCarriageReturn) {
    const struct {
        QByteArray buffer;
        QStringList lines;
    } cases[] = {
        {QByteArray::fromHex("410a420d"), {"A", "B"}},
        {"V1.0\nB2\r", {"V1.0", "B2"}},
        {"V1.0\r\nB2\n", {"V1.0"}},
        {"\n\r", {"", ""}},
        {QByteArray(300, 'x'), {}},  // no end within the buffer: nothing to show
    };
    for (const auto& c : cases)
        EXPECT_EQ(versionLines(c.buffer), c.lines) << c.buffer.toStdString();
}

TEST(BandTable, VoltagesTravelAsEightBitsOfThreePointThreeVolts) {
    const struct {
        double volts;
        int byte;
        const char* shown;
    } cases[] = {
        {1.70, 131, "1.7"}, {1.65, 128, "1.66"}, {0, 0, "0"}, {3.3, 255, "3.3"}, {0.01, 1, "0.01"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(voltageToByte(c.volts), c.byte) << c.volts;
        EXPECT_EQ(byteToVoltageText(c.byte), c.shown) << c.byte;
    }
    EXPECT_EQ(bandFrequencyLabel(1), "400.025");
    EXPECT_EQ(bandFrequencyLabel(15), "470.025");
    EXPECT_EQ(bandFrequencyLabel(16), "");
}

TEST(BandTable, KeyFilterKeepsCellsShortAndVoltagesBelowFour) {
    const struct {
        int column;
        const char* text;
        QChar key;
        bool accepted;
    } cases[] = {
        {1, "", '3', true},  {1, "", '4', false},     {2, "1", '9', true},
        {1, "", '.', true},  {1, "1.65", '1', false}, {1, "1.65", QChar(8), true},
        {3, "", '9', true},  {3, "255", '0', false},  {3, "25", 'a', false},
        {2, "", '-', false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(bandKeyAccepted(c.column, c.text, c.key), c.accepted)
            << c.column << " " << c.text << " " << c.key.unicode();
    }
}

TEST(BandTable, SegmentsCarryAColumnEachAndSegmentOneRepeatsSegmentZero) {
    BandTable table;
    for (int row = 1; row <= BandTable::kRows; ++row) {
        table.cell(row, BandTable::TxVoltage) = "1.7";
        table.cell(row, BandTable::RxVoltage) = row == 20 ? "" : "3.3";
        table.cell(row, BandTable::Rssi) = QString::number(row);
    }
    const QByteArray seg0 = bandSegmentData(table, 0, kEn).data;
    EXPECT_EQ(seg0, QByteArray(20, static_cast<char>(131)));
    EXPECT_EQ(bandSegmentData(table, 1, kEn).data, seg0);
    EXPECT_EQ(bandSegmentData(table, 2, kEn).data, QByteArray(19, '\xff') + QByteArray(1, '\0'));
    EXPECT_EQ(bandSegmentData(table, 3, kEn).data.toHex(),
              "0102030405060708090a0b0c0d0e0f1011121314");
}

TEST(BandTable, ACellThatDoesNotFitItsByteIsNamed) {
    const struct {
        int row, column;
        const char* text;
        const char* error;
    } cases[] = {
        {3, BandTable::TxVoltage, "3.31",
         "TX voltage of row 3: \"3.31\" is not a number from 0 to 3.3"},
        {20, BandTable::RxVoltage, "-0.1", "RX voltage of row 20: \"-0.1\""},
        {7, BandTable::Rssi, "256", "RSSI of row 7: \"256\" is not a number from 0 to 255"},
        {7, BandTable::Rssi, "2a", "RSSI of row 7: \"2a\""},
        {1, BandTable::TxVoltage, "1,7", "TX voltage of row 1: \"1,7\""},
    };
    for (const auto& c : cases) {
        BandTable table;
        table.cell(c.row, c.column) = c.text;
        const int segment = c.column == BandTable::TxVoltage ? 0 : c.column;
        const BandSegment data = bandSegmentData(table, segment, kEn);
        EXPECT_TRUE(data.error.startsWith(c.error)) << data.error.toStdString();
        EXPECT_TRUE(data.data.isEmpty());
    }
}

TEST(BandTable, ARepliedSegmentFillsTheFirstFifteenRowsOfItsColumn) {
    BandTable table;
    table.cell(16, BandTable::TxVoltage) = "kept";
    const QByteArray reply(20, static_cast<char>(131));
    applyBandSegment(&table, 0, reply);
    applyBandSegment(&table, 1, QByteArray(20, '\0'));  // read and ignored
    applyBandSegment(&table, 3, reply);
    EXPECT_EQ(table.cell(1, BandTable::TxVoltage), "1.7");
    EXPECT_EQ(table.cell(15, BandTable::TxVoltage), "1.7");
    EXPECT_EQ(table.cell(16, BandTable::TxVoltage), "kept");
    EXPECT_EQ(table.cell(15, BandTable::Rssi), "131");
    EXPECT_EQ(table.cell(1, BandTable::RxVoltage), "");
}

TEST(BandTable, AdjustFillsBothHalvesOfTheBand) {
    BandTable table;
    table.cell(4, BandTable::RxVoltage) = "2.2";
    adjustBand(&table, "1.7", "1.65", "21", "22");
    EXPECT_EQ(table.cell(8, BandTable::TxVoltage), "1.7");
    EXPECT_EQ(table.cell(9, BandTable::TxVoltage), "1.65");
    EXPECT_EQ(table.cell(8, BandTable::Rssi), "21");
    EXPECT_EQ(table.cell(15, BandTable::Rssi), "22");
    EXPECT_EQ(table.cell(16, BandTable::Rssi), "");
    EXPECT_EQ(table.cell(4, BandTable::RxVoltage), "2.2");
}

TEST(BandTable, FileHasSixtyLinesColumnByColumn) {
    BandTable table;
    table.cell(1, 1) = "1.7";
    table.cell(20, 2) = "0.5";
    table.cell(1, 3) = "21";
    const QByteArray file = bandFileBytes(table);
    const QList<QByteArray> lines = file.split('\n');
    ASSERT_EQ(lines.size(), 61);
    EXPECT_EQ(lines[0], "1.7\r");
    EXPECT_EQ(lines[39], "0.5\r");
    EXPECT_EQ(lines[40], "21\r");
    QString dropped;
    EXPECT_EQ(bandTableFromFile(file, kEn, &dropped), table);
    EXPECT_TRUE(dropped.isEmpty());

    bandTableFromFile(file + "9\r\n", kEn, &dropped);
    EXPECT_EQ(dropped, "The file was not loaded entirely; dropped: 1 lines after line 60");
    const BandTable shortFile = bandTableFromFile("1.1\r\n1.2\r\n", kEn, &dropped);
    EXPECT_EQ(shortFile.cell(2, 1), "1.2");
    EXPECT_TRUE(dropped.isEmpty());
}

TEST(Crystal, TrimIsASignedByte) {
    const struct {
        int byte, shown;
    } reads[] = {{0x05, 5}, {0xFB, -5}, {0x80, 0}, {0x7F, 127}, {0x81, -127}, {0, 0}};
    for (const auto& c : reads) {
        QByteArray reply(5, '\x11');
        reply[4] = static_cast<char>(c.byte);
        EXPECT_EQ(decodeCrystal(reply), c.shown) << c.byte;
    }
    const struct {
        const char* text;
        int byte;  // -1: refused
    } writes[] = {{"0", 0x00}, {"-127", 0x81}, {"127", 0x7F}, {"-1", 0xFF}, {" 5 ", 0x05},
                  {"128", -1}, {"-128", -1},   {"", -1},      {"abc", -1}};
    for (const auto& c : writes) {
        const CrystalWrite write = crystalWriteRequest(c.text, {0, 0}, kEn);
        if (c.byte < 0) {
            EXPECT_TRUE(write.error.startsWith("crystal correction: \"" + QString(c.text) +
                                               "\" is not a number from -127 to 127"))
                << write.error.toStdString();
        } else {
            ASSERT_TRUE(write.ok()) << c.text;
            EXPECT_EQ(static_cast<quint8>(write.frame[5]), c.byte) << c.text;
        }
    }
}

}  // namespace
