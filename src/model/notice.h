#pragma once

#include <QString>
#include <vector>

#include "l10n/texts.h"

// Something the user must be told. Document operations never show anything; they return the
// notices in the order the user must see them, and the views or the CLI show them
// (as warning boxes titled MsgWarningTitle).
struct Notice {
    l10n::MessageId message;
    int channel = 0;  // 1-based channel number the message is about; 0 when it names none

    bool operator==(const Notice& other) const {
        return message == other.message && channel == other.channel;
    }
};

using Notices = std::vector<Notice>;

// The text of a notice: for a channel, prefix + number + message with nothing between.
QString noticeText(const Notice& notice, UiLanguage language);
