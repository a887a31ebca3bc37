#pragma once

#include <QByteArray>
#include <functional>
#include <memory>
#include <optional>

#include "platform/clock.h"
#include "sim/sim_service.h"

// The radio's production-line side: its identity number, the DTMF test it runs, and the
// monitor modes in which it streams measurements about five times a second: the receiver's
// RSSI (with SNR, AFC and audio level) or the battery's converter count with the charger's
// flag. The values wander like a live receiver's and a battery on and off the charger.
// A monitor request of 0 ends the stream, and so does any other request the radio hears: it
// leaves the monitor to answer it.
class SimProduction {
public:
    static constexpr int kFrameIntervalMs = 200;
    static constexpr int kChargeSwitchFrames = 20;  // the charger comes and goes every 4 s

    SimProduction(Clock& clock, std::function<void(const QByteArray&)> sendFrame);
    ~SimProduction();

    // The answer to a request it knows; the monitor request gets none.
    std::optional<SimService::Answer> answer(quint8 command, const QByteArray& payload);
    // Another request was heard.
    void interrupt() { setMonitor(0); }

    quint32 identity() const { return identity_; }
    int dtmfTest() const { return dtmfTest_; }
    int monitorMode() const { return monitor_; }
    int framesSent() const { return frames_; }

private:
    void setMonitor(int mode);
    void sendMeasurement();
    int noise(int span);

    std::function<void(const QByteArray&)> sendFrame_;
    std::unique_ptr<Timer> timer_;
    quint32 identity_ = 0;
    int dtmfTest_ = 0;
    int monitor_ = 0;
    int frames_ = 0;
    int battery_ = 480;
    bool charging_ = false;
    quint32 noiseState_ = 0x9E3779B9;  // the same measurements every run
};
