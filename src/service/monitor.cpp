#include "service/monitor.h"

#include "link/frame.h"
#include "service/service_protocol.h"

namespace {

int byteAt(const QByteArray& bytes, int i) {
    return static_cast<quint8>(bytes[i]);
}

// Two bytes, high first. The radio's counts are unsigned; a high byte of 128 or more is a
// large count, not a negative one.
int wordAt(const QByteArray& bytes, int i) {
    return byteAt(bytes, i) * 256 + byteAt(bytes, i + 1);
}

}  // namespace

QByteArray monitorRequest(MonitorMode mode) {
    return LinkFrame{service::kMonitor, QByteArray(1, static_cast<char>(mode))}.encode();
}

QByteArray testModeRequest(DtmfTest test, const RequestSelectors& selectors) {
    return pack_Data_Cmd(service::kTestMode, {static_cast<quint8>(test), 0, 0}, selectors);
}

std::optional<MonitorFrame> decodeMonitorFrame(const QByteArray& payload) {
    if (payload.isEmpty()) return std::nullopt;
    MonitorFrame frame;
    switch (byteAt(payload, 0)) {
        case static_cast<int>(MonitorMode::Rssi):
            if (payload.size() < service::kRssiFrameSize) return std::nullopt;
            frame.kind = MonitorMode::Rssi;
            frame.rssi = {byteAt(payload, 1), wordAt(payload, 2), wordAt(payload, 4),
                          byteAt(payload, 6)};
            return frame;
        case static_cast<int>(MonitorMode::Battery):
            if (payload.size() < service::kBatteryFrameSize) return std::nullopt;
            frame.kind = MonitorMode::Battery;
            frame.battery = {byteAt(payload, 1) == 1, wordAt(payload, 2)};
            return frame;
        default:
            return std::nullopt;
    }
}

QString monitorValueLine(const MonitorFrame& frame) {
    if (frame.kind == MonitorMode::Battery) {
        return QStringLiteral("charging=%1 battery=%2")
            .arg(frame.battery.charging ? 1 : 0)
            .arg(frame.battery.value);
    }
    return QStringLiteral("rssi=%1 snr=%2 afc=%3 audio=%4")
        .arg(frame.rssi.rssi)
        .arg(frame.rssi.snr)
        .arg(frame.rssi.afc)
        .arg(frame.rssi.audio);
}
