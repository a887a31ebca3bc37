#pragma once

#include <QByteArray>
#include <optional>

// The radio's board options and audio level tables: the PTT pin and P key threshold, the
// ten-byte volume record and the audio player's eight steps. What is written is what a later
// read returns; the threshold's converter count is kept as it came.
class SimHardwareVolume {
public:
    SimHardwareVolume();

    // The payload of the answer to a request of these tables (empty: an acknowledgement), or
    // nothing for any other request.
    std::optional<QByteArray> answer(quint8 command, const QByteArray& payload);

    int pttPin() const { return pin_; }
    int thresholdIndex() const { return thresholdIndex_; }
    int thresholdCount() const { return thresholdCount_; }
    QByteArray volumeRecord() const { return volume_; }
    QByteArray playerLevels() const { return player_; }
    // A radio whose options were set by something else than this program.
    void setHardware(quint8 pin, quint8 thresholdIndex) {
        pin_ = pin;
        thresholdIndex_ = thresholdIndex;
    }

private:
    quint8 pin_ = 0;
    quint8 thresholdIndex_ = 4;  // 2.00 V
    int thresholdCount_ = 621;
    QByteArray volume_;
    QByteArray player_;  // the eight steps, without the record's first byte
};
