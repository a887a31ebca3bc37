#include "sim/sim_hardware_volume.h"

#include "service/service_protocol.h"

using namespace service;

namespace {

constexpr int kAddressBytes = 2;
constexpr int kPlayerSteps = kPlayerRecordSize - 1;
// The player record starts with its number of steps, which the program leaves alone.
constexpr char kPlayerRecordHead = kPlayerSteps;

int at(const QByteArray& bytes, int i) {
    return i < bytes.size() ? static_cast<quint8>(bytes[i]) : 0;
}

}  // namespace

SimHardwareVolume::SimHardwareVolume()
    : volume_(QByteArray::fromHex("0c0306090c0f12151a0c")),
      player_(QByteArray::fromHex("04080c1014181c1f")) {}

std::optional<QByteArray> SimHardwareVolume::answer(quint8 command, const QByteArray& payload) {
    const int size = static_cast<int>(payload.size());
    switch (command) {
        case kHardwareRead:
            if (size != 3) return std::nullopt;
            return QByteArray()
                .append(static_cast<char>(pin_))
                .append(static_cast<char>(thresholdIndex_));
        case kHardwareWrite:
            if (size != kAddressBytes + 4) return std::nullopt;
            pin_ = static_cast<quint8>(at(payload, 2));
            thresholdIndex_ = static_cast<quint8>(at(payload, 3));
            thresholdCount_ = at(payload, 4) * 256 + at(payload, 5);
            return QByteArray();
        case kVolumeRead:
            if (size != 3) return std::nullopt;
            return volume_;
        case kVolumeWrite:
            if (size != kAddressBytes + kVolumeRecordSize) return std::nullopt;
            volume_ = payload.mid(kAddressBytes);
            return QByteArray();
        case kPlayerRead:
            // With 22 bytes the same command writes a band segment.
            if (size != 3) return std::nullopt;
            return QByteArray(1, kPlayerRecordHead) + player_;
        case kPlayerWrite:
            // With 3 bytes the same command restores the band table.
            if (size != kAddressBytes + kPlayerRecordSize) return std::nullopt;
            player_ = payload.mid(kAddressBytes + 1);
            return QByteArray();
        default:
            return std::nullopt;
    }
}
