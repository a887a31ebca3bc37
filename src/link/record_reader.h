#pragma once

#include <QByteArray>
#include <QList>
#include <array>
#include <functional>
#include <optional>

#include "link/link_client.h"
#include "model/codeplug.h"

class LinkTransport;

// The radio's programming as the protocol carries it: the settings record (S0..S2; the radio
// does not report S3) and the 25 channel records of 11 or 13 bytes.
struct RadioRecords {
    QByteArray settings;
    std::array<QByteArray, kSlotCount> channels;
};

// Where a quiet read stopped: the record it was asking for, and why.
struct RecordReadStop {
    int channel = 0;  // 0: the settings record, else the 1-based channel
    LinkFailure failure;
};

// Reads the settings and the 25 channel records as a read session does ("S" with three
// attempts of 1 s, then "R" for each slot with one attempt of 5 s), but shows nothing: it keeps
// the records as bytes and tells its owner how it went. The owner holds the link and passes the
// link's events on while the read runs.
class RecordReader : public LinkClient {
public:
    using Progress = std::function<void()>;
    using Done = std::function<void(const std::optional<RecordReadStop>& stop)>;

    explicit RecordReader(LinkTransport& transport) : transport_(transport) {}

    // `progress` after each record, `done` at the end (no stop) or at the first request that
    // went unanswered.
    void start(Progress progress, Done done);
    bool isRunning() const { return next_ >= 0; }
    // Stops without telling the owner (the link has been aborted by then).
    void stop() { next_ = -1; }
    const RadioRecords& records() const { return records_; }

    void replyReceived(const QByteArray& payload) override;
    void exchangeFailed(const LinkFailure& failure) override;

private:
    void requestNext();

    LinkTransport& transport_;
    Progress progress_;
    Done done_;
    RadioRecords records_;
    int next_ = -1;  // 0: settings, 1..25: channel; -1: not running
};

// The records taken into a document as a read would take them. Returns the 1-based channels
// whose record could not be read; their slots are emptied rather than left with what the
// document held before.
QList<int> decode_records(Codeplug& doc, const RadioRecords& records);
