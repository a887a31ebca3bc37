#include "link/read_session.h"

#include "link/link_transport.h"
#include "link/memory_image.h"
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
    transport_.startReceiving();
    view_.setSessionButtonsEnabled(false);
    view_.showProgress(l10n::message(MessageId::MsgReadFromRadio, language_));
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
    transport_.request(readSettingsRequest(), kOpeningReplyMs, kOpeningAttempts);
}

void ReadSession::sendChannel() {
    transport_.request(readChannelRequest(channel_), kChannelReplyMs, kChannelAttempts);
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
            decode_channel(doc_, channel_, payload, &notices);
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
    status(MessageId::MsgReadDone);
    box(MessageId::MsgReadDone, MessageId::MsgReadDone);
    finish(SessionOutcome::Succeeded);
}

void ReadSession::errorEnd(SessionOutcome outcome) {
    step_ = Step::Idle;
    end_session();
    status(MessageId::MsgReadFailed);
    box(MessageId::MsgReadFailed, MessageId::MsgReadFailed);
    finish(outcome);
}
