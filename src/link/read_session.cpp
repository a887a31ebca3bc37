#include "link/read_session.h"

#include "link/link_transport.h"
#include "link/memory_image.h"
#include "link/protocol.h"
#include "link/requests.h"
#include "link/session_view.h"
#include "model/editing.h"
#include "platform/prompts.h"
#include "platform/serial_port.h"

using l10n::MessageId;

ReadSession::ReadSession(LinkTransport& transport, Codeplug& doc, Prompts& prompts,
                         SessionView& view, QObject* parent)
    : RadioSession(transport, doc, prompts, view, parent) {}

bool ReadSession::start() {
    if (isRunning()) return false;
    if (!transport_.port().isOpen()) {
        prompts_.showMessage({l10n::message(MessageId::MsgOpenPort, doc_.language), {}});
        return false;
    }
    if (!claimLink()) return false;
    unreadChannels_.clear();
    transport_.startReceiving();
    view_.setSessionButtonsEnabled(false);
    view_.showProgress(l10n::message(MessageId::MsgReadFromRadio, language_));
    view_.setProgressGoal(kSlotCount * kProgressPerChannel);
    status(MessageId::MsgReading);
    view_.pauseStatusTimers();
    step_ = Step::Opening;
    sendOpening();
    return true;
}

void ReadSession::cancel() {
    if (step_ == Step::Idle) return;
    progressWindowClosed();
    errorEnd(SessionOutcome::Cancelled);
}

void ReadSession::sendOpening() {
    ignoredLength_ = -1;
    transport_.request(readSettingsRequest(), kOpeningReplyMs, kOpeningAttempts,
                       {protocol::kSettingsRecordSize});
}

void ReadSession::sendChannel() {
    ignoredLength_ = -1;
    transport_.request(readChannelRequest(channel_), kChannelReplyMs, kChannelAttempts,
                       {protocol::kShortChannelRecord, protocol::kLongChannelRecord});
}

void ReadSession::replyIgnored(int length) {
    ignoredLength_ = length;
}

void ReadSession::noteUnread(l10n::SessionText reason, int length) {
    QString line = l10n::sessionText(reason, language_).arg(channel_ + 1);
    if (reason == l10n::SessionText::ChannelWrongLength) line = line.arg(length);
    unreadChannels_ << line;
}

void ReadSession::warnUnread() {
    if (unreadChannels_.isEmpty()) return;
    const QString heading = l10n::sessionText(l10n::SessionText::ChannelsNotRead, language_);
    prompts_.showMessage(warningBox(
        heading + QLatin1Char('\n') + unreadChannels_.join(QLatin1Char('\n')), language_));
}

void ReadSession::replyReceived(const QByteArray& payload) {
    switch (step_) {
        case Step::Opening:
            decode_settings(doc_, payload);
            step_ = Step::Channels;
            channel_ = 0;
            sendChannel();
            return;
        case Step::Channels: {
            Notices notices;
            if (!decode_channel(doc_, channel_, payload, &notices)) {
                noteUnread(l10n::SessionText::ChannelNotUnderstood);
            }
            for (const Notice& notice : notices) {
                prompts_.showMessage(warningBox(noticeText(notice, language_), language_));
            }
            advanceProgress(kProgressPerChannel);
            if (++channel_ < kSlotCount) {
                sendChannel();
            } else {
                successEnd();
            }
            return;
        }
        case Step::Idle:
            return;
    }
}

void ReadSession::exchangeFailed(const LinkFailure&) {
    switch (step_) {
        case Step::Opening:
            presentLinkFailure();
            step_ = Step::Idle;
            finish(SessionOutcome::TimedOut);
            return;
        case Step::Channels:
            presentLinkFailure();
            if (ignoredLength_ >= 0)
                noteUnread(l10n::SessionText::ChannelWrongLength, ignoredLength_);
            errorEnd(SessionOutcome::TimedOut);
            return;
        case Step::Idle:
            return;
    }
}

void ReadSession::successEnd() {
    step_ = Step::Idle;
    RESET_TEXT(doc_);
    end_session();
    if (!unreadChannels_.isEmpty()) {
        // Not a success: the plan holds channels the radio does not.
        status(MessageId::MsgReadFailed);
        warnUnread();
        finish(SessionOutcome::Incomplete);
        return;
    }
    status(MessageId::MsgReadDone);
    box(MessageId::MsgReadDone, MessageId::MsgReadDone);
    finish(SessionOutcome::Succeeded);
}

void ReadSession::errorEnd(SessionOutcome outcome) {
    step_ = Step::Idle;
    end_session();
    warnUnread();
    status(MessageId::MsgReadFailed);
    box(MessageId::MsgReadFailed, MessageId::MsgReadFailed);
    finish(outcome);
}
