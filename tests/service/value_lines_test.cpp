// The command line's name=value lines: what a read prints, a write takes back.

#include "service/value_lines.h"

#include <gtest/gtest.h>

namespace {

std::vector<Assignment> assignments(const QStringList& lines) {
    QString error;
    const auto parsed = parseAssignments(lines, &error);
    EXPECT_TRUE(parsed.has_value()) << error.toStdString();
    return parsed.value_or(std::vector<Assignment>{});
}

TEST(ValueLines, WhatAReadPrintsAWriteTakesBack) {
    RegisterGrid grid;
    grid.row(1) = {"3A", "1F00"};
    grid.row(2) = {"5", ""};
    RegisterGrid back;
    QString error;
    ASSERT_TRUE(applyRegisterValues(assignments(registerValueLines(grid)), &back, &error));
    EXPECT_EQ(back, grid);

    CalibrationValues values;
    values[CalibrationField::NoiseWide] = "0";
    values[CalibrationField::RxPwm] = "1";
    CalibrationValues calibrationBack;
    ASSERT_TRUE(applyCalibrationValues(assignments(calibrationValueLines(values)), &calibrationBack,
                                       &error));
    values[CalibrationField::RxPwm] = CalibrationValues()[CalibrationField::RxPwm];
    EXPECT_EQ(calibrationBack.text, values.text);

    BandTable table;
    table.cell(20, 3) = "9";
    table.cell(1, 1) = "1.7";
    EXPECT_EQ(bandValueLines(table).size(), 45);
    BandTable bandBack;
    ASSERT_TRUE(
        applyBandValues(assignments(bandValueLines(table, BandTable::kRows)), &bandBack, &error));
    EXPECT_EQ(bandBack, table);
}

TEST(ValueLines, UnknownNamesChangeNothing) {
    const struct {
        const char* line;
        int panel;  // 0 registers, 1 calibration, 2 band
    } cases[] = {
        {"addr11=1", 0}, {"addr0=1", 0}, {"value1=1", 0}, {"rx-pwm=3", 1},
        {"rssi=3", 1},   {"tx21=1", 2},  {"tx=1", 2},     {"rssi-narrow=1", 2},
    };
    for (const auto& c : cases) {
        // A good name first, which must not be applied either.
        const char* const good[] = {"addr1=7", "rssi-wide=7", "tx1=1"};
        const std::vector<Assignment> values = assignments({good[c.panel], c.line});
        RegisterGrid grid;
        CalibrationValues calibration;
        BandTable table;
        QString name;
        const bool applied = c.panel == 0   ? applyRegisterValues(values, &grid, &name)
                             : c.panel == 1 ? applyCalibrationValues(values, &calibration, &name)
                                            : applyBandValues(values, &table, &name);
        EXPECT_FALSE(applied) << c.line;
        EXPECT_EQ(name + "=", QString(c.line).section('=', 0, 0) + "=");
        EXPECT_EQ(grid, RegisterGrid());
        EXPECT_EQ(calibration.text, CalibrationValues().text);
        EXPECT_EQ(table, BandTable());
    }
    QString error;
    EXPECT_FALSE(parseAssignments({"a=1", "nonsense"}, &error).has_value());
    EXPECT_EQ(error, "nonsense");
    // Names in any case; values as given, even empty.
    const std::vector<Assignment> values = assignments({"DATA2=ff", "addr2="});
    EXPECT_EQ(values[0], Assignment("data2", "ff"));
    EXPECT_EQ(values[1], Assignment("addr2", ""));
}

}  // namespace
