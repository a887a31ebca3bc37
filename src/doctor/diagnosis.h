#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "doctor/serial_device.h"
#include "doctor/system_facts.h"

// What can be done about a fault the doctor found; the words and commands are in l10n.
struct Fix {
    enum Kind {
        JoinGroup,        // usermod -aG GROUP, then log in again
        LogInAgain,       // the membership is there, the session does not have it yet
        InstallUdevRule,  // our rule sets the group and mode and keeps ModemManager away
        ReloadUdevRule,   // our rule is installed but not applied to the device yet
        CloseHolder,      // another program has the port open
        RemoveStaleLock,  // a lock file without its process
        MaskBrltty,       // brltty's udev rule takes the adapter for a braille display
        ReplaceAdapter,   // a chip whose ID most copies carry
        PlugInCable,      // no serial device at all
    };
    Kind kind;
    QString subject;  // the group, lock file, rule file, device or "command (pid)" it is about

    bool operator==(const Fix& other) const {
        return kind == other.kind && subject == other.subject;
    }
};

// The doctor's findings about the whole machine: who runs it, the helpers that interfere, every
// serial device, and the fixes for what stands in the way, most important first.
struct Diagnosis {
    QString userName;
    HelperServices helpers;
    QList<SerialDeviceReport> devices;
    QList<Fix> fixes;
};

// `extraDevices` are looked at as well even where sysfs lists no serial device for them (the
// pseudo-terminal of a simulated radio named on the command line).
Diagnosis diagnose(const SystemFacts& facts, const QStringList& extraDevices = {});
