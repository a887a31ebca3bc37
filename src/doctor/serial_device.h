#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "doctor/processes.h"
#include "doctor/system_facts.h"
#include "doctor/usb_chips.h"

// What the machine tells about one serial device, and whether this user can use it.
struct SerialDeviceReport {
    // Why the user cannot open the device, when they cannot.
    enum class Access {
        Granted,
        Missing,       // no device node
        NotInGroup,    // the device's group may use it and the user is not in that group
        NeedsRelogin,  // the user was added to the group but this session predates it
        ModeTooTight,  // neither the group nor anyone else may use it: only its owner
    };

    QString path;      // /dev/ttyUSB0
    QString byId;      // its stable name under /dev/serial/by-id, when it has one
    QString driver;    // the kernel driver (ch341, cp210x, ftdi_sio, pl2303, cdc_acm, …)
    QString vendorId;  // four hex digits; empty for a device not on USB
    QString productId;
    QString manufacturer;  // as the USB device names itself
    QString product;
    UsbChip chip;

    Access access = Access::Granted;
    QString group;  // the device node's group
    unsigned mode = 0;
    QList<PortHolder> holders;

    bool brlttyMayGrab = false;         // brltty's udev rule claims this vendor and product
    bool modemManagerMayProbe = false;  // ModemManager is there and the device is not excluded

    bool isUsb() const { return !vendorId.isEmpty(); }
    bool usable() const { return access == Access::Granted && holders.isEmpty(); }
};

// The serial devices that stand for hardware: every tty with a device behind it, except the
// built-in serial ports that the kernel reserves but found no chip for.
QStringList serialDevicePaths(const SystemFacts& facts);

// The helpers that interfere with USB serial adapters, as installed on this machine.
struct HelperServices {
    bool brlttyInstalled = false;
    bool brlttyRunning = false;
    QStringList brlttyRules;  // brltty's udev rule files in force (not masked)
    bool modemManagerInstalled = false;
    bool modemManagerRunning = false;
    QString udevRule;  // the path of this program's udev rule, when installed

    static HelperServices of(const SystemFacts& facts, const QList<ProcessInfo>& processes);
};

SerialDeviceReport describeDevice(const SystemFacts& facts, const QString& path,
                                  const UserIdentity& user, const QList<ProcessInfo>& processes,
                                  const HelperServices& helpers);
