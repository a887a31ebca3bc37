#pragma once

#include <QByteArray>
#include <QObject>
#include <functional>
#include <memory>

#include "link/frame_parser.h"
#include "link/link_client.h"
#include "platform/clock.h"

class LinkTrace;
class SerialPort;

// The link to the radio: puts requests on the line (send_uart), parses what comes back, and
// runs the reply timer (Timer3) with its attempts. One exchange owns it at a time and hears
// the outcome of each request; the transport itself shows nothing to the user. Everything
// happens in reaction to the port, the timers and the owner's calls, so nothing waits in a
// loop.
//
// A request: the owner calls request(); the bytes go out one write per byte; once the port
// has drained and 20 ms have passed, the input received meanwhile (the cable's echo of the
// request, for one) is discarded, reception is switched on and the reply timer armed. Only a
// good frame of a length the request accepts is its reply. A time-out sends the same frame
// again until the attempts are used up; then the owner hears exchangeFailed().
//
// An attempt ends at its time-out, whatever else arrives: noise on the line does not keep it
// alive. Only a frame (or text line) under way at that moment may finish, once, for as long
// as its length takes at 9600 baud and a little more.
class LinkTransport : public QObject {
    Q_OBJECT

public:
    static constexpr int kSendBufferSize = 33;
    static constexpr int kBootSendBufferSize = 161;  // the boot loader's frames are longer

    // How a frame goes on the line. Settled (send_uart): receive events off while sending,
    // then 20 ms after the drain, with whatever arrived meanwhile discarded. Immediate
    // (send_uart_data, the boot loader's way): receive events stay on and the reply timer runs
    // from the moment the frame is written, so that a reply is taken however early it comes.
    enum class SendStyle { Settled, Immediate };
    static constexpr int kSettleMs = 20;
    // A fresh attempt count allows three attempts; the radio's tool expressed one attempt as
    // "counter preset to 2" and three as "counter zeroed".
    static constexpr int kMaxAttempts = 3;
    // 10 bits a byte at 9600 baud, and what a USB adapter may add to a frame's arrival.
    static constexpr double kByteMs = 10.0 * 1000.0 / 9600.0;
    static constexpr int kFrameSlackMs = 50;

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
    // Transmits `frame` and awaits a reply of one of the `accepted` lengths for
    // `replyTimeoutMs`, sending it again on each time-out, `attempts` times in all.
    void request(const QByteArray& frame, int replyTimeoutMs, int attempts, ReplyLengths accepted,
                 SendStyle style = SendStyle::Settled);
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

    // Every frame that goes out and every byte that comes in, from now on, to `trace` (null:
    // none). The trace's times count from this call.
    void setTrace(LinkTrace* trace);

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
    // Feeds what arrived to the parser; true with `reply` set when the reply is among it.
    bool parseInput(QByteArray* reply);
    void armAttempt();
    void armUntil(qint64 deadlineMs);
    bool receivingUnderWay() const;
    void traceByte(char byte, FrameParser::Outcome outcome);
    void flushTracedJunk();
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
    SendStyle style_ = SendStyle::Settled;
    int replyTimeoutMs_ = 0;
    ReplyLengths accepted_ = ReplyLengths::any();
    qint64 frameStartMs_ = 0;  // when the frame or line being received began
    bool lineUnderWay_ = false;
    bool deadlineExtended_ = false;
    int attempts_ = kMaxAttempts;
    int timeouts_ = 0;  // of this request; the attempt on the line is timeouts_ + 1
    qint64 settleStart_ = 0;
    int requestSerial_ = 0;  // changes with every request and abort

    LinkTrace* trace_ = nullptr;
    qint64 traceOriginMs_ = 0;
    QByteArray tracedFrame_;  // the frame or text line coming in
    QByteArray tracedJunk_;   // bytes that were no frame, not yet traced
};
