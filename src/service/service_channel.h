#pragma once

#include <QByteArray>
#include <QObject>
#include <functional>
#include <optional>

#include "l10n/language.h"
#include "link/link_client.h"
#include "service/service_request.h"

class LinkTransport;
class Prompts;

// How many times a service request goes out. The radio's factory tool expressed it by
// presetting its attempt counter: 2 left one attempt, 0 three, and a request that preset
// nothing got what the previous exchange had left.
enum class AttemptCount { Fresh, Single, Inherited };

enum class ExchangeKind { Read, Write };

// The service traffic of the engineering panels on the link. One channel serves every panel
// and keeps the request selectors between them. A panel operation (one button press, which may
// send several requests) begins on the channel, owning the link until it ends; a second one
// begun meanwhile, from any panel or a read or write session, is refused with a message.
//
// Each request reports its reply (or its absence) to the callback given with it, once the link
// says so; nothing waits in a loop. The channel shows only what concerns the link itself: a
// busy link, a closed port (once per operation), and replies of the wrong length when the
// request ends without its own.
class ServiceChannel : public QObject, public LinkClient {
    Q_OBJECT

public:
    // The reply's payload (in line mode the line buffer), or nothing when the attempts were
    // used up or the port failed.
    using Reply = std::optional<QByteArray>;
    using Done = std::function<void(const Reply&)>;
    static constexpr int kReplyTimeoutMs = 1000;

    ServiceChannel(LinkTransport& transport, Prompts& prompts, QObject* parent = nullptr);
    ~ServiceChannel() override;

    // The windows' captions follow the language through languageChanged.
    void setLanguage(UiLanguage language);
    UiLanguage language() const { return language_; }
    Prompts& prompts() { return prompts_; }
    bool portOpen() const;

    RequestSelectors selectors;

    // Ownership of the link for one panel operation. False (after the message) while another
    // operation or a session holds it.
    bool begin();
    void end();
    bool operationRunning() const { return running_; }

    // Sends `frame` and awaits a reply of an `accepted` length, re-sending on each 1000 ms
    // time-out as `preset` allows. Only within an operation.
    void Pc_Send_dt(const QByteArray& frame, AttemptCount preset, ReplyLengths accepted, Done done);
    // The exchange of the calibration panel: a read is refused while the port is closed
    // (message and false, nothing sent); monitor mode ends, both selectors become 0, and the
    // request built by `build` goes out with three attempts.
    bool Panel_Exchange(ExchangeKind kind, const std::function<QByteArray()>& build,
                        ReplyLengths accepted, Done done);

    // send_uart: sends `frame` and awaits no reply; `sent` runs once it is on the line (or, with
    // the port closed, once that has been reported). Only within an operation.
    void send_uart(const QByteArray& frame, std::function<void()> sent);

    // init_send_str: the next reply is text lines ended by a carriage return.
    void init_send_str();
    void endLineMode();
    // Monitor mode: while a handler is set every good frame goes to it and no request sees
    // a reply. Panel_Exchange ends it.
    void setMonitor(std::function<void(const QByteArray&)> handler);
    bool monitorActive() const;

    // Drops the request under way without its callback (the operation's owner gave up).
    void abandon();

    // LinkClient
    void replyReceived(const QByteArray& payload) override;
    void exchangeFailed(const LinkFailure& failure) override;
    void replyIgnored(int length) override { ignoredLength_ = length; }
    void portClosedOnSend() override;
    void sendFinished() override;

Q_SIGNALS:
    // Monitor mode began or ended (whoever ended it).
    void monitorChanged(bool active);

Q_SIGNALS:
    void languageChanged(UiLanguage language);

private:
    void complete(const Reply& reply);

    LinkTransport& transport_;
    Prompts& prompts_;
    UiLanguage language_ = UiLanguage::Chinese;
    bool running_ = false;
    bool portClosedReported_ = false;
    Done done_;
    std::function<void()> sent_;
    int ignoredLength_ = -1;  // of a reply to the request under way that did not fit it
};
