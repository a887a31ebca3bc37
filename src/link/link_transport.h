#pragma once

#include <QByteArray>
#include <QObject>
#include <functional>
#include <memory>

#include "l10n/language.h"
#include "link/frame_parser.h"
#include "link/link_client.h"
#include "platform/clock.h"

class Prompts;
class SerialPort;
class SessionView;

// The link to the radio: puts requests on the line (send_uart), parses what comes back, and
// runs the reply timer (Timer3) with its attempt counter. One exchange owns it at a time and
// gets its events; everything happens in reaction to the port, the timers and the owner's
// calls, so nothing waits in a loop.
//
// A request cycle: the owner calls sendRequest(); the bytes go out one write per byte; once the
// port has drained and 20 ms have passed, the input received meanwhile (the cable's echo of
// the request, for one) is discarded, reception is switched on and the reply timer armed.
// Then either replyReceived() or replyTimedOut() reaches the owner.
class LinkTransport : public QObject {
    Q_OBJECT

public:
    static constexpr int kSendBufferSize = 33;
    static constexpr int kSettleMs = 20;
    static constexpr int kMaxAttempts = 2;  // the tick after the second gives up
    static constexpr int kNoReply = 0;

    LinkTransport(SerialPort& port, Clock& clock, Prompts& prompts, SessionView& view,
                  QObject* parent = nullptr);
    ~LinkTransport() override;

    // Ownership: refused (false) while another exchange holds the link.
    bool acquire(LinkClient* client, LinkUse use, UiLanguage language);
    void release(LinkClient* client);
    bool isBusy() const { return owner_ != nullptr; }
    void setLanguage(UiLanguage language) { language_ = language; }

    SerialPort& port() { return port_; }

    // Start of a session: input discarded, reception on, parser back to AwaitCommand.
    void startReceiving();

    // send_uart: transmits `frame` (at most 33 bytes); the owner hears sendFinished().
    void send_uart(const QByteArray& frame);
    // send_uart, then the reply timer armed with `replyIntervalMs`.
    void sendRequest(const QByteArray& frame, int replyIntervalMs);
    // Sends only while a read or write session owns the link; otherwise nothing goes out and
    // the requester simply times out. `replyIntervalMs` kNoReply: no reply awaited.
    void send_in_session(const QByteArray& frame, int replyIntervalMs);
    // Stops whatever is under way (drain, settle, reply timer) without telling the owner.
    void abort();

    // AttemptCount: zeroed for three attempts, preset to 2 for a single one.
    void setAttemptCount(int count) { attemptCount_ = count; }
    int attemptCount() const { return attemptCount_; }
    bool giveUp() const { return giveUp_; }
    bool replyTimedOut() const { return replyTimedOut_; }

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
    // The port failed and has been closed.
    void portLost();

private:
    enum class Phase { Idle, Draining, Settling, AwaitingReply };

    void transmit(const QByteArray& frame, int replyIntervalMs);
    void onDrained();
    void startSettle();
    void onSettleTimer();
    void arm(int intervalMs);
    void onReceived();
    void onReplyTimer();
    void onPortFailed();
    void giveUpCleanup();

    SerialPort& port_;
    Clock& clock_;
    Prompts& prompts_;
    SessionView& view_;
    std::unique_ptr<Timer> replyTimer_;   // Timer3
    std::unique_ptr<Timer> settleTimer_;  // the 20 ms after the line has drained

    LinkClient* owner_ = nullptr;
    LinkUse use_ = LinkUse::Session;
    UiLanguage language_ = UiLanguage::Chinese;

    FrameParser parser_;
    std::function<void(const QByteArray&)> monitor_;
    Phase phase_ = Phase::Idle;
    int pendingInterval_ = kNoReply;  // the reply interval of the request being sent
    int replyInterval_ = 0;
    qint64 settleStart_ = 0;
    int attemptCount_ = 0;
    bool giveUp_ = false;
    bool replyTimedOut_ = false;
};
