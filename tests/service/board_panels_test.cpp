// The hardware, volume and player panels against the simulated radio on the manual clock: what
// is written is read back, what goes wrong is said in each panel's words.

#include <gtest/gtest.h>

#include "link/session_fixture.h"
#include "service/hardware_panel.h"
#include "service/register_panel.h"
#include "service/volume_panels.h"
#include "sim/sim_service.h"

namespace {

constexpr qint64 kLongEnough = 60'000;

class BoardPanelsTest : public ::testing::Test, protected SessionFixture {
protected:
    BoardPanelsTest() { channel.setLanguage(UiLanguage::English); }

    QStringList run(ServicePanel& panel, const std::function<bool()>& start) {
        prompts.clear();
        requests.clear();
        if (start()) clock.advanceUntil([&] { return !panel.isRunning(); }, kLongEnough);
        EXPECT_FALSE(panel.isRunning());
        return prompts.transcript();
    }
    void silence(QSet<int> requestNumbers) {
        SimFaults faults;
        faults.silent = requestNumbers;
        radio.setFaults(faults);
    }
    SimHardwareVolume& sim() { return radio.service().hardwareVolume(); }

    ServiceChannel channel{transport, prompts};
};

TEST_F(BoardPanelsTest, HardwareOptionsWrittenAreReadBack) {
    HardwarePanel panel(channel);
    panel.options = {1, 4};
    EXPECT_EQ(run(panel, [&] { return panel.write(); }),
              QStringList{"box: 硬件选择 写 OK!! | 硬件选择"});
    EXPECT_EQ(requestHex(), QStringList{"64 06 00 00 ff 04 02 6d dc"});
    EXPECT_EQ(sim().thresholdCount(), 621);

    HardwarePanel other(channel);
    EXPECT_EQ(run(other, [&] { return other.read(); }),
              QStringList{"box: 硬件选择 读 OK!! | 硬件选择"});
    EXPECT_EQ(requestHex(), QStringList{"65 03 00 00 05 6d"});
    EXPECT_EQ(other.options.PttPinIndex, 1);
    EXPECT_EQ(other.options.PKeyLevelIndex, 4);

    silence({3, 4, 5, 6, 7, 8});
    EXPECT_EQ(run(other, [&] { return other.read(); }),
              QStringList{"box: 硬件选择 读 出错!! | 硬件选择"});
    EXPECT_EQ(run(other, [&] { return other.write(); }),
              QStringList{"box: 硬件选择 写 出错!! | 硬件选择"});
}

TEST_F(BoardPanelsTest, AThresholdTheListLacksIsReadButNotWrittenBack) {
    sim().setHardware(0, 11);
    HardwarePanel panel(channel);
    run(panel, [&] { return panel.read(); });
    EXPECT_EQ(panel.options.PKeyLevelIndex, 11);
    const QStringList shown = run(panel, [&] { return panel.write(); });
    ASSERT_EQ(shown.size(), 1);
    EXPECT_TRUE(shown[0].startsWith("box: Pkey ad door: choose a threshold from"))
        << shown[0].toStdString();
    EXPECT_EQ(panel.outcome(), ServiceOutcome::Refused);
    EXPECT_TRUE(requests.empty());
    EXPECT_EQ(sim().thresholdIndex(), 11);
}

TEST_F(BoardPanelsTest, TheVolumeRecordWrittenIsReadBack) {
    VolumePanel panel(channel);
    for (size_t i = 0; i < panel.values.text.size(); ++i)
        panel.values.text[i] = QString::number(20 + i);
    EXPECT_EQ(run(panel, [&] { return panel.write(); }), QStringList{"box: OK | Adjust"});
    EXPECT_EQ(sim().volumeRecord().toHex(), "1415161718191a1b1c1d");

    VolumePanel other(channel);
    EXPECT_EQ(run(other, [&] { return other.read(); }), QStringList{"box: Read OK | "});
    EXPECT_EQ(requestHex(), QStringList{"56 03 00 00 07 60"});
    EXPECT_EQ(other.values.text, panel.values.text);
}

TEST_F(BoardPanelsTest, VolumeFailuresSayWhatTheyAre) {
    VolumePanel panel(channel);
    silence({1, 2, 3, 4, 5, 6});
    EXPECT_EQ(run(panel, [&] { return panel.read(); }), QStringList{"box: Read Time out | "});
    EXPECT_EQ(requests.size(), 3u);
    EXPECT_EQ(run(panel, [&] { return panel.write(); }),
              QStringList({"status: Transmission ERROR", "box: Transmission ERROR | "}));

    panel.values.text[5] = "300";
    EXPECT_EQ(run(panel, [&] { return panel.write(); }),
              QStringList{"box: Vol05: \"300\" is not a number from 0 to 255; nothing was sent | "
                          "Adjust"});
    port.close();
    EXPECT_EQ(run(panel, [&] { return panel.read(); }),
              QStringList{"box: Please check COM Port | "});
    EXPECT_TRUE(requests.empty());
}

TEST_F(BoardPanelsTest, ThePlayerStepsWrittenAreReadBack) {
    PlayerPanel panel(channel);
    panel.values.text = {"1", "5", "9", "13", "17", "21", "25", "30"};
    EXPECT_EQ(run(panel, [&] { return panel.write(); }), QStringList{"box: Mp3 写 OK!! | Mp3"});
    EXPECT_EQ(sim().playerLevels().toHex(), "0105090d1115191e");

    PlayerPanel other(channel);
    EXPECT_EQ(run(other, [&] { return other.read(); }), QStringList{"box: Mp3 OK!! | Mp3"});
    EXPECT_EQ(other.values.text, panel.values.text);

    silence({3, 4, 5, 6, 7, 8});
    EXPECT_EQ(run(other, [&] { return other.read(); }), QStringList{"box: Mp3 读 出错!! | Mp3"});
    EXPECT_EQ(run(other, [&] { return other.write(); }), QStringList{"box: Mp3 写 出错!! | Mp3"});
}

TEST_F(BoardPanelsTest, ThePlayerWriteSendsTheSelectorsTheLastRequestLeft) {
    RegisterPanel registers(channel);
    run(registers, [&] { return registers.readEeprom(); });
    PlayerPanel panel(channel);
    run(panel, [&] { return panel.write(); });
    ASSERT_EQ(requests.size(), 1u);
    EXPECT_EQ(requestHex()[0].left(11), "6a 0b 09 0a");

    // A read puts them back to 0 first.
    run(registers, [&] { return registers.readEeprom(); });
    run(panel, [&] { return panel.read(); });
    EXPECT_EQ(requestHex(), QStringList{"69 03 00 00 05 71"});
}

}  // namespace
