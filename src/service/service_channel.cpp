#include "service/service_channel.h"

#include "l10n/program_texts.h"
#include "l10n/service_texts.h"
#include "link/link_transport.h"
#include "platform/prompts.h"
#include "platform/serial_port.h"

ServiceChannel::ServiceChannel(LinkTransport& transport, Prompts& prompts, QObject* parent)
    : QObject(parent), transport_(transport), prompts_(prompts) {
    // Nothing more will come from a port that is gone.
    connect(&transport_, &LinkTransport::portLost, this, [this] { setMonitor(nullptr); });
}

ServiceChannel::~ServiceChannel() {
    transport_.release(this);
}

void ServiceChannel::setLanguage(UiLanguage language) {
    if (language == language_) return;
    language_ = language;
    Q_EMIT languageChanged(language);
}

bool ServiceChannel::portOpen() const {
    return transport_.port().isOpen();
}

bool ServiceChannel::begin() {
    if (running_ || !transport_.acquire(this)) {
        prompts_.showMessage(
            warningBox(l10n::programText(l10n::ProgramText::LinkBusy, language_), language_));
        return false;
    }
    running_ = true;
    portClosedReported_ = false;
    return true;
}

void ServiceChannel::end() {
    if (!running_) return;
    done_ = nullptr;
    sent_ = nullptr;
    // Text lines are for one request only, and an operation may end before its reply.
    endLineMode();
    transport_.release(this);
    running_ = false;
}

void ServiceChannel::Pc_Send_dt(const QByteArray& frame, AttemptCount preset, ReplyLengths accepted,
                                Done done) {
    Q_ASSERT(running_);
    int attempts = LinkTransport::kMaxAttempts;
    if (preset == AttemptCount::Single) attempts = 1;
    if (preset == AttemptCount::Inherited) attempts = transport_.attemptsLeft();
    done_ = std::move(done);
    ignoredLength_ = -1;
    transport_.request(frame, kReplyTimeoutMs, attempts, accepted);
}

bool ServiceChannel::Panel_Exchange(ExchangeKind kind, const std::function<QByteArray()>& build,
                                    ReplyLengths accepted, Done done) {
    if (kind == ExchangeKind::Read && !portOpen()) {
        prompts_.showMessage({l10n::message(l10n::MessageId::MsgOpenPort, language_), {}});
        return false;
    }
    setMonitor(nullptr);
    selectors = {};
    Pc_Send_dt(build(), AttemptCount::Fresh, accepted, std::move(done));
    return true;
}

void ServiceChannel::send_uart(const QByteArray& frame, std::function<void()> sent) {
    Q_ASSERT(running_);
    sent_ = std::move(sent);
    transport_.send_uart(frame);
}

void ServiceChannel::sendFinished() {
    const std::function<void()> sent = std::move(sent_);
    sent_ = nullptr;
    if (sent) sent();
}

void ServiceChannel::init_send_str() {
    transport_.setLineMode(true);
}

void ServiceChannel::endLineMode() {
    transport_.setLineMode(false);
}

void ServiceChannel::setMonitor(std::function<void(const QByteArray&)> handler) {
    const bool wasActive = monitorActive();
    transport_.setMonitor(std::move(handler));
    if (monitorActive() != wasActive) Q_EMIT monitorChanged(monitorActive());
}

bool ServiceChannel::monitorActive() const {
    return transport_.monitorActive();
}

void ServiceChannel::abandon() {
    done_ = nullptr;
    sent_ = nullptr;
    transport_.abort();
}

void ServiceChannel::complete(const Reply& reply) {
    // The callback may send the next request, which sets a new one.
    const Done done = std::move(done_);
    done_ = nullptr;
    if (done) done(reply);
}

void ServiceChannel::replyReceived(const QByteArray& payload) {
    complete(payload);
}

void ServiceChannel::exchangeFailed(const LinkFailure&) {
    if (ignoredLength_ >= 0) {
        prompts_.showMessage(warningBox(
            l10n::serviceText(l10n::ServiceText::ReplyWrongLength, language_).arg(ignoredLength_),
            language_));
    }
    complete(std::nullopt);
}

void ServiceChannel::portClosedOnSend() {
    if (portClosedReported_) return;
    portClosedReported_ = true;
    prompts_.showMessage(
        warningBox(l10n::message(l10n::MessageId::MsgSetPort, language_), language_));
}
