#pragma once

#include <QDateTime>
#include <QList>
#include <optional>

#include "link/radio_session.h"
#include "link/record_reader.h"
#include "model/notice.h"

// What a write does around the records it sends: a backup of the radio's plan before the first
// of them, and a read back after the last one, compared with what was sent.
struct SafeWriteOptions {
    bool backup = false;
    bool verify = false;
    QString backupFolder;  // where the backup file goes (made when missing)
    QString portName;      // part of the backup file's name
};

// Writing the document into the radio: the frequency checks first (nothing is sent when one
// fails), then the settings record "X" (three attempts, 5 s each), the 25 channel records "W"
// (one attempt each) and the closing "E", which is not answered.
//
// With a backup, the radio's settings and channels are read first, as a read does, and saved as
// a codeplug file; when that fails nothing is written. With a verify, the records are read back
// after the "E" and compared with those sent; a difference fails the write and is named.
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
    WriteSession(LinkTransport& transport, Codeplug& doc, Prompts& prompts, SessionView& view,
                 SafeWriteOptions options, QObject* parent = nullptr);

    // Where the progress bar stands at the end of a write with these options.
    static int progressGoal(const SafeWriteOptions& options);

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

Q_SIGNALS:
    // The backup has been saved, before anything is written; `unreadChannels` (1-based) could
    // not be read and are empty in it.
    void backupSaved(const QString& path, const QList<int>& unreadChannels);

private:
    enum class Step { Idle, Backup, Opening, Channels, Finishing, Verify };

    void startWriting();
    void sendSettings();
    void sendChannel();
    void finish_write();
    void errorEnd();
    void backupRead(const std::optional<RecordReadStop>& stop);
    void verifyRead(const std::optional<RecordReadStop>& stop);
    void successEnd();
    // Ends the session with a warning box; the write failed.
    void failWith(const QString& text, SessionOutcome outcome);
    QString whyStopped(const RecordReadStop& stop) const;
    bool reading() const { return step_ == Step::Backup || step_ == Step::Verify; }

    SafeWriteOptions options_;
    // The plan as it stood when the write began. The window stays open to edits while the
    // records go out; those wait for the next write instead of landing half in this one.
    Codeplug plan_;
    RecordReader reader_;
    RadioRecords written_;
    Step step_ = Step::Idle;
    int channel_ = 0;  // ChannelCounter
};
