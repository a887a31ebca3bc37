#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "l10n/texts.h"
#include "model/result.h"

// Something the user must be told. Document operations never show anything; they return the
// notices in the order the user must see them, and the views or the CLI show them
// (as warning boxes titled MsgWarningTitle).
struct Notice {
    Notice(l10n::MessageId message, int channel = 0) : message(message), channel(channel) {}

    l10n::MessageId message;
    int channel = 0;  // 1-based channel number the message is about; 0 when it names none
    // Set when the message table has no words for it: the error, described in its place.
    std::optional<Error> error;

    bool operator==(const Notice& other) const {
        return message == other.message && channel == other.channel &&
               error.has_value() == other.error.has_value();
    }
};

using Notices = std::vector<Notice>;

// A channel value that does not fit the radio's record, told in a box: as the frequency warning
// when the field is a frequency, else in words naming the field.
Notice noticeOf(const Error& error);

// The text of a notice: for a channel, prefix + number + message with nothing between.
QString noticeText(const Notice& notice, UiLanguage language);
