#include "link/port_control.h"

#include <gtest/gtest.h>

#include "support/fake_port.h"
#include "support/manual_clock.h"
#include "support/recording_prompts.h"

namespace {

QStringList devices(int count) {
    QStringList list;
    for (int i = 0; i < count; ++i) list << QStringLiteral("/dev/ttyUSB%1").arg(i);
    return list;
}

TEST(PortCatalogue, NumbersDevicesInAStableOrderWithPinnedNumbersFirst) {
    EXPECT_EQ(
        PortCatalogue::stableOrder(
            {"/dev/ttyUSB10", "/dev/ttyUSB2", "/dev/ttyACM0", "/dev/ttyS1", "/dev/ttyS0"}),
        QStringList({"/dev/ttyACM0", "/dev/ttyS0", "/dev/ttyS1", "/dev/ttyUSB2", "/dev/ttyUSB10"}));

    const PortCatalogue catalogue({"/dev/ttyS0", "/dev/ttyUSB0", "/dev/ttyUSB1"},
                                  {{1, "/dev/ttyUSB1"}, {7, "/dev/pts/3"}});
    EXPECT_EQ(catalogue.deviceFor(1), "/dev/ttyUSB1");
    EXPECT_EQ(catalogue.deviceFor(2), "/dev/ttyS0");
    EXPECT_EQ(catalogue.deviceFor(3), "/dev/ttyUSB0");
    EXPECT_EQ(catalogue.deviceFor(4), "");
    EXPECT_EQ(catalogue.deviceFor(7), "/dev/pts/3");
    EXPECT_EQ(catalogue.numberOf("/dev/ttyUSB0"), 3);
    EXPECT_EQ(catalogue.numberOf("/dev/ttyUSB9"), std::nullopt);
}

TEST(PortCatalogue, ACablePluggedInLaterTakesTheLowestFreeNumber) {
    PortCatalogue catalogue({"/dev/ttyS0"}, {{2, "/dev/pts/3"}});
    EXPECT_EQ(catalogue.add("/dev/ttyUSB0"), 3);
    EXPECT_EQ(catalogue.add("/dev/ttyUSB0"), 3);  // known already
    EXPECT_EQ(catalogue.add("/dev/pts/3"), 2);
    EXPECT_EQ(catalogue.deviceFor(1), "/dev/ttyS0");
}

TEST(PortArgument, TellsNumbersDevicesAndTheSimulatorApart) {
    const struct {
        const char* text;
        std::optional<PortArgument::Kind> kind;
        int number;
    } cases[] = {
        {"COM5", PortArgument::Number, 5},
        {"com12", PortArgument::Number, 12},
        {"sim", PortArgument::Simulator, 0},
        {"/dev/pts/4", PortArgument::Device, 0},
        {"COMX", std::nullopt, 0},
        {"ttyUSB0", std::nullopt, 0},
        {"", std::nullopt, 0},
    };
    for (const auto& c : cases) {
        const auto parsed = PortArgument::parse(c.text);
        ASSERT_EQ(parsed.has_value(), c.kind.has_value()) << c.text;
        if (!parsed) continue;
        EXPECT_EQ(parsed->kind, *c.kind) << c.text;
        EXPECT_EQ(parsed->number, c.number) << c.text;
    }
}

class PortControlTest : public ::testing::Test {
protected:
    ManualClock clock;
    FakePort port{clock};
    RecordingPrompts prompts;
    PortControl control{port, PortCatalogue(devices(16)), prompts, UiLanguage::English};
};

TEST_F(PortControlTest, AScanListsThePortsThatOpenAndLeavesThePortClosed) {
    for (int i = 0; i < 16; ++i) {
        if (i != 0 && i != 1 && i != 3) port.absent.insert(QStringLiteral("/dev/ttyUSB%1").arg(i));
    }
    port.busy.insert("/dev/ttyUSB1");  // held by another program: not listed either
    control.check_uart();
    EXPECT_EQ(control.comboItems(), QStringList({"COM1", "COM4"}));
    EXPECT_EQ(control.comboText(), "COM1");
    EXPECT_FALSE(port.isOpen());
    EXPECT_EQ(control.deviceToolTip(1), "/dev/ttyUSB3");
}

TEST_F(PortControlTest, ChoosingAPortThatCannotOpenWarnsAndUnchecksEverything) {
    control.com_sel(2);
    ASSERT_EQ(control.checkedItem(), 2);
    port.absent.insert("/dev/ttyUSB2");  // COM3
    port.busy.insert("/dev/ttyUSB4");    // COM5
    for (int number : {3, 5, 0}) {
        prompts.clear();
        control.com_sel(number);
        EXPECT_EQ(prompts.transcript(),
                  QStringList({"box: COM error | NOTE | warning", "status: COM Closed"}))
            << number;
        EXPECT_EQ(control.checkedItem(), 0) << number;
        EXPECT_FALSE(port.isOpen()) << number;
    }
}

TEST_F(PortControlTest, APortThisUserMayNotOpenSaysWhyAndWhatToDo) {
    port.denied.insert("/dev/ttyUSB0");
    control.selectDevice("/dev/ttyUSB0");
    ASSERT_EQ(prompts.boxes().size(), 1u);
    EXPECT_EQ(prompts.boxes()[0].text,
              "COM error\nPermission denied\nThis user may not open the port: run sudo usermod "
              "-aG dialout $USER, then log in again");
}

TEST_F(PortControlTest, ChoosingAPortOpensItChecksItAndNamesIt) {
    control.check_uart();
    control.com_sel(12);
    EXPECT_TRUE(port.isOpen());
    EXPECT_EQ(port.device(), "/dev/ttyUSB11");
    EXPECT_FALSE(port.receiveNotification());
    EXPECT_EQ(control.checkedItem(), 12);
    EXPECT_EQ(control.comboText(), "COM12");
    EXPECT_EQ(prompts.statusTexts(), QStringList({"COM12"}));

    control.setLanguage(UiLanguage::Chinese);
    control.Combo18_Click(4);
    EXPECT_EQ(port.device(), "/dev/ttyUSB4");
    EXPECT_EQ(prompts.statusTexts().last(), "串口5");
}

TEST_F(PortControlTest, NumbersOutsideTheMenuCheckComxAndSelectNothing) {
    control.check_uart();
    EXPECT_EQ(control.get_ComNum(11), 12);
    control.com_check_set(20);
    EXPECT_EQ(control.checkedItem(), PortControl::kComxItem);
    EXPECT_EQ(control.comboText(), "COM12");
}

TEST_F(PortControlTest, TheComxDialogRemembersTheLastConfirmedNumber) {
    const PortCatalogue catalogue(devices(16), {{23, "/dev/pts/9"}});
    PortControl withPinned(port, catalogue, prompts, UiLanguage::English);
    EXPECT_EQ(withPinned.comxDialogOpened(), 17);
    withPinned.comxDialogConfirmed(23);
    EXPECT_EQ(prompts.transcript(), QStringList({"status: COM23", "box: COM23  OK | COM"}));
    EXPECT_EQ(withPinned.checkedItem(), PortControl::kComxItem);
    EXPECT_EQ(withPinned.comxDialogOpened(), 23);

    prompts.clear();
    withPinned.comxDialogConfirmed(0);  // no port 0 anywhere
    EXPECT_EQ(prompts.transcript(),
              QStringList({"box: COM error | NOTE | warning", "status: COM Closed"}));
    EXPECT_EQ(withPinned.checkedItem(), 0);
    EXPECT_EQ(withPinned.comxDialogOpened(), 17);
}

TEST_F(PortControlTest, StartUpOpensTheFirstPortFound) {
    port.absent.insert("/dev/ttyUSB0");
    EXPECT_EQ(control.openFirstScannedPort(), PortOpenError::None);
    EXPECT_EQ(port.device(), "/dev/ttyUSB1");
    EXPECT_EQ(control.checkedItem(), 2);
    control.showPortState();
    EXPECT_EQ(prompts.statusTexts().last(), "COM Open");

    for (int i = 0; i < 16; ++i) port.absent.insert(QStringLiteral("/dev/ttyUSB%1").arg(i));
    EXPECT_EQ(control.openFirstScannedPort(), PortOpenError::NoSuchPort);
    control.showPortState();
    EXPECT_EQ(prompts.statusTexts().last(), "COM Closed");
}

}  // namespace
