#pragma once

#include <QString>

#include "l10n/language.h"

// Texts this program adds to the radio program's four tables, for situations those tables have
// no words for (refused files, a busy link). Kept here so that every text a user sees lives in
// one place.
namespace l10n {

enum class ProgramText {
    LinkBusy,  // a second exchange started while one runs
    FileCannotOpen,
    FileTooLarge,
    FileNotCodeplug,  // nothing in it is a codeplug section or an old layout
    FileOld212Lines,  // the old 212-line layout, which is never read
    FileCannotWrite,  // "cannot write FILE: reason", with %1 the file and %2 the reason
    FileNoReason,     // the reason, when the system gave none
    FileNotRegular,   // a device, FIFO or socket where a file is to be written
    FileTooLargeToKeep,
    ConfigUnreadable,        // config.ini exists but cannot be read; %1 says which and why
    ChannelCustomToneError,  // after the channel prefix and number, as the message table's
    ChannelCustomDcsError,
    PortPermissionHint,    // the port exists but this user may not open it
    ChannelCodeNotInList,  // after the channel prefix and number; %1 the code
};

QString programText(ProgramText id, UiLanguage language);

}  // namespace l10n
