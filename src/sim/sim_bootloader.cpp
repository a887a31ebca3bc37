#include "sim/sim_bootloader.h"

#include "bootloader/boot_frames.h"
#include "sim/sim_faults.h"

namespace {

using namespace boot;
constexpr char kErasedByte = static_cast<char>(boot::kErased);

int parameterOf(const QByteArray& payload) {
    if (payload.size() < 2) return -1;
    return static_cast<quint8>(payload[0]) | static_cast<quint8>(payload[1]) << 8;
}

}  // namespace

SimBootloader::SimBootloader() : memory_(kMemorySize, kErasedByte) {}

void SimBootloader::setMemory(const QByteArray& memory) {
    memory_ = memory.left(kMemorySize);
    memory_.append(QByteArray(kMemorySize - memory_.size(), kErasedByte));
}

bool SimBootloader::handles(quint8 command) {
    switch (command) {
        case kLink:
        case kErase:
        case kWriteBlock:
        case kEndWrite:
        case kStartRead:
        case kReadBlock:
        case kEndRead:
            return true;
        default:
            return false;
    }
}

std::optional<SimBootloader::Reply> SimBootloader::handle(quint8 command, const QByteArray& payload,
                                                          const SimFaults& faults) {
    if (faults.notInBootMode) return std::nullopt;
    const int parameter = parameterOf(payload);
    if (parameter < 0) return std::nullopt;
    switch (command) {
        case kLink:
        case kEndWrite:
        case kEndRead:
            return Reply{};
        case kErase: {
            const int first = parameter & 0xFF, last = parameter >> 8;
            if (last < first || (last + 1) * kPageSize > kMemorySize) return std::nullopt;
            const int pages = last - first + 1;
            memory_.replace(first * kPageSize, pages * kPageSize,
                            QByteArray(pages * kPageSize, kErasedByte));
            return Reply{{}, eraseMs_};
        }
        case kWriteBlock: {
            const QByteArray data = payload.mid(2);
            if (data.size() != kBlockSize || parameter + kBlockSize > kMemorySize)
                return std::nullopt;
            // Flash only clears bits: writing over unerased bytes keeps what both allow.
            for (int i = 0; i < kBlockSize; ++i)
                memory_[parameter + i] = static_cast<char>(memory_[parameter + i] & data[i]);
            return Reply{};
        }
        case kStartRead:
            readBlocks_ = 0;
            return Reply{};
        case kReadBlock: {
            if (parameter + kBlockSize > kMemorySize) return std::nullopt;
            QByteArray block = memory_.mid(parameter, kBlockSize);
            if (++readBlocks_ == faults.corruptReadBlock)
                block[kCorruptedOffset] = static_cast<char>(block[kCorruptedOffset] ^ 0x01);
            return Reply{block};
        }
        default:
            return std::nullopt;
    }
}
