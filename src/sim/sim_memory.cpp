#include "sim/sim_memory.h"

namespace {

// Positions in the normal code list.
constexpr int kOff = 0;
constexpr int kTone67 = 1;
constexpr int kTone885 = 8;
constexpr int kDcs023 = 39;

constexpr int kFirstStep = 7361;  // 446.00625 MHz above 400 MHz in 6.25 kHz steps
constexpr int kBothSteps625 = 0x03, kWide = 0x04, kHighPower = 0x20;

}  // namespace

QByteArray initialSettingsRecord() {
    return QByteArray::fromHex("13001000");  // S0: fixed bits only; band 0; 16 channels
}

QByteArray initialChannelRecord(int slot) {
    const int steps = kFirstStep + 2 * slot;
    const int codes[] = {kOff, kTone67, kTone885, kDcs023};
    const int code = codes[slot % 4];
    int flags = kBothSteps625;
    if (slot % 3 == 1) flags |= kWide;
    if (slot % 2 == 0) flags |= kHighPower;

    QByteArray record(11, '\0');
    record[0] = static_cast<char>(steps >> 8);
    record[1] = static_cast<char>(steps & 0xFF);
    record[2] = record[0];
    record[3] = record[1];
    record[4] = static_cast<char>(code);
    record[5] = static_cast<char>(code);
    record[6] = static_cast<char>(flags);
    record[7] = record[9] = 0x02;  // custom tones 67.0 Hz
    record[8] = record[10] = static_cast<char>(0x9E);
    return record;
}
