#include "link/radio_session.h"

#include "l10n/program_texts.h"
#include "link/link_transport.h"
#include "link/session_view.h"
#include "platform/prompts.h"

RadioSession::RadioSession(LinkTransport& transport, Codeplug& doc, Prompts& prompts,
                           SessionView& view, QObject* parent)
    : QObject(parent), transport_(transport), doc_(doc), prompts_(prompts), view_(view) {}

RadioSession::~RadioSession() {
    transport_.release(this);
}

bool RadioSession::claimLink() {
    language_ = doc_.language;
    if (!transport_.acquire(this)) {
        prompts_.showMessage(
            warningBox(l10n::programText(l10n::ProgramText::LinkBusy, language_), language_));
        return false;
    }
    running_ = true;
    progress_ = 0;
    return true;
}

void RadioSession::end_session() {
    progress_ = 0;
    view_.setSessionButtonsEnabled(true);
    view_.resumeStatusTimers();
    view_.hideProgress();
}

void RadioSession::finish(SessionOutcome outcome) {
    transport_.release(this);
    running_ = false;
    outcome_ = outcome;
    Q_EMIT finished(outcome);
}

void RadioSession::advanceProgress(int step) {
    progress_ += step;
    view_.setProgress(progress_);
}

void RadioSession::progressWindowClosed() {
    transport_.abort();
    view_.setSessionButtonsEnabled(true);
    progress_ = 0;
    view_.setProgress(0);
    view_.resumeStatusTimers();
}

void RadioSession::presentLinkFailure() {
    view_.resumeStatusTimers();
    view_.hideProgress();
    status(l10n::MessageId::MsgLinkFailed);
    box(l10n::MessageId::MsgLinkFailedCheckRadio, l10n::MessageId::MsgWarningTitle);
    view_.setSessionButtonsEnabled(true);
    status(l10n::MessageId::MsgPortLabel);
}

void RadioSession::portClosedOnSend() {
    prompts_.showMessage(
        warningBox(l10n::message(l10n::MessageId::MsgSetPort, language_), language_));
}

void RadioSession::status(l10n::MessageId id) {
    Set_StBar(prompts_, id, language_);
}

void RadioSession::box(l10n::MessageId text, std::optional<l10n::MessageId> title) {
    prompts_.showMessage(
        {l10n::message(text, language_), title ? l10n::message(*title, language_) : QString()});
}
