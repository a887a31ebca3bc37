#include <gtest/gtest.h>

#include "doctor/port_finder.h"
#include "doctor/radio_probe.h"

namespace {

using Outcome = RadioProbe::Outcome;
using C = ProbeCause;

SerialDeviceReport pl2303HeldAndProbed() {
    SerialDeviceReport device;
    device.path = QStringLiteral("/dev/ttyUSB0");
    device.vendorId = QStringLiteral("067b");
    device.chip = UsbChip{UsbChip::Pl2303, true};
    device.holders << PortHolder{12, QStringLiteral("minicom"), {}};
    device.modemManagerMayProbe = true;
    return device;
}

TEST(ProbeCauses, MostLikelyFirst) {
    const SerialDeviceReport plain;
    const SerialDeviceReport troubled = pl2303HeldAndProbed();
    struct Case {
        const char* name;
        Outcome outcome;
        PortOpenError openError;
        const SerialDeviceReport* device;
        int devices;
        QList<C> causes;
    } cases[] = {
        {"answered", Outcome::Answered, PortOpenError::None, &plain, 1, {}},
        {"not opened", Outcome::NotRun, PortOpenError::PortInUse, &plain, 1, {C::PortNotOpened}},
        {"silent, one port",
         Outcome::Silent,
         PortOpenError::None,
         &plain,
         1,
         {C::RadioOff, C::PlugNotSeated, C::CableForOtherRadio}},
        {"silent, several ports",
         Outcome::Silent,
         PortOpenError::None,
         nullptr,
         3,
         {C::RadioOff, C::PlugNotSeated, C::WrongPort, C::CableForOtherRadio}},
        {"silent, troubled adapter",
         Outcome::Silent,
         PortOpenError::None,
         &troubled,
         1,
         {C::RadioOff, C::PlugNotSeated, C::OtherProgram, C::ModemManager, C::CounterfeitChip,
          C::CableForOtherRadio}},
        // Bytes came back: what shares the line is more likely than a radio that is off.
        {"garbled, troubled adapter",
         Outcome::Garbled,
         PortOpenError::None,
         &troubled,
         1,
         {C::OtherProgram, C::ModemManager, C::CounterfeitChip, C::CableForOtherRadio,
          C::PlugNotSeated}},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(probeCauses(c.outcome, c.openError, c.device, c.devices), c.causes) << c.name;
    }
}

TEST(PortFinder, TheCableIsThePortThatComesOrGoes) {
    using Step = PortFinder::Step;
    const QString s0 = QStringLiteral("/dev/ttyS0");
    const QString u0 = QStringLiteral("/dev/ttyUSB0");
    const QString u1 = QStringLiteral("/dev/ttyUSB1");
    struct Case {
        const char* name;
        QStringList before;
        QList<QStringList> scans;
        Step step;
        QString port;
        QStringList candidates;
    } cases[] = {
        {"nothing changes", {s0}, {{s0}, {s0}}, Step::Waiting, {}, {}},
        {"plugged in", {s0}, {{s0}, {s0, u0}}, Step::Found, u0, {}},
        {"unplugged", {s0, u0}, {{s0}}, Step::Unplugged, u0, {}},
        // Back under another name: the name it comes back with is the one that counts.
        {"unplugged and back as another",
         {s0, u0, u1},
         {{s0, u1}, {s0, u1, u0}},
         Step::Found,
         u0,
         {}},
        {"two at once", {s0}, {{s0, u0, u1}}, Step::Ambiguous, {}, {u0, u1}},
        {"found stays found", {s0}, {{s0, u0}, {s0}}, Step::Found, u0, {}},
    };
    for (const Case& c : cases) {
        PortFinder finder;
        finder.start(c.before);
        for (const QStringList& scan : c.scans) finder.update(scan);
        EXPECT_EQ(finder.step(), c.step) << c.name;
        if (c.step != Step::Ambiguous) {
            EXPECT_EQ(finder.port(), c.port) << c.name;
        }
        EXPECT_EQ(finder.candidates(), c.candidates) << c.name;
    }
}

}  // namespace
