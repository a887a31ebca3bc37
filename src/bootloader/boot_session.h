#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

#include "l10n/boot_texts.h"
#include "link/link_client.h"

class LinkTransport;

// One operation of the radio's boot loader, erase, write or read, as a state machine on the
// link: the link phase (0x3B every 100 ms until the loader answers, up to 1000 times), then
// the operation's commands, one outstanding request at a time, each with its own time-out and
// a single attempt. Everything it has to say is a log line, in order. A write is checked
// against its range before anything is erased, and is read back and compared afterwards unless
// told otherwise.
class BootSession : public QObject, public LinkClient {
    Q_OBJECT

public:
    enum class Operation { Erase, Write, Read };
    enum class Outcome { Succeeded, Failed, Cancelled };

    struct Job {
        Operation operation = Operation::Erase;
        int start = 0x1000;
        int end = 0x7FFF;
        QByteArray image;    // what a write sends
        QString imagePath;   // logged by a write; empty: no file was chosen
        bool verify = true;  // a write reads its range back and compares
    };

    BootSession(LinkTransport& transport, UiLanguage language, QObject* parent = nullptr);
    ~BootSession() override;

    // Starts `job`; false when it ends at once (a refused range or file, a closed port, a busy
    // link), after logging why and emitting finished().
    bool start(const Job& job);
    void cancel();
    bool isRunning() const { return step_ != Step::Idle; }
    Outcome outcome() const { return outcome_; }
    // What a read brought back (a write's verify keeps it too).
    const QByteArray& data() const { return data_; }

    void replyReceived(const QByteArray& payload) override;
    void attemptTimedOut(int attempt) override;
    void exchangeFailed(const LinkFailure& failure) override;

Q_SIGNALS:
    void logLine(const QString& line);
    // The window's bar, 0..100, advanced by the loader window's own rule.
    void progressChanged(int value);
    // Blocks done out of all the blocks of the current phase, for a percentage and time left.
    void blocksDone(int done, int total);
    // The link phase has sent `attempt` of `attempts` link requests without an answer.
    void linkWaiting(int attempt, int attempts);
    void finished(Outcome outcome);

private:
    enum class Step {
        Idle,
        Linking,
        Erasing,
        Writing,
        EndingWrite,
        StartingRead,
        Reading,
        EndingRead
    };

    void log(l10n::BootText id);
    void log(const QString& line);
    void end(Outcome outcome);
    void fail(l10n::BootText id);
    // For a job that ends before anything is sent.
    bool refuse(l10n::BootText id);
    void afterLink();
    // The first block of a write or read phase, from the start address.
    void beginBlocks(Step step);
    void ask(const QByteArray& frame, int replyMs, ReplyLengths accepted = ReplyLengths::any());
    void sendBlock();
    void blockDone();
    void startReadBack();
    void finishRead();

    LinkTransport& transport_;
    UiLanguage language_;
    Job job_;
    Step step_ = Step::Idle;
    Outcome outcome_ = Outcome::Failed;
    bool verifying_ = false;

    QByteArray blocks_;  // a write's image in whole blocks
    QByteArray data_;    // what a read or a verify brought back
    int length_ = 0;     // L: bytes of the phase under way
    int offset_ = 0;     // transfer offset
    int blockCount_ = 0;
    int address_ = 0;
    double progressCounter_ = 0;
    int progress_ = 0;
};
