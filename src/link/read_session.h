#pragma once

#include <QStringList>

#include "l10n/session_texts.h"
#include "link/radio_session.h"

// Reading the radio into the document: the settings request "S" (three attempts, 1 s each),
// then "R" for each of the 25 slots (one attempt of 5 s each), each reply decoded into the
// document as it comes. Slots read before a failure keep their new contents. A reply must
// have the length of its record; a channel whose reply did not fit, or whose record cannot be
// read, is named to the user and the read does not count as a success.
class ReadSession : public RadioSession {
    Q_OBJECT

public:
    static constexpr int kOpeningReplyMs = 1000;
    static constexpr int kOpeningAttempts = 3;
    static constexpr int kChannelReplyMs = 5000;
    static constexpr int kChannelAttempts = 1;
    static constexpr int kProgressPerChannel = 3;

    ReadSession(LinkTransport& transport, Codeplug& doc, Prompts& prompts, SessionView& view,
                QObject* parent = nullptr);

    // The read command. False when it could not start (port closed, link busy).
    bool start() override;
    void cancel() override;

    void replyReceived(const QByteArray& payload) override;
    void exchangeFailed(const LinkFailure& failure) override;
    void replyIgnored(int length) override;

    // Channels (0-based slots) the last read could not take, each with the reason as shown.
    const QStringList& unreadChannels() const { return unreadChannels_; }

private:
    enum class Step { Idle, Opening, Channels };

    void sendOpening();
    void sendChannel();
    void successEnd();
    void errorEnd(SessionOutcome outcome);
    void noteUnread(l10n::SessionText reason, int length = 0);
    // The list of unread channels, when there is one.
    void warnUnread();

    Step step_ = Step::Idle;
    int channel_ = 0;         // ChannelCounter
    int ignoredLength_ = -1;  // of a reply to the current request that did not fit it
    QStringList unreadChannels_;
};
