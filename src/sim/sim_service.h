#pragma once

#include <QByteArray>
#include <array>
#include <optional>

#include "sim/sim_hardware_volume.h"

// The radio's side of the engineering panels: an RF register file, the register table in its
// EEPROM, the calibration record, the band table, the crystal trim and a version text. What
// is written is what a later read returns.
class SimService {
public:
    static constexpr int kRfRegisters = 256;
    static constexpr int kEepromRows = 10;

    struct Answer {
        enum Kind { Record, Acknowledge, Text } kind;
        QByteArray bytes;  // a record's payload, or the text as it goes on the line
    };

    SimService();

    // The answer to a service request, or nothing for a request it does not know (or a
    // malformed one).
    std::optional<Answer> answer(quint8 command, const QByteArray& payload);

    int rfRegister(int address) const { return rf_.at(static_cast<size_t>(address)); }
    QByteArray calibrationRecord() const { return calibration_; }
    QByteArray bandSegment(int segment) const { return band_.at(static_cast<size_t>(segment)); }
    int crystalTrim() const { return static_cast<qint8>(crystal_); }
    int eepromRowCount() const { return eepromCount_; }
    SimHardwareVolume& hardwareVolume() { return hardwareVolume_; }

    static QByteArray defaultBandSegment(int segment);
    static QByteArray versionText();

private:
    struct EepromRow {
        quint8 address = 0;
        quint16 value = 0;
    };

    std::optional<Answer> registerRequest(quint8 command, const QByteArray& payload);
    std::optional<Answer> panelRequest(quint8 command, const QByteArray& payload);

    std::array<quint16, kRfRegisters> rf_{};
    std::array<EepromRow, kEepromRows> eeprom_{};
    int eepromCount_ = 0;
    QByteArray calibration_;
    std::array<QByteArray, 4> band_;
    quint8 crystal_ = 0;
    SimHardwareVolume hardwareVolume_;
};
