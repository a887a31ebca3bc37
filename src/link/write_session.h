#pragma once

#include <optional>

#include "link/radio_session.h"
#include "model/notice.h"

// Writing the document into the radio: the frequency checks first (nothing is sent when one
// fails), then the settings record "X" (three attempts, 5 s each), the 25 channel records "W"
// (one attempt each) and the closing "E", which is not answered.
class WriteSession : public RadioSession {
    Q_OBJECT

public:
    static constexpr int kReplyMs = 5000;
    static constexpr int kSettingsAttempts = 3;
    static constexpr int kChannelAttempts = 1;
    static constexpr int kProgressPerRecord = 6;
    static constexpr int kMaxFrequencyLength = 9;

    WriteSession(LinkTransport& transport, Codeplug& doc, Prompts& prompts, SessionView& view,
                 QObject* parent = nullptr);

    // The write command. False when it could not start (a check failed, link busy).
    bool start() override;
    void cancel() override;

    // The first slot whose frequencies may not be written, as the box that says so: an empty
    // cell (looked for first), then a text of more than 9 characters, then a receive frequency
    // outside [L, L + 100]. Each check runs over all slots before the next.
    static std::optional<Notice> checkEmptyFrequencies(const Codeplug& doc);
    static std::optional<Notice> checkFrequencies(const Codeplug& doc);
    // Last, every channel record is built once: a slot that cannot be (a transmit frequency
    // below the band, a custom value too large) refuses the write before anything is sent,
    // rather than ending it half written.
    static std::optional<Notice> checkEncodable(const Codeplug& doc);

    void replyReceived(const QByteArray& payload) override;
    void exchangeFailed(const LinkFailure& failure) override;
    void sendFinished() override;

private:
    enum class Step { Idle, Opening, Channels, Finishing };

    void sendSettings();
    void sendChannel();
    void finish_write();
    void errorEnd();

    Step step_ = Step::Idle;
    int channel_ = 0;  // ChannelCounter
};
