#include "sim/sim_production.h"

#include "service/service_protocol.h"

using namespace service;

namespace {

void appendWord(QByteArray* bytes, int value) {
    bytes->append(static_cast<char>((value >> 8) & 0xFF)).append(static_cast<char>(value & 0xFF));
}

}  // namespace

SimProduction::SimProduction(Clock& clock, std::function<void(const QByteArray&)> sendFrame)
    : sendFrame_(std::move(sendFrame)), timer_(clock.createTimer()) {
    timer_->setCallback([this] { sendMeasurement(); });
}

SimProduction::~SimProduction() = default;

std::optional<SimService::Answer> SimProduction::answer(quint8 command, const QByteArray& payload) {
    const int size = static_cast<int>(payload.size());
    switch (command) {
        case kIdentityWrite:
            if (size != kIdentitySize) return std::nullopt;
            identity_ = 0;
            for (char byte : payload) identity_ = (identity_ << 8) | static_cast<quint8>(byte);
            return SimService::Answer{SimService::Answer::Acknowledge, {}};
        case kIdentityRead: {
            if (size != 3) return std::nullopt;
            QByteArray bytes;
            appendWord(&bytes, static_cast<int>(identity_ >> 16));
            appendWord(&bytes, static_cast<int>(identity_ & 0xFFFF));
            return SimService::Answer{SimService::Answer::Record, bytes};
        }
        case kTestMode:
            if (size != 5 || static_cast<quint8>(payload[2]) > 2) return std::nullopt;
            dtmfTest_ = static_cast<quint8>(payload[2]);
            return SimService::Answer{SimService::Answer::Acknowledge, {}};
        case kMonitor:
            if (size == 1 && static_cast<quint8>(payload[0]) <= 2) {
                setMonitor(static_cast<quint8>(payload[0]));
            }
            return std::nullopt;
        default:
            return std::nullopt;
    }
}

void SimProduction::setMonitor(int mode) {
    monitor_ = mode;
    if (monitor_ == 0) {
        timer_->stop();
        return;
    }
    if (!timer_->isActive()) timer_->start(kFrameIntervalMs);
}

int SimProduction::noise(int span) {
    noiseState_ ^= noiseState_ << 13;
    noiseState_ ^= noiseState_ >> 17;
    noiseState_ ^= noiseState_ << 5;
    return static_cast<int>(noiseState_ % static_cast<quint32>(span));
}

void SimProduction::sendMeasurement() {
    if (monitor_ == 0) return;
    ++frames_;
    QByteArray payload(1, static_cast<char>(monitor_));
    if (monitor_ == 1) {
        // A signal that fades in and out, with the receiver's own jitter on top.
        const int fade = (frames_ % 16 < 8) ? frames_ % 8 : 8 - frames_ % 8;
        payload.append(static_cast<char>(70 + 4 * fade + noise(6)));
        appendWord(&payload, 10 + fade + noise(4));    // SNR
        appendWord(&payload, 490 + noise(13));         // AFC around its centre
        payload.append(static_cast<char>(noise(16)));  // audio level
    } else {
        if (frames_ % kChargeSwitchFrames == 0) charging_ = !charging_;
        battery_ += charging_ ? 2 : -1;
        payload.append(static_cast<char>(charging_ ? 1 : 0));
        appendWord(&payload, battery_ + noise(3));
    }
    sendFrame_(payload);
    timer_->start(kFrameIntervalMs);
}
