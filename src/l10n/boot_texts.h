#pragma once

#include <QString>

#include "l10n/language.h"

// The boot loader's log lines. Most are the loader window's own fixed texts, the same in both
// languages; the lines this program adds (refusals before erasing, the verify) have both.
namespace l10n {

enum class BootText {
    LinkWait,           // "boot link wait......"
    LinkNoAck,          // "boot link No Ack!!!!"
    EraseStart,         // "Erase start......"
    EraseOk,            // "Erase OK!!!!"
    WriteStart,         // "write start......"
    WriteOk,            // "Write OK!!!!"
    ReadStart,          // "read start......"
    ReadOk,             // "Read OK!!!!"
    StartNoAck,         // "START No Ack!!!!"
    NoAck,              // "No Ack!!!!"
    StartAddressError,  // "START address ERROR!!!!"
    EndAddressError,    // "END address ERROR!!!!"
    LengthError,        // "Length  ERROR!!!!"
    NoImageFile,        // no image file chosen
    ImageFile,          // the image file, followed by its path
    ImageTooLarge,      // "File too larger!!!!"
    ImageEmpty,         // "File length is 0!!!!"
    // Added by this program.
    ImageLongerThanRange,  // %1 image bytes, %2 range bytes
    VerifyStart,
    VerifyOk,        // %1 CRC-32 of the image, %2 of what the radio holds
    VerifyMismatch,  // %1 address, %2 expected byte, %3 found byte
    Cancelled,
    PortClosed,
    BootModeHint,  // shown while the link phase waits: what the user must do
    VerifyOption,  // the window's check box
    CancelButton,
};

QString bootText(BootText id, UiLanguage language);

}  // namespace l10n
