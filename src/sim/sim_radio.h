#pragma once

#include <QByteArray>
#include <QString>
#include <array>
#include <deque>
#include <functional>
#include <memory>

#include "platform/clock.h"
#include "sim/sim_bootloader.h"
#include "sim/sim_faults.h"
#include "sim/sim_production.h"
#include "sim/sim_service.h"

// The radio side of the programming protocol: it keeps a settings record and 25 channel
// records in its memory and answers the programming requests after a reply latency.
//   "S" -> the settings record, "R" block i -> channel record i,
//   "X" -> takes the settings record,  "W" block i -> takes channel record i (11 or 13 bytes),
//   both acknowledged with an empty frame; "E" ends programming and gets no reply (and is when
//   a stored byte goes bad, if the faults say so).
// Replies carrying records use the command byte 'D' (0x44), acknowledgements 'A' (0x41).
// The engineering panels' requests go to its service side (SimService), which answers with a
// record, an acknowledgement or a line of text.
// Anything else (unknown commands, bad checksums, malformed records) goes unanswered.
class SimRadio {
public:
    static constexpr int kChannelCount = 25;
    static constexpr int kDefaultLatencyMs = 30;  // beyond the program's 20 ms settle
    static constexpr quint8 kRecordReply = 0x44;  // 'D'
    static constexpr quint8 kAcknowledge = 0x41;  // 'A'
    // A pause this long inside a request makes the radio start listening afresh.
    static constexpr int kInterByteTimeoutMs = 100;

    enum class TraceKind { Request, Reply, Dropped, HangUp };
    using TraceSink = std::function<void(TraceKind, const QByteArray&, const QString& note)>;

    explicit SimRadio(Clock& clock);
    ~SimRadio();

    // Where the radio's bytes go (the line to the program), and what it does when it hangs up.
    void setTransmitter(std::function<void(const QByteArray&)> transmit) {
        transmit_ = std::move(transmit);
    }
    void setHangUpHandler(std::function<void()> hangUp) { hangUp_ = std::move(hangUp); }
    void setTraceSink(TraceSink sink) { trace_ = std::move(sink); }

    void setFaults(const SimFaults& faults);
    void setLatencyMs(int ms) { latencyMs_ = ms; }

    // Bytes that have arrived from the program.
    void receive(const QByteArray& bytes);

    QByteArray settingsRecord() const { return settings_; }
    QByteArray channelRecord(int slot) const { return channels_.at(static_cast<size_t>(slot)); }
    void setSettingsRecord(const QByteArray& record) { settings_ = record; }
    void setChannelRecord(int slot, const QByteArray& record) {
        channels_.at(static_cast<size_t>(slot)) = record;
    }

    SimBootloader& bootloader() { return bootloader_; }
    SimService& service() { return service_; }
    SimProduction& production() { return production_; }

    int requestCount() const { return requestCount_; }
    bool programmingEnded() const { return programmingEnded_; }
    bool hungUp() const { return hungUp_; }

private:
    void feed(quint8 byte);
    void handleRequest(quint8 command, const QByteArray& payload);
    void reply(quint8 command, const QByteArray& payload, int extraDelayMs = 0);
    void answerService(quint8 command, const QByteArray& payload);
    void dropStaleMeasurements();
    void corruptStoredByte();
    void queue(const QByteArray& bytes, const QString& note, int extraDelayMs = 0);
    void sendDue();
    void sendNoise();
    void note(TraceKind kind, const QByteArray& bytes, const QString& text = {});

    Clock& clock_;
    std::function<void(const QByteArray&)> transmit_;
    std::function<void()> hangUp_;
    TraceSink trace_;
    SimFaults faults_;
    int latencyMs_ = kDefaultLatencyMs;

    SimBootloader bootloader_;
    QByteArray settings_;
    std::array<QByteArray, kChannelCount> channels_;
    SimService service_;
    SimProduction production_;

    // The request under way.
    QByteArray request_;
    qint64 lastByteMs_ = 0;

    struct PendingReply {
        qint64 dueMs;
        QByteArray bytes;
        QString note;
    };
    std::deque<PendingReply> pending_;
    std::unique_ptr<Timer> replyTimer_;
    std::unique_ptr<Timer> noiseTimer_;
    quint32 noiseState_ = 0x2545F491;  // the same noise every run

    int requestCount_ = 0;
    bool programmingEnded_ = false;
    bool hungUp_ = false;
};
