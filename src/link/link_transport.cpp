#include "link/link_transport.h"

#include <algorithm>

#include "platform/serial_port.h"

LinkTransport::LinkTransport(SerialPort& port, Clock& clock, QObject* parent)
    : QObject(parent),
      port_(port),
      clock_(clock),
      replyTimer_(clock.createTimer()),
      settleTimer_(clock.createTimer()) {
    replyTimer_->setCallback([this] { onReplyTimer(); });
    settleTimer_->setCallback([this] { onSettleTimer(); });
    connect(&port_, &SerialPort::drained, this, &LinkTransport::onDrained);
    connect(&port_, &SerialPort::received, this, &LinkTransport::onReceived);
    connect(&port_, &SerialPort::failed, this, &LinkTransport::onPortFailed);
}

LinkTransport::~LinkTransport() = default;

bool LinkTransport::acquire(LinkClient* client) {
    if (owner_ && owner_ != client) return false;
    owner_ = client;
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
    if (!owner_) return;
    ++requestSerial_;
    frame_ = frame;
    awaitReply_ = false;
    transmit();
}

void LinkTransport::request(const QByteArray& frame, int replyTimeoutMs, int attempts) {
    if (!owner_) return;
    ++requestSerial_;
    frame_ = frame;
    awaitReply_ = true;
    replyTimeoutMs_ = replyTimeoutMs;
    attempts_ = std::max(1, attempts);
    timeouts_ = 0;
    transmit();
}

int LinkTransport::attemptsLeft() const {
    return std::max(1, attempts_ - timeouts_);
}

void LinkTransport::abort() {
    ++requestSerial_;
    replyTimer_->stop();
    settleTimer_->stop();
    phase_ = Phase::Idle;
}

void LinkTransport::transmit() {
    Q_ASSERT(frame_.size() <= kSendBufferSize);
    replyTimer_->stop();
    if (!port_.isOpen()) {
        // Nothing goes out; the requester learns of it by its time-out.
        phase_ = Phase::Settling;
        settleStart_ = clock_.nowMs() - kSettleMs;
        settleTimer_->start(0);
        owner_->portClosedOnSend();
        return;
    }
    port_.setReceiveNotification(false);
    port_.discardOutput();
    // One write per byte, as the radio's firmware has always been fed.
    for (char byte : frame_) port_.write(QByteArray(1, byte));
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
    if (awaitReply_) {
        phase_ = Phase::AwaitingReply;
        replyTimer_->start(replyTimeoutMs_);
        return;
    }
    phase_ = Phase::Idle;
    if (owner_) owner_->sendFinished();
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
        replyTimer_->start(replyTimeoutMs_);
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
    ++timeouts_;
    if (!owner_) return;
    if (timeouts_ < attempts_) {
        const int serial = requestSerial_;
        owner_->attemptTimedOut(timeouts_);
        // Unless the owner has cancelled, released or replaced the request meanwhile.
        if (owner_ && serial == requestSerial_) transmit();
        return;
    }
    owner_->exchangeFailed({LinkFailure::GaveUp, {}});
}

void LinkTransport::onPortFailed(const QString& reason) {
    port_.setReceiveNotification(false);
    port_.close();
    const bool exchangeRunning = owner_ && phase_ != Phase::Idle;
    abort();
    // A vanished port ends the exchange at once, like its last time-out.
    if (exchangeRunning) owner_->exchangeFailed({LinkFailure::PortLost, reason});
    Q_EMIT portLost(reason);
}
