#pragma once

#include <QByteArray>
#include <QStringList>
#include <optional>

#include "service/service_request.h"

// The test-mode requests and the measurements the radio streams while a monitor runs.

enum class MonitorMode { Stop = 0, Rssi = 1, Battery = 2 };
enum class DtmfTest { Stop = 0, Transmit = 1, Receive = 2 };

// [0x55, 1, mode, checksum], e.g. 55 01 01 57.
QByteArray monitorRequest(MonitorMode mode);
// [0x66, 5, block, sub, type, 0, 0, checksum]
QByteArray testModeRequest(DtmfTest test, const RequestSelectors& selectors);

struct RssiReading {
    int rssi = 0;
    int snr = 0;  // two bytes, high first, shown unsigned
    int afc = 0;
    int audio = 0;
    bool operator==(const RssiReading& o) const {
        return rssi == o.rssi && snr == o.snr && afc == o.afc && audio == o.audio;
    }
};
struct BatteryReading {
    bool charging = false;
    int value = 0;  // the converter's count, two bytes, high first
    bool operator==(const BatteryReading& o) const {
        return charging == o.charging && value == o.value;
    }
};

// One monitor frame: an RSSI frame (byte 0 = 1) or a battery frame (byte 0 = 2).
struct MonitorFrame {
    MonitorMode kind = MonitorMode::Stop;
    RssiReading rssi;
    BatteryReading battery;
};
// Nothing for a frame of another kind, or one too short to carry its values.
std::optional<MonitorFrame> decodeMonitorFrame(const QByteArray& payload);

// "rssi=42 snr=16 afc=496 audio=5" or "charging=1 battery=500".
QString monitorValueLine(const MonitorFrame& frame);
