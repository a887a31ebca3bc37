#pragma once

#include "link/radio_session.h"

// Reading the radio into the document: the settings request "S" (three attempts, 1 s each),
// then "R" for each of the 25 slots (one attempt of 5 s each), each reply decoded into the
// document as it comes. Slots read before a failure keep their new contents.
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

private:
    enum class Step { Idle, Opening, Channels };

    void sendOpening();
    void sendChannel();
    void successEnd();
    void errorEnd(SessionOutcome outcome);

    Step step_ = Step::Idle;
    int channel_ = 0;  // ChannelCounter
};
