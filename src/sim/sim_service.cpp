#include "sim/sim_service.h"

#include "service/service_protocol.h"

using namespace service;

namespace {

constexpr int kAddressBytes = 2;

int at(const QByteArray& bytes, int i) {
    return i < bytes.size() ? static_cast<quint8>(bytes[i]) : 0;
}

QByteArray registerReply(int address, int value) {
    QByteArray reply;
    reply.append(static_cast<char>(address))
        .append(static_cast<char>(value >> 8))
        .append(static_cast<char>(value & 0xFF));
    return reply;
}

SimService::Answer record(const QByteArray& bytes) {
    return {SimService::Answer::Record, bytes};
}

SimService::Answer acknowledge() {
    return {SimService::Answer::Acknowledge, {}};
}

}  // namespace

SimService::SimService() : calibration_(QByteArray::fromHex("46232a2880003535")) {
    // A chip fresh from reset: every register holds something a technician would recognise
    // as its own, not zeros.
    for (int address = 0; address < kRfRegisters; ++address) {
        rf_[static_cast<size_t>(address)] = static_cast<quint16>((address * 0x0101) ^ 0x1C00);
    }
    eeprom_[0] = {0x30, 0x3020};
    eeprom_[1] = {0x3A, 0x1F00};
    eeprom_[2] = {0x4B, 0x0C00};
    eepromCount_ = 3;
    for (int segment = 0; segment < kBandSegments; ++segment) {
        band_[static_cast<size_t>(segment)] = defaultBandSegment(segment);
    }
}

QByteArray SimService::defaultBandSegment(int segment) {
    QByteArray bytes(kBandSegmentSize, '\0');
    for (int i = 0; i < kBandSegmentSize; ++i) {
        int value = 21;                               // RSSI threshold
        if (segment <= 1) value = i < 8 ? 131 : 128;  // 1.70 V and 1.65 V of transmit control
        if (segment == 2) value = 46 + 9 * i;         // the receiver's tuning voltage rises
        bytes[i] = static_cast<char>(value);
    }
    return bytes;
}

QByteArray SimService::versionText() {
    return QByteArrayLiteral("SIM RADIO V1.0\nFW 19.0.13\r");
}

std::optional<SimService::Answer> SimService::answer(quint8 command, const QByteArray& payload) {
    if (std::optional<Answer> answer = registerRequest(command, payload)) return answer;
    if (const std::optional<QByteArray> levels = hardwareVolume_.answer(command, payload))
        return levels->isEmpty() ? acknowledge() : record(*levels);
    return panelRequest(command, payload);
}

std::optional<SimService::Answer> SimService::registerRequest(quint8 command,
                                                              const QByteArray& payload) {
    const int block = at(payload, 0);
    const int sub = at(payload, 1);
    const int size = static_cast<int>(payload.size());
    const int value = at(payload, 3) * 256 + at(payload, 4);
    switch (command) {
        case kEepromClear:
            if (size != 3) return std::nullopt;
            eeprom_ = {};
            eepromCount_ = 0;
            return acknowledge();
        case kEepromRowRead: {
            if (size != 3 || block >= kEepromRows) return std::nullopt;
            // Rows beyond the table's length read as empty.
            const EepromRow row =
                block < eepromCount_ ? eeprom_[static_cast<size_t>(block)] : EepromRow{};
            return record(registerReply(row.address, row.value));
        }
        case kEepromRowWrite:
            if (size != 5 || block >= kEepromRows || sub > kEepromRows) return std::nullopt;
            eeprom_[static_cast<size_t>(block)] = {static_cast<quint8>(at(payload, 2)),
                                                   static_cast<quint16>(value)};
            eepromCount_ = sub;
            return acknowledge();
        case kRficRead:
            if (size != 3) return std::nullopt;
            return record(registerReply(sub, rf_[static_cast<size_t>(sub)]));
        case kRficWrite:
            if (size != 5) return std::nullopt;
            rf_[static_cast<size_t>(at(payload, 2))] = static_cast<quint16>(value);
            return acknowledge();
        default:
            return std::nullopt;
    }
}

std::optional<SimService::Answer> SimService::panelRequest(quint8 command,
                                                           const QByteArray& payload) {
    const int block = at(payload, 0);
    const int size = static_cast<int>(payload.size());
    switch (command) {
        case kCalibrationRead:
            if (size != 3) return std::nullopt;
            return record(calibration_);
        case kCalibrationWrite:
            if (size != kAddressBytes + kCalibrationRecordSize) return std::nullopt;
            calibration_ = payload.mid(kAddressBytes);
            return acknowledge();
        case kBandRead:
            if (size != 3 || block >= kBandSegments) return std::nullopt;
            return record(band_[static_cast<size_t>(block)]);
        case kBandWrite:
            // The same command with three bytes reads a volume table this radio lacks.
            if (size != kAddressBytes + kBandSegmentSize || block >= kBandSegments)
                return std::nullopt;
            band_[static_cast<size_t>(block)] = payload.mid(kAddressBytes);
            return acknowledge();
        case kBandDefaults:
            if (size != 3) return std::nullopt;
            for (int segment = 0; segment < kBandSegments; ++segment) {
                band_[static_cast<size_t>(segment)] = defaultBandSegment(segment);
            }
            return acknowledge();
        case kVersionRead:
            if (size != 3) return std::nullopt;
            return Answer{Answer::Text, versionText()};
        case kCrystalRead:
            if (size != 3) return std::nullopt;
            return record(QByteArray(kCrystalReplyByte, '\0').append(static_cast<char>(crystal_)));
        case kCrystalWrite:
            if (size != 4) return std::nullopt;
            crystal_ = static_cast<quint8>(at(payload, 3));
            return acknowledge();
        default:
            return std::nullopt;
    }
}
