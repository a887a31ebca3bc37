#pragma once

#include <QByteArray>
#include <QObject>
#include <functional>
#include <memory>

#include "link/frame_parser.h"
#include "link/link_client.h"
#include "platform/clock.h"

class SerialPort;

// The link to the radio: puts requests on the line (send_uart), parses what comes back, and
// runs the reply timer (Timer3) with its attempts. One exchange owns it at a time and hears
// the outcome of each request; the transport itself shows nothing to the user. Everything
// happens in reaction to the port, the timers and the owner's calls, so nothing waits in a
// loop.
//
// A request: the owner calls request(); the bytes go out one write per byte; once the port
// has drained and 20 ms have passed, the input received meanwhile (the cable's echo of the
// request, for one) is discarded, reception is switched on and the reply timer armed. A
// time-out sends the same frame again until the attempts are used up; then the owner hears
// exchangeFailed().
class LinkTransport : public QObject {
    Q_OBJECT

public:
    static constexpr int kSendBufferSize = 33;
    static constexpr int kSettleMs = 20;
    // A fresh attempt count allows three attempts; the radio's tool expressed one attempt as
    // "counter preset to 2" and three as "counter zeroed".
    static constexpr int kMaxAttempts = 3;

    LinkTransport(SerialPort& port, Clock& clock, QObject* parent = nullptr);
    ~LinkTransport() override;

    // Ownership: refused (false) while another exchange holds the link.
    bool acquire(LinkClient* client);
    void release(LinkClient* client);
    bool isBusy() const { return owner_ != nullptr; }

    SerialPort& port() { return port_; }

    // Start of a session: input discarded, reception on, parser back to AwaitCommand.
    void startReceiving();

    // send_uart: transmits `frame` (at most 33 bytes) and awaits no reply; the owner hears
    // sendFinished(). Only the owner of the link sends.
    void send_uart(const QByteArray& frame);
    // Transmits `frame` and awaits a reply for `replyTimeoutMs`, sending it again on each
    // time-out, `attempts` times in all.
    void request(const QByteArray& frame, int replyTimeoutMs, int attempts);
    // What the last request left of its attempts: at least one. A requester that carries on
    // "with the count the previous exchange left" asks for this many.
    int attemptsLeft() const;
    // Stops whatever is under way (drain, settle, reply timer) without telling the owner.
    void abort();

    // Text-line replies for one request (the receive path stores bytes up to a carriage return).
    void setLineMode(bool on) { parser_.setLineMode(on); }
    QByteArray lineBuffer() const { return parser_.lineBuffer(); }
    int lineIndex() const { return parser_.lineIndex(); }
    // Monitor mode: while a handler is set, every good frame goes to it and to nobody else.
    void setMonitor(std::function<void(const QByteArray&)> handler) {
        monitor_ = std::move(handler);
    }
    bool monitorActive() const { return static_cast<bool>(monitor_); }

Q_SIGNALS:
    // The port failed and has been closed; the owner of a running exchange has already heard
    // of it.
    void portLost(const QString& reason);

private:
    enum class Phase { Idle, Draining, Settling, AwaitingReply };

    void transmit();
    void onDrained();
    void startSettle();
    void onSettleTimer();
    void onReceived();
    void onReplyTimer();
    void onPortFailed(const QString& reason);

    SerialPort& port_;
    Clock& clock_;
    std::unique_ptr<Timer> replyTimer_;   // Timer3
    std::unique_ptr<Timer> settleTimer_;  // the 20 ms after the line has drained

    LinkClient* owner_ = nullptr;
    FrameParser parser_;
    std::function<void(const QByteArray&)> monitor_;
    Phase phase_ = Phase::Idle;

    // The request under way.
    QByteArray frame_;
    bool awaitReply_ = false;
    int replyTimeoutMs_ = 0;
    int attempts_ = kMaxAttempts;
    int timeouts_ = 0;  // of this request; the attempt on the line is timeouts_ + 1
    qint64 settleStart_ = 0;
    int requestSerial_ = 0;  // changes with every request and abort
};
