#pragma once

#include <QString>

#include "l10n/language.h"

// The cable check: its report on the serial devices, the fixes it proposes, the answer of the
// radio, and the port finder's instructions. Commands to type stay the same in both languages.
namespace l10n {

enum class DoctorText {
    Title,  // %1 user
    NoDevices,
    StableName,  // %1 by-id path
    UsbDevice,   // %1 vendor:product, %2 maker and product
    Chip,        // %1 family
    Driver,      // %1 driver
    NotUsb,
    AccessGranted,
    AccessMissing,
    AccessNotInGroup,  // %1 group, %2 mode
    AccessRelogin,     // %1 group
    AccessModeTight,   // %1 mode, %2 group
    HeldBy,            // %1 command, %2 pid
    StaleLock,         // %1 lock file
    BrlttyMayGrab,
    ModemManagerMayProbe,
    Counterfeit,  // %1 vendor:product
    Ready,
    HelpersHeading,
    Brltty,        // %1 state
    ModemManager,  // %1 state
    UdevRule,      // %1 path or "not installed"
    StateMissing,
    StateInstalled,
    StateRunning,
    NotInstalled,
    FixesHeading,
    NothingToFix,
    FixJoinGroup,   // %1 group
    FixLogInAgain,  // %1 group
    FixInstallUdevRule,
    FixReloadUdevRule,
    FixCloseHolder,  // %1 "command (pid)"
    FixRemoveStaleLock,
    FixMaskBrltty,
    FixReplaceAdapter,  // %1 device
    FixPlugInCable,
    ProbeHeading,    // %1 device
    ProbeNotOpened,  // %1 the system's reason
    ProbeAnswered,   // %1 settings record in hex
    ProbeSilent,
    ProbeGarbled,
    ProbePortLost,  // %1 reason
    ProbeHeard,
    CausesHeading,
    CausePortNotOpened,
    CauseRadioOff,
    CausePlugNotSeated,
    CauseWrongPort,
    CauseOtherProgram,
    CauseBrltty,
    CauseModemManager,
    CauseCounterfeit,
    CauseCableForOtherRadio,
    // The desktop program: the Setup menu item, the report dialog and the port finder.
    CableCheckItem,
    CableCheckTitle,
    Close,
    ProbeButton,
    FindCable,
    FinderWaiting,
    FinderUnplugged,  // %1 device
    FinderFound,      // %1 device
    FinderAmbiguous,  // %1 devices
};

QString doctorText(DoctorText id, UiLanguage language);

// The commands the fixes give, the same in both languages; %1 is the fix's subject.
namespace commands {
inline constexpr const char* kJoinGroup = "sudo usermod -aG %1 $USER";
inline constexpr const char* kNewGroup = "newgrp %1";
inline constexpr const char* kInstallUdevRule =
    "radioprog-cli doctor --udev-rule | sudo tee /etc/udev/rules.d/60-radioprog.rules";
inline constexpr const char* kReloadUdevRules =
    "sudo udevadm control --reload-rules && sudo udevadm trigger --subsystem-match=tty";
inline constexpr const char* kRemoveFile = "sudo rm %1";
inline constexpr const char* kMaskRule = "sudo ln -s /dev/null /etc/udev/rules.d/%1";
inline constexpr const char* kMaskBrlttyService = "sudo systemctl mask brltty-udev.service";
inline constexpr const char* kStopBrltty = "sudo systemctl stop brltty-udev.service brltty.service";
inline constexpr const char* kKernelLog = "sudo dmesg | tail -n 20";
}  // namespace commands

}  // namespace l10n
