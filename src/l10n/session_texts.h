#pragma once

#include <QString>

#include "l10n/language.h"

// What a read or write session adds to the radio program's messages when the radio's answers
// cannot all be taken: the user learns which channels and why, instead of a plain "Read OK".
namespace l10n {

enum class SessionText {
    ChannelsNotRead,       // heading of the list below
    ChannelWrongLength,    // %1 channel, %2 bytes
    ChannelNotUnderstood,  // %1 channel
    TraceMenuItem,         // the Setup menu item that writes the serial traffic to a file
};

QString sessionText(SessionText id, UiLanguage language);

}  // namespace l10n
