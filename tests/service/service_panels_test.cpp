// Each panel against the simulated radio on the manual clock: what is written is read back,
// what goes wrong is said in the panel's own words.

#include <gtest/gtest.h>

#include "l10n/program_texts.h"
#include "panel_fixture.h"
#include "service/band_panel.h"
#include "service/calibration_panel.h"
#include "service/crystal_panel.h"
#include "service/register_panel.h"
#include "sim/sim_service.h"

namespace {

using ServicePanelsTest = ServicePanelFixture;

TEST_F(ServicePanelsTest, RegistersWrittenIntoTheChipAreReadBack) {
    RegisterPanel panel(channel);
    panel.grid.row(1) = {"3a", "1f00"};
    panel.grid.row(2) = {"5", "FFFF"};
    EXPECT_EQ(run(panel, [&] { return panel.writeRfic(); }),
              QStringList{"box: REG 写 OK!! | RF Reg"});
    EXPECT_EQ(requestHex(), QStringList({"63 05 00 02 3a 1f 00 c3", "63 05 01 02 05 ff ff 6e"}));
    EXPECT_EQ(sim().rfRegister(0x3A), 0x1F00);

    panel.grid = {};
    panel.grid.row(1).address = "5";
    panel.grid.row(2).address = "3A";
    panel.grid.row(3).address = "40";
    EXPECT_EQ(run(panel, [&] { return panel.readRfic(); }),
              QStringList{"box: REG 读 OK!! | RF Reg"});
    EXPECT_EQ(panel.grid.row(1), (RegisterRow{"5", "FFFF"}));
    EXPECT_EQ(panel.grid.row(2), (RegisterRow{"3A", "1F00"}));
    EXPECT_EQ(panel.grid.row(3), (RegisterRow{"40", hexText(sim().rfRegister(0x40))}));
    EXPECT_EQ(requestHex()[3], "62 03 01 3a 05 a5");
    EXPECT_EQ(panel.outcome(), ServiceOutcome::Succeeded);
}

TEST_F(ServicePanelsTest, TheEepromTableIsSavedReadAndCleared) {
    RegisterPanel panel(channel);
    panel.grid.row(1) = {"10", "1234"};
    panel.grid.row(2) = {"11", "5"};
    run(panel, [&] { return panel.saveEeprom(); });
    EXPECT_EQ(sim().eepromRowCount(), 2);

    panel.grid = {};
    EXPECT_EQ(run(panel, [&] { return panel.readEeprom(); }),
              QStringList{"box: REG 读 OK!! | RF Reg"});
    EXPECT_EQ(panel.grid.row(1), (RegisterRow{"10", "1234"}));
    EXPECT_EQ(panel.grid.row(2), (RegisterRow{"11", "5"}));
    EXPECT_EQ(panel.grid.row(10), (RegisterRow{"0", "0"}));
    EXPECT_EQ(requestHex().mid(2, 2), QStringList({"60 03 00 0a 05 72", "60 03 01 0a 05 73"}));

    EXPECT_EQ(run(panel, [&] { return panel.clear(); }), QStringList{"box: Clear OK!! | RF Reg"});
    EXPECT_EQ(panel.grid, RegisterGrid());
    EXPECT_EQ(sim().eepromRowCount(), 0);
    // CLEAR sends the selectors the last row read left.
    EXPECT_EQ(requestHex().last(), "61 03 09 0a 05 7c");
}

TEST_F(ServicePanelsTest, AReadStopsAtTheFirstSilentRowAndKeepsTheRowsBefore) {
    RegisterPanel panel(channel);
    for (RegisterRow& row : panel.grid.rows) row = {"old", "old"};
    silence({4, 5, 6});
    EXPECT_EQ(run(panel, [&] { return panel.readEeprom(); }),
              QStringList{"box: REG 读 出错!! | RF Reg"});
    EXPECT_EQ(panel.outcome(), ServiceOutcome::Failed);
    EXPECT_EQ(panel.grid.row(3), (RegisterRow{"4B", "C00"}));
    EXPECT_EQ(panel.grid.row(4), (RegisterRow{"old", "old"}));
    EXPECT_EQ(requests.size(), 6u);
}

TEST_F(ServicePanelsTest, RegisterWritesAreCheckedBeforeAnythingIsSent) {
    RegisterPanel panel(channel);
    const struct {
        RegisterGrid grid;
        const char* shown;
    } cases[] = {
        {RegisterGrid(), "box: 地址不能为空!! | Reg Empty!!"},
        {[] {
             RegisterGrid g;
             g.row(1) = {"1", "2"};
             g.row(3) = {"9", ""};
             return g;
         }(),
         "box: 数据不能为空!! | Reg Empty!!"},
        {[] {
             RegisterGrid g;
             g.row(1) = {"1", "2"};
             g.row(2) = {"1FF", "2"};
             return g;
         }(),
         "box: register address of row 2: \"1FF\" is not a number from 0 to FF; nothing was "
         "sent | RF Reg"},
    };
    for (const auto& c : cases) {
        panel.grid = c.grid;
        EXPECT_EQ(run(panel, [&] { return panel.writeRfic(); }), QStringList{c.shown});
        EXPECT_EQ(panel.outcome(), ServiceOutcome::Refused);
    }
    EXPECT_TRUE(requests.empty());
}

TEST_F(ServicePanelsTest, AnUnansweredRowEndsTheWriteAfterOneAttempt) {
    RegisterPanel panel(channel);
    panel.grid.row(1) = {"1", "2"};
    panel.grid.row(2) = {"3", "4"};
    panel.grid.row(3) = {"5", "6"};
    silence({2});
    EXPECT_EQ(run(panel, [&] { return panel.saveEeprom(); }),
              QStringList{"box: 请检查串口!! | Reg"});
    EXPECT_EQ(requests.size(), 2u);
}

TEST_F(ServicePanelsTest, CalibrationWrittenIsReadBack) {
    CalibrationPanel panel(channel);
    panel.values[CalibrationField::RssiNarrow] = "100";
    panel.values[CalibrationField::PowerHigh] = "128";
    panel.values[CalibrationField::NoiseWide] = "0";
    EXPECT_EQ(run(panel, [&] { return panel.write(); }), QStringList{"box: OK | Adjust"});
    EXPECT_EQ(sim().calibrationRecord().toHex(),
              "80236428800035"
              "00");

    CalibrationPanel other(channel);
    other.values[CalibrationField::RxPwm] = "7";
    EXPECT_EQ(run(other, [&] { return other.read(); }), QStringList{"box: Read OK | "});
    CalibrationValues expected = panel.values;
    expected[CalibrationField::RxPwm] = "7";
    EXPECT_EQ(other.values.text, expected.text);
}

TEST_F(ServicePanelsTest, CalibrationFailuresSayWhatTheyAre) {
    CalibrationPanel panel(channel);
    silence({1, 2, 3, 4, 5, 6});
    EXPECT_EQ(run(panel, [&] { return panel.read(); }), QStringList{"box: Read Time out | "});
    EXPECT_EQ(radio.requestCount(), 3);
    EXPECT_EQ(run(panel, [&] { return panel.write(); }),
              QStringList({"status: Transmission ERROR", "box: Transmission ERROR | "}));
    EXPECT_EQ(radio.requestCount(), 6);

    panel.values[CalibrationField::NoiseNarrow] = "300";
    EXPECT_EQ(run(panel, [&] { return panel.write(); }),
              QStringList{"box: Noise Narrow: \"300\" is not a number from 0 to 255; nothing was "
                          "sent | Adjust"});
    EXPECT_EQ(radio.requestCount(), 6);
}

TEST_F(ServicePanelsTest, TheVersionTextComesAsLines) {
    CalibrationPanel panel(channel);
    EXPECT_EQ(run(panel, [&] { return panel.readVersion(); }),
              QStringList{"box: SIM RADIO V1.0\nFW 19.0.13 | "});
    EXPECT_EQ(panel.version, QStringList({"SIM RADIO V1.0", "FW 19.0.13"}));
    // Framed replies again afterwards.
    CrystalPanel crystal(channel);
    EXPECT_EQ(run(crystal, [&] { return crystal.read(); }), QStringList{"box: 读 OK!! | 晶体修正"});

    silence({3, 4, 5});
    EXPECT_EQ(run(panel, [&] { return panel.readVersion(); }),
              QStringList{"box: REG 读 出错!! | RF Reg"});
}

TEST_F(ServicePanelsTest, TheBandTableWrittenIsReadBackInFourSegments) {
    BandPanel panel(channel);
    for (int row = 1; row <= BandTable::kRows; ++row) {
        panel.table.cell(row, BandTable::TxVoltage) = byteToVoltageText(100 + row);
        panel.table.cell(row, BandTable::RxVoltage) = byteToVoltageText(200 - row);
        panel.table.cell(row, BandTable::Rssi) = QString::number(30 + row);
    }
    EXPECT_EQ(run(panel, [&] { return panel.write(); }),
              QStringList{"box: write ok!! | Band info"});
    ASSERT_EQ(requests.size(), 4u);
    for (int segment = 0; segment < 4; ++segment) {
        EXPECT_EQ(static_cast<int>(requests[static_cast<size_t>(segment)].second[2]), segment);
    }
    EXPECT_EQ(requests[0].second.mid(4, 20), requests[1].second.mid(4, 20));
    EXPECT_EQ(sim().bandSegment(3)[19], 50);

    BandPanel other(channel);
    other.table.cell(16, 1) = "kept";
    EXPECT_EQ(run(other, [&] { return other.read(); }), QStringList{"box: REG 读 OK!! | RF Reg"});
    for (int row = 1; row <= BandTable::kLabelledRows; ++row) {
        for (int column = 1; column <= 3; ++column) {
            EXPECT_EQ(other.table.cell(row, column), panel.table.cell(row, column));
        }
    }
    EXPECT_EQ(other.table.cell(16, 1), "kept");

    EXPECT_EQ(run(other, [&] { return other.restoreDefaults(); }),
              QStringList{"box: Clear OK!! | RF Reg"});
    EXPECT_EQ(sim().bandSegment(2), SimService::defaultBandSegment(2));
}

TEST_F(ServicePanelsTest, AdjustFillsTheHalvesAndWrites) {
    BandPanel panel(channel);
    EXPECT_EQ(run(panel, [&] { return panel.adjust("1.7", "1.65", "21", "25"); }),
              QStringList{"box: write ok!! | Band info"});
    EXPECT_EQ(sim().bandSegment(0).left(9).toHex(), "838383838383838380");
    EXPECT_EQ(sim().bandSegment(3).mid(7, 9).toHex(), "151919191919191900");

    EXPECT_EQ(run(panel, [&] { return panel.adjust("3.4", "1.65", "21", "25"); }),
              QStringList{"box: TX voltage of row 1: \"3.4\" is not a number from 0 to 3.3; "
                          "nothing was sent | Band info"});
}

TEST_F(ServicePanelsTest, ABandSegmentUnansweredEndsTheWrite) {
    BandPanel panel(channel);
    silence({3, 4, 5});
    EXPECT_EQ(run(panel, [&] { return panel.write(); }),
              QStringList{"box: REG 读 出错!! | Band info"});
    EXPECT_EQ(radio.requestCount(), 5);
}

TEST_F(ServicePanelsTest, TheCrystalTrimWrittenIsReadBack) {
    CrystalPanel panel(channel);
    panel.value = "-3";
    EXPECT_EQ(run(panel, [&] { return panel.write(); }),
              QStringList{"box: 晶体修正 写 OK!! | 晶体修正"});
    EXPECT_EQ(requestHex(), QStringList{"6e 04 00 00 00 fd 6f"});
    EXPECT_EQ(sim().crystalTrim(), -3);
    panel.value = "0";
    run(panel, [&] { return panel.read(); });
    EXPECT_EQ(panel.value, "-3");

    panel.value = "200";
    EXPECT_EQ(run(panel, [&] { return panel.write(); }),
              QStringList{"box: crystal correction: \"200\" is not a number from -127 to 127; "
                          "nothing was sent | 晶体修正"});
    silence({3, 4, 5});
    EXPECT_EQ(run(panel, [&] { return panel.read(); }),
              QStringList{"box: 晶体修正 读 出错!! | 晶体修正"});
}

TEST_F(ServicePanelsTest, ASecondOperationWhileOneWaitsIsRefused) {
    CrystalPanel crystal(channel);
    BandPanel band(channel);
    std::vector<bool> running;
    QObject::connect(&crystal, &ServicePanel::runningChanged,
                     [&](bool on) { running.push_back(on); });
    ASSERT_TRUE(crystal.read());
    EXPECT_FALSE(band.read());
    EXPECT_EQ(band.outcome(), ServiceOutcome::Refused);
    clock.advanceUntil([&] { return !crystal.isRunning(); }, kLongEnough);
    EXPECT_EQ(
        prompts.transcript(),
        QStringList({"box: " + l10n::programText(l10n::ProgramText::LinkBusy, UiLanguage::English) +
                         " | NOTE | warning",
                     "box: 读 OK!! | 晶体修正"}));
    EXPECT_EQ(running, (std::vector<bool>{true, false}));
    EXPECT_EQ(requests.size(), 1u);

    ASSERT_TRUE(band.read());
    band.cancel();
    EXPECT_EQ(band.outcome(), ServiceOutcome::Cancelled);
    EXPECT_TRUE(crystal.read());
    crystal.cancel();
}

}  // namespace
