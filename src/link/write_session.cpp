#include "link/write_session.h"

#include <variant>

#include "link/link_transport.h"
#include "link/memory_image.h"
#include "link/protocol.h"
#include "link/requests.h"
#include "link/session_view.h"
#include "model/editing.h"
#include "model/frequency.h"
#include "platform/prompts.h"

using l10n::MessageId;

WriteSession::WriteSession(LinkTransport& transport, Codeplug& doc, Prompts& prompts,
                           SessionView& view, QObject* parent)
    : RadioSession(transport, doc, prompts, view, parent) {}

std::optional<Notice> WriteSession::checkEmptyFrequencies(const Codeplug& doc) {
    for (int slot = 0; slot < kSlotCount; ++slot) {
        const ChannelRecord& ch = doc.plan[slot];
        if (ch.rxfreq.isEmpty() || ch.txfreq.isEmpty()) {
            return Notice{MessageId::MsgChannelFreqError, slot + 1};
        }
    }
    return std::nullopt;
}

std::optional<Notice> WriteSession::checkFrequencies(const Codeplug& doc) {
    for (const ChannelRecord& ch : doc.plan) {
        if (ch.rxfreq.size() > kMaxFrequencyLength || ch.txfreq.size() > kMaxFrequencyLength) {
            return Notice{MessageId::MsgChannelFreqError, 0};
        }
    }
    // Only the receive frequency is checked, and the band's upper end itself passes.
    const BandLimits band = doc.bandLimits();
    for (int slot = 0; slot < kSlotCount; ++slot) {
        const double rx = numericValue(doc.plan[slot].rxfreq);
        if (rx < band.lower || rx > band.upper()) {
            return Notice{MessageId::MsgChannelFreqError, slot + 1};
        }
    }
    return std::nullopt;
}

std::optional<Notice> WriteSession::checkEncodable(const Codeplug& doc) {
    for (int slot = 0; slot < kSlotCount; ++slot) {
        const Result<QByteArray> frame = encode_channel(doc, slot);
        if (!frame) return noticeOf(frame.error());
    }
    return std::nullopt;
}

bool WriteSession::start() {
    if (isRunning()) return false;
    // Every slot goes to the radio, active or not, so every slot must hold a valid pair.
    // Empty cells are looked for before the redraw, which would write "000.00000" into them
    // and let an empty transmit frequency through to the encoder.
    std::optional<Notice> fault = checkEmptyFrequencies(doc_);
    if (!fault) {
        // The selectors are views of the document's settings, so there is nothing to take
        // over from them before the settings record is built.
        RESET_TEXT(doc_);
        fault = checkFrequencies(doc_);
    }
    if (!fault) fault = checkEncodable(doc_);
    if (fault) {
        prompts_.showMessage(warningBox(noticeText(*fault, doc_.language), doc_.language));
        return false;
    }
    if (!claimLink()) return false;
    transport_.startReceiving();
    view_.pauseStatusTimers();
    view_.setSessionButtonsEnabled(false);
    view_.showProgress(l10n::serviceCaption(l10n::SvcWriteToRadio, language_));
    view_.setProgressGoal((kSlotCount + 1) * kProgressPerRecord);
    status(MessageId::MsgWriting);
    step_ = Step::Opening;
    sendSettings();
    return true;
}

void WriteSession::cancel() {
    if (step_ == Step::Idle) return;
    step_ = Step::Idle;
    progressWindowClosed();
    prompts_.showMessage(
        warningBox(l10n::message(MessageId::MsgWriteCheckInput, language_), language_));
    status(MessageId::MsgWriteFailed);
    view_.hideProgress();
    view_.setSessionButtonsEnabled(true);
    finish(SessionOutcome::Cancelled);
}

void WriteSession::sendSettings() {
    transport_.request(encode_settings(doc_), kReplyMs, kSettingsAttempts,
                       {protocol::kAcknowledgeLength});
}

void WriteSession::sendChannel() {
    const auto frame = encode_channel(doc_, channel_);
    if (!frame) {
        errorEnd();
        return;
    }
    transport_.request(*frame, kReplyMs, kChannelAttempts, {protocol::kAcknowledgeLength});
}

void WriteSession::replyReceived(const QByteArray&) {
    // An empty frame acknowledges; its command byte does not matter.
    switch (step_) {
        case Step::Opening:
            advanceProgress(kProgressPerRecord);
            step_ = Step::Channels;
            channel_ = 0;
            sendChannel();
            return;
        case Step::Channels:
            advanceProgress(kProgressPerRecord);
            if (++channel_ < kSlotCount) {
                sendChannel();
            } else {
                finish_write();
            }
            return;
        case Step::Finishing:
        case Step::Idle:
            return;
    }
}

void WriteSession::exchangeFailed(const LinkFailure&) {
    if (step_ == Step::Idle) return;
    // No "E" follows a failed write.
    step_ = Step::Idle;
    presentLinkFailure();
    finish(SessionOutcome::TimedOut);
}

void WriteSession::finish_write() {
    step_ = Step::Finishing;
    transport_.send_uart(endWriteRequest());
}

void WriteSession::sendFinished() {
    if (step_ != Step::Finishing) return;
    step_ = Step::Idle;
    end_session();
    status(MessageId::MsgWriteDone);
    box(MessageId::MsgWriteDone, MessageId::MsgWriteDone);
    finish(SessionOutcome::Succeeded);
}

void WriteSession::errorEnd() {
    step_ = Step::Idle;
    end_session();
    status(MessageId::MsgLinkFailed);
    box(MessageId::MsgLinkFailed, std::nullopt);
    finish(SessionOutcome::Failed);
}
