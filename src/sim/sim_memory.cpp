#include "sim/sim_memory.h"

#include "link/protocol.h"

namespace {

// Positions in the normal code list.
constexpr int kOff = 0;
constexpr int kTone67 = 1;
constexpr int kTone885 = 8;
constexpr int kDcs023 = 39;

constexpr int kFirstStep = 7361;  // 446.00625 MHz above 400 MHz in 6.25 kHz steps
constexpr int kBothSteps625 = protocol::kRxStep625 | protocol::kTxStep625;
using protocol::kHighPower;
using protocol::kWide;

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

    using namespace protocol;
    QByteArray record(kShortChannelRecord, '\0');
    record[kRxFreq] = record[kTxFreq] = static_cast<char>(steps >> 8);
    record[kRxFreq + 1] = record[kTxFreq + 1] = static_cast<char>(steps & 0xFF);
    record[kRxCode] = record[kTxCode] = static_cast<char>(code);
    record[kFlags] = static_cast<char>(flags);
    record[kRxCustom] = record[kTxCustom] = 0x02;  // custom tones 67.0 Hz
    record[kRxCustom + 1] = record[kTxCustom + 1] = static_cast<char>(0x9E);
    return record;
}
