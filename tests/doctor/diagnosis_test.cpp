#include "doctor/diagnosis.h"

#include <gtest/gtest.h>

#include <functional>

#include "doctor/fake_machine.h"
#include "doctor/report_text.h"

namespace {

using Access = SerialDeviceReport::Access;

struct DiagnosisCase {
    const char* name;
    std::function<void(FakeMachine&)> describe;  // on top of one CH340 at /dev/ttyUSB0, 0660
    Access access;
    bool brltty;
    bool modemManager;
    bool counterfeit;
    QList<int> holderPids;
    QList<Fix> fixes;
};

// The case's name is its whole description in test listings.
void PrintTo(const DiagnosisCase& c, std::ostream* os) {
    *os << c.name;
}

class DiagnosisTest : public ::testing::TestWithParam<DiagnosisCase> {};

TEST_P(DiagnosisTest, FindsTheFaultAndItsFix) {
    const DiagnosisCase& c = GetParam();
    FakeMachine machine;
    machine.addUsbSerial(QStringLiteral("ttyUSB0"), "1a86", "7523", "ch341-uart");
    c.describe(machine);
    const Diagnosis diagnosis = diagnose(machine.facts());

    ASSERT_EQ(diagnosis.devices.size(), 1);
    const SerialDeviceReport& device = diagnosis.devices.first();
    EXPECT_EQ(device.path, QStringLiteral("/dev/ttyUSB0"));
    EXPECT_EQ(diagnosis.userName, QStringLiteral("alice"));
    EXPECT_EQ(device.access, c.access);
    EXPECT_EQ(device.brlttyMayGrab, c.brltty);
    EXPECT_EQ(device.modemManagerMayProbe, c.modemManager);
    EXPECT_EQ(device.chip.counterfeitProne, c.counterfeit);
    QList<int> pids;
    for (const PortHolder& holder : device.holders) pids << holder.pid;
    EXPECT_EQ(pids, c.holderPids);
    EXPECT_EQ(diagnosis.fixes, c.fixes);
}

const QString kBrlttyRule = QStringLiteral("/usr/lib/udev/rules.d/85-brltty.rules");
const QByteArray kBrlttyRuleText =
    "# Braille displays behind generic USB serial adapters\n"
    "ENV{PRODUCT}==\"1a86/7523/*\", ENV{BRLTTY_BRAILLE_DRIVER}=\"bm\", GOTO=\"brltty_usb_run\"\n";

INSTANTIATE_TEST_SUITE_P(
    Machines, DiagnosisTest,
    ::testing::Values(
        DiagnosisCase{"Healthy", [](FakeMachine&) {}, Access::Granted, false, false, false, {}, {}},
        DiagnosisCase{"NotInDialout",
                      [](FakeMachine& m) { m.setUser(false, false); },
                      Access::NotInGroup,
                      false,
                      false,
                      false,
                      {},
                      {{Fix::JoinGroup, QStringLiteral("dialout")}}},
        DiagnosisCase{"AddedToDialoutButNotLoggedInAgain",
                      [](FakeMachine& m) { m.setUser(true, false); },
                      Access::NeedsRelogin,
                      false,
                      false,
                      false,
                      {},
                      {{Fix::LogInAgain, QStringLiteral("dialout")}}},
        DiagnosisCase{"OwnerOnlyMode",
                      [](FakeMachine& m) { m.addNode(QStringLiteral("ttyUSB0"), 0600); },
                      Access::ModeTooTight,
                      false,
                      false,
                      false,
                      {},
                      {{Fix::InstallUdevRule, {}}}},
        DiagnosisCase{"OwnerOnlyModeWithOurRuleInstalled",
                      [](FakeMachine& m) {
                          m.addNode(QStringLiteral("ttyUSB0"), 0600);
                          m.write("/usr/lib/udev/rules.d/60-radioprog.rules", "# rule\n");
                      },
                      Access::ModeTooTight,
                      false,
                      false,
                      false,
                      {},
                      {{Fix::ReloadUdevRule, {}}}},
        DiagnosisCase{"BrlttyClaimsTheAdapter",
                      [](FakeMachine& m) {
                          m.write("/usr/bin/brltty", "");
                          m.write(kBrlttyRule, kBrlttyRuleText);
                      },
                      Access::Granted,
                      true,
                      false,
                      false,
                      {},
                      {{Fix::MaskBrltty, QStringLiteral("85-brltty.rules")}}},
        DiagnosisCase{"BrlttyRuleMasked",
                      [](FakeMachine& m) {
                          m.write("/usr/bin/brltty", "");
                          m.write(kBrlttyRule, kBrlttyRuleText);
                          m.link("/etc/udev/rules.d/85-brltty.rules", "/dev/null");
                      },
                      Access::Granted,
                      false,
                      false,
                      false,
                      {},
                      {}},
        DiagnosisCase{"BrlttyRuleForOtherAdapters",
                      [](FakeMachine& m) {
                          m.write("/usr/bin/brltty", "");
                          m.write(kBrlttyRule, "ENV{PRODUCT}==\"403/6001/*\", GOTO=\"x\"\n");
                      },
                      Access::Granted,
                      false,
                      false,
                      false,
                      {},
                      {}},
        DiagnosisCase{"ModemManagerWillProbe",
                      [](FakeMachine& m) {
                          m.write("/usr/sbin/ModemManager", "");
                          m.addProcess(600, "ModemManager");
                          m.write("/run/udev/data/c188:0", "E:ID_VENDOR_ID=1a86\n");
                      },
                      Access::Granted,
                      false,
                      true,
                      false,
                      {},
                      {{Fix::InstallUdevRule, {}}}},
        DiagnosisCase{"ModemManagerToldToKeepAway",
                      [](FakeMachine& m) {
                          m.write("/usr/sbin/ModemManager", "");
                          m.write("/run/udev/data/c188:0", "E:ID_MM_DEVICE_IGNORE=1\n");
                      },
                      Access::Granted,
                      false,
                      false,
                      false,
                      {},
                      {}},
        DiagnosisCase{"CounterfeitPronePl2303",
                      [](FakeMachine& m) {
                          m.write("/sys/devices/pci0000:00/usb1/1-1/idVendor", "067b\n");
                          m.write("/sys/devices/pci0000:00/usb1/1-1/idProduct", "2303\n");
                      },
                      Access::Granted,
                      false,
                      false,
                      true,
                      {},
                      {{Fix::ReplaceAdapter, QStringLiteral("/dev/ttyUSB0")}}},
        DiagnosisCase{"RecentPl2303",
                      [](FakeMachine& m) {
                          m.write("/sys/devices/pci0000:00/usb1/1-1/idVendor", "067b\n");
                          m.write("/sys/devices/pci0000:00/usb1/1-1/idProduct", "23a3\n");
                      },
                      Access::Granted,
                      false,
                      false,
                      false,
                      {},
                      {}},
        DiagnosisCase{"HeldByAnotherProgram",
                      [](FakeMachine& m) {
                          m.addProcess(4242, "minicom", QStringLiteral("/dev/ttyUSB0"));
                          m.addProcess(4243, "bash", QStringLiteral("/dev/pts/1"));
                      },
                      Access::Granted,
                      false,
                      false,
                      false,
                      {4242},
                      {{Fix::CloseHolder, QStringLiteral("minicom (4242)")}}},
        DiagnosisCase{"LockedAndOpenBySameProgram",
                      [](FakeMachine& m) {
                          m.addProcess(4242, "minicom", QStringLiteral("/dev/ttyUSB0"));
                          m.write("/run/lock/LCK..ttyUSB0", "      4242\n");
                      },
                      Access::Granted,
                      false,
                      false,
                      false,
                      {4242},
                      {{Fix::CloseHolder, QStringLiteral("minicom (4242)")}}},
        DiagnosisCase{"StaleLockFile",
                      [](FakeMachine& m) { m.write("/var/lock/LCK..ttyUSB0", "      999\n"); },
                      Access::Granted,
                      false,
                      false,
                      false,
                      {999},
                      {{Fix::RemoveStaleLock, QStringLiteral("/var/lock/LCK..ttyUSB0")}}}),
    [](const ::testing::TestParamInfo<DiagnosisCase>& info) { return info.param.name; });

TEST(Diagnosis, DescribesTheAdapter) {
    FakeMachine machine;
    machine.addUsbSerial(QStringLiteral("ttyUSB3"), "10c4", "ea60", "cp210x", 0660, 3);
    const Diagnosis diagnosis = diagnose(machine.facts());
    ASSERT_EQ(diagnosis.devices.size(), 1);
    const SerialDeviceReport& device = diagnosis.devices.first();
    EXPECT_EQ(device.byId,
              QStringLiteral("/dev/serial/by-id/usb-Maker_USB_Serial_ttyUSB3-if00-port0"));
    EXPECT_EQ(device.vendorId + ":" + device.productId, QStringLiteral("10c4:ea60"));
    EXPECT_EQ(device.chip.family, UsbChip::Cp210x);
    EXPECT_EQ(device.driver, QStringLiteral("cp210x"));
    EXPECT_EQ(device.group, QStringLiteral("dialout"));
}

TEST(Diagnosis, ListsOnlyTtysWithHardwareBehindThem) {
    FakeMachine machine;
    machine.addUsbSerial(QStringLiteral("ttyUSB0"), "0403", "6001", "ftdi_sio");
    machine.mkdir("/sys/class/tty/tty1");          // a console: no device behind it
    machine.mkdir("/sys/class/tty/ttyS0/device");  // a built-in port with a chip
    machine.write("/sys/class/tty/ttyS0/type", "4\n");
    machine.mkdir("/sys/class/tty/ttyS5/device");  // reserved, no chip found
    machine.write("/sys/class/tty/ttyS5/type", "0\n");
    EXPECT_EQ(serialDevicePaths(machine.facts()),
              (QStringList{QStringLiteral("/dev/ttyS0"), QStringLiteral("/dev/ttyUSB0")}));
}

TEST(Diagnosis, NamesADeviceGivenByItsStableNameOnce) {
    FakeMachine machine;
    machine.addUsbSerial(QStringLiteral("ttyUSB0"), "1a86", "7523", "ch341-uart");
    machine.addNode(QStringLiteral("pts/7"), 0620);
    const Diagnosis diagnosis =
        diagnose(machine.facts(),
                 {QStringLiteral("/dev/serial/by-id/usb-Maker_USB_Serial_ttyUSB0-if00-port0"),
                  QStringLiteral("/dev/pts/7")});
    ASSERT_EQ(diagnosis.devices.size(), 2);
    EXPECT_EQ(diagnosis.devices.at(1).path, QStringLiteral("/dev/pts/7"));
    EXPECT_FALSE(diagnosis.devices.at(1).isUsb());
}

TEST(Diagnosis, NoDeviceAsksForTheCable) {
    FakeMachine machine;
    EXPECT_EQ(diagnose(machine.facts()).fixes, (QList<Fix>{{Fix::PlugInCable, {}}}));
}

TEST(DiagnosisText, GivesTheCommandsToType) {
    FakeMachine machine;
    machine.addUsbSerial(QStringLiteral("ttyUSB0"), "1a86", "7523", "ch341-uart");
    machine.setUser(false, false);
    machine.write("/usr/bin/brltty", "");
    machine.write(kBrlttyRule, kBrlttyRuleText);
    const QStringList lines = diagnosisLines(diagnose(machine.facts()), UiLanguage::English);
    const QString text = lines.join('\n');
    EXPECT_TRUE(lines.contains(QStringLiteral("       sudo usermod -aG dialout $USER")))
        << qPrintable(text);
    EXPECT_TRUE(lines.contains(
        QStringLiteral("       sudo ln -s /dev/null /etc/udev/rules.d/85-brltty.rules")))
        << qPrintable(text);
    EXPECT_TRUE(text.contains(QStringLiteral("log out and in again"))) << qPrintable(text);
    EXPECT_TRUE(text.contains(QStringLiteral("mode 0660"))) << qPrintable(text);
}

}  // namespace
