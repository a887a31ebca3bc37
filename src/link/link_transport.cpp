#include "link/link_transport.h"

#include <algorithm>

#include "link/link_trace.h"
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
    style_ = SendStyle::Settled;
    transmit();
}

void LinkTransport::request(const QByteArray& frame, int replyTimeoutMs, int attempts,
                            ReplyLengths accepted, SendStyle style) {
    if (!owner_) return;
    ++requestSerial_;
    frame_ = frame;
    awaitReply_ = true;
    style_ = style;
    replyTimeoutMs_ = replyTimeoutMs;
    accepted_ = accepted;
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
    Q_ASSERT(frame_.size() <=
             (style_ == SendStyle::Settled ? kSendBufferSize : kBootSendBufferSize));
    replyTimer_->stop();
    if (!port_.isOpen()) {
        // Nothing goes out; the requester learns of it by its time-out.
        phase_ = Phase::Settling;
        settleStart_ = clock_.nowMs() - kSettleMs;
        settleTimer_->start(0);
        owner_->portClosedOnSend();
        return;
    }
    port_.setReceiveNotification(style_ == SendStyle::Immediate);
    port_.discardOutput();
    // One write per byte, as the radio's firmware has always been fed.
    for (char byte : frame_) port_.write(QByteArray(1, byte));
    if (trace_) {
        flushTracedJunk();
        trace_->sent(clock_.nowMs() - traceOriginMs_, frame_);
    }
    if (style_ == SendStyle::Immediate) {
        // The reply is awaited from the first byte on: a quick one may come back before the
        // port has told that the request has drained.
        phase_ = Phase::AwaitingReply;
        armAttempt();
        return;
    }
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
        armAttempt();
        return;
    }
    phase_ = Phase::Idle;
    if (owner_) owner_->sendFinished();
}

bool LinkTransport::receivingUnderWay() const {
    return parser_.lineMode() ? lineUnderWay_ : parser_.state() != FrameParser::AwaitCommand;
}

void LinkTransport::armAttempt() {
    deadlineExtended_ = false;
    armUntil(clock_.nowMs() + replyTimeoutMs_);
}

void LinkTransport::armUntil(qint64 deadlineMs) {
    replyTimer_->start(static_cast<int>(std::max<qint64>(0, deadlineMs - clock_.nowMs())));
}

bool LinkTransport::parseInput(QByteArray* reply) {
    bool replyReady = false;
    const qint64 now = clock_.nowMs();
    while (port_.isOpen() && port_.bytesAvailable() > 0) {
        const QByteArray bytes = port_.read(port_.bytesAvailable());
        for (char byte : bytes) {
            if (!receivingUnderWay()) frameStartMs_ = now;
            const FrameParser::Outcome outcome = parser_.feed(static_cast<quint8>(byte));
            if (trace_) traceByte(byte, outcome);
            lineUnderWay_ = parser_.lineMode() && outcome == FrameParser::Outcome::Pending;
            switch (outcome) {
                case FrameParser::Outcome::FrameComplete: {
                    const QByteArray& payload = parser_.reply();
                    if (monitor_) {
                        monitor_(payload);
                    } else if (phase_ == Phase::AwaitingReply &&
                               !accepted_.accepts(payload.size())) {
                        if (owner_) owner_->replyIgnored(payload.size());
                    } else {
                        replyReady = true;
                        *reply = payload;
                    }
                    break;
                }
                case FrameParser::Outcome::LineComplete:
                    replyReady = true;
                    *reply = parser_.lineBuffer();
                    break;
                default:
                    break;
            }
        }
    }
    return replyReady;
}

void LinkTransport::onReceived() {
    const bool awaiting = phase_ == Phase::AwaitingReply;
    QByteArray reply;
    const bool replyReady = parseInput(&reply);
    // Bytes do not move the deadline: only the reply ends the wait.
    if (!awaiting || phase_ != Phase::AwaitingReply || !replyReady) return;
    replyTimer_->stop();
    phase_ = Phase::Idle;
    if (owner_) owner_->replyReceived(reply);
}

void LinkTransport::onReplyTimer() {
    if (phase_ != Phase::AwaitingReply) return;
    // A frame (or line) under way at the deadline may finish, once, for as long as its
    // length takes on the line.
    if (!deadlineExtended_ && receivingUnderWay()) {
        deadlineExtended_ = true;
        const int bytes =
            parser_.lineMode() ? FrameParser::kLineBufferSize : parser_.frameBytesExpected();
        const qint64 frameEnd =
            frameStartMs_ + static_cast<qint64>(bytes * kByteMs) + kFrameSlackMs;
        if (frameEnd > clock_.nowMs()) {
            armUntil(frameEnd);
            return;
        }
    }
    // A frame that stopped half way is given up with the time-out.
    if (!parser_.lineMode()) parser_.reset();
    if (trace_) {
        tracedJunk_ += tracedFrame_;
        tracedFrame_.clear();
        flushTracedJunk();
    }
    lineUnderWay_ = false;
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

void LinkTransport::setTrace(LinkTrace* trace) {
    trace_ = trace;
    traceOriginMs_ = clock_.nowMs();
    tracedFrame_.clear();
    tracedJunk_.clear();
}

void LinkTransport::traceByte(char byte, FrameParser::Outcome outcome) {
    const qint64 ms = clock_.nowMs() - traceOriginMs_;
    switch (outcome) {
        case FrameParser::Outcome::Dropped:
            tracedJunk_ += tracedFrame_;
            tracedJunk_ += byte;
            tracedFrame_.clear();
            return;
        case FrameParser::Outcome::Pending:
            // A frame start that comes to nothing joins the run of junk before it.
            tracedFrame_ += byte;
            return;
        case FrameParser::Outcome::FrameComplete:
        case FrameParser::Outcome::ChecksumFailed:
            flushTracedJunk();
            tracedFrame_ += byte;
            trace_->received(ms, tracedFrame_, outcome == FrameParser::Outcome::FrameComplete);
            tracedFrame_.clear();
            return;
        case FrameParser::Outcome::LineComplete:
            tracedFrame_ += byte;
            trace_->textLine(ms, tracedFrame_);
            tracedFrame_.clear();
            return;
    }
}

void LinkTransport::flushTracedJunk() {
    if (tracedJunk_.isEmpty()) return;
    trace_->junk(clock_.nowMs() - traceOriginMs_, tracedJunk_);
    tracedJunk_.clear();
}

void LinkTransport::onPortFailed(const QString& reason) {
    port_.setReceiveNotification(false);
    port_.close();
    const bool exchangeRunning = owner_ && phase_ != Phase::Idle;
    // A frame that needs no reply and has drained is on its way: the port failing during the
    // settle cannot take it back.
    const bool sent = !awaitReply_ && phase_ == Phase::Settling;
    abort();
    if (exchangeRunning && sent) {
        owner_->sendFinished();
    } else if (exchangeRunning) {
        // A vanished port ends the exchange at once, like its last time-out.
        owner_->exchangeFailed({LinkFailure::PortLost, reason});
    }
    Q_EMIT portLost(reason);
}
