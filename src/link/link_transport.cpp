#include "link/link_transport.h"

#include "link/session_view.h"
#include "platform/prompts.h"
#include "platform/serial_port.h"

using l10n::MessageId;

LinkTransport::LinkTransport(SerialPort& port, Clock& clock, Prompts& prompts, SessionView& view,
                             QObject* parent)
    : QObject(parent),
      port_(port),
      clock_(clock),
      prompts_(prompts),
      view_(view),
      replyTimer_(clock.createTimer()),
      settleTimer_(clock.createTimer()) {
    replyTimer_->setCallback([this] { onReplyTimer(); });
    settleTimer_->setCallback([this] { onSettleTimer(); });
    connect(&port_, &SerialPort::drained, this, &LinkTransport::onDrained);
    connect(&port_, &SerialPort::received, this, &LinkTransport::onReceived);
    connect(&port_, &SerialPort::failed, this, &LinkTransport::onPortFailed);
}

LinkTransport::~LinkTransport() = default;

bool LinkTransport::acquire(LinkClient* client, LinkUse use, UiLanguage language) {
    if (owner_ && owner_ != client) return false;
    owner_ = client;
    use_ = use;
    language_ = language;
    giveUp_ = false;
    replyTimedOut_ = false;
    return true;
}

void LinkTransport::release(LinkClient* client) {
    if (owner_ != client) return;
    abort();
    owner_ = nullptr;
}

void LinkTransport::startReceiving() {
    port_.discardInput();
    port_.setReceiveNotification(true);
    parser_.reset();
}

void LinkTransport::send_uart(const QByteArray& frame) {
    transmit(frame, kNoReply);
}

void LinkTransport::sendRequest(const QByteArray& frame, int replyIntervalMs) {
    transmit(frame, replyIntervalMs);
}

void LinkTransport::send_in_session(const QByteArray& frame, int replyIntervalMs) {
    if (owner_ && use_ == LinkUse::Session) {
        transmit(frame, replyIntervalMs);
    } else if (replyIntervalMs != kNoReply) {
        arm(replyIntervalMs);
    }
}

void LinkTransport::abort() {
    replyTimer_->stop();
    settleTimer_->stop();
    phase_ = Phase::Idle;
}

void LinkTransport::transmit(const QByteArray& frame, int replyIntervalMs) {
    Q_ASSERT(frame.size() <= kSendBufferSize);
    replyTimer_->stop();
    pendingInterval_ = replyIntervalMs;
    if (!port_.isOpen()) {
        prompts_.showMessage(
            warningBox(l10n::message(MessageId::MsgSetPort, language_), language_));
        // Nothing goes out; the requester learns of it by its time-out.
        phase_ = Phase::Settling;
        settleStart_ = clock_.nowMs() - kSettleMs;
        settleTimer_->start(0);
        return;
    }
    port_.setReceiveNotification(false);
    port_.discardOutput();
    // One write per byte, as the radio's firmware has always been fed.
    for (char byte : frame) port_.write(QByteArray(1, byte));
    phase_ = Phase::Draining;
    if (port_.bytesToWrite() == 0) startSettle();
}

void LinkTransport::onDrained() {
    if (phase_ == Phase::Draining && port_.bytesToWrite() == 0) startSettle();
}

void LinkTransport::startSettle() {
    phase_ = Phase::Settling;
    settleStart_ = clock_.nowMs();
    settleTimer_->start(kSettleMs);
}

void LinkTransport::onSettleTimer() {
    if (phase_ != Phase::Settling) return;
    const qint64 elapsed = clock_.nowMs() - settleStart_;
    if (elapsed < kSettleMs) {
        settleTimer_->start(static_cast<int>(kSettleMs - elapsed));
        return;
    }
    if (port_.isOpen()) {
        port_.discardInput();
        port_.setReceiveNotification(true);
    }
    if (pendingInterval_ != kNoReply) {
        arm(pendingInterval_);
        return;
    }
    phase_ = Phase::Idle;
    if (owner_) owner_->sendFinished();
}

void LinkTransport::arm(int intervalMs) {
    replyInterval_ = intervalMs;
    replyTimedOut_ = false;
    phase_ = Phase::AwaitingReply;
    replyTimer_->start(intervalMs);
}

void LinkTransport::onReceived() {
    const bool awaiting = phase_ == Phase::AwaitingReply;
    if (awaiting) replyTimer_->stop();

    bool replyReady = false;
    QByteArray reply;
    while (port_.isOpen() && port_.bytesAvailable() > 0) {
        const QByteArray bytes = port_.read(port_.bytesAvailable());
        for (char byte : bytes) {
            switch (parser_.feed(static_cast<quint8>(byte))) {
                case FrameParser::Outcome::FrameComplete:
                    if (monitor_) {
                        monitor_(parser_.reply());
                    } else {
                        replyReady = true;
                        reply = parser_.reply();
                    }
                    break;
                case FrameParser::Outcome::LineComplete:
                    replyReady = true;
                    reply = parser_.lineBuffer();
                    break;
                default:
                    break;
            }
        }
    }

    if (!awaiting || phase_ != Phase::AwaitingReply) return;
    if (!replyReady) {
        // The time-out runs again from the last byte; it also runs while a frame is half
        // received, so that a frame cut short cannot hold the exchange for ever.
        replyTimer_->start(replyInterval_);
        return;
    }
    phase_ = Phase::Idle;
    if (owner_) owner_->replyReceived(reply);
}

void LinkTransport::onReplyTimer() {
    if (phase_ != Phase::AwaitingReply) return;
    // A frame that stopped half way is given up with the time-out.
    if (!parser_.lineMode()) parser_.reset();
    phase_ = Phase::Idle;
    replyTimedOut_ = true;
    giveUp_ = false;
    ++attemptCount_;
    if (attemptCount_ > kMaxAttempts) {
        giveUp_ = true;
        giveUpCleanup();
    }
    if (owner_) owner_->replyTimedOut(giveUp_);
}

void LinkTransport::giveUpCleanup() {
    view_.resumeStatusTimers();
    view_.hideProgress();
    if (owner_ && use_ == LinkUse::Session) {
        Set_StBar(prompts_, MessageId::MsgLinkFailed, language_);
        prompts_.showMessage({l10n::message(MessageId::MsgLinkFailedCheckRadio, language_),
                              l10n::message(MessageId::MsgWarningTitle, language_)});
        view_.setSessionButtonsEnabled(true);
        Set_StBar(prompts_, MessageId::MsgPortLabel, language_);
    }
}

void LinkTransport::onPortFailed() {
    port_.setReceiveNotification(false);
    port_.close();
    const bool exchangeRunning = owner_ && phase_ != Phase::Idle;
    abort();
    if (exchangeRunning) {
        // A vanished port ends the exchange at once, like its last time-out.
        replyTimedOut_ = true;
        giveUp_ = true;
        giveUpCleanup();
        owner_->replyTimedOut(true);
    }
    Set_StBar(prompts_, MessageId::MsgPortClosed, language_);
    Q_EMIT portLost();
}
