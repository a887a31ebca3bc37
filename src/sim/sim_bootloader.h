#pragma once

#include <QByteArray>
#include <QtGlobal>
#include <optional>

struct SimFaults;

// The radio's boot loader: 32 KB of program memory (0x0000..0x7FFF, erased to 0xFF) that it
// erases by pages, writes and reads in 128-byte blocks. It answers every command with an empty
// frame, a block read with the block's 128 bytes.
class SimBootloader {
public:
    static constexpr int kDefaultEraseMs = 500;
    // Where in a block the corrupted-read fault flips a bit.
    static constexpr int kCorruptedOffset = 5;

    struct Reply {
        QByteArray payload;  // empty: an acknowledgement
        int delayMs = 0;     // beyond the radio's reply latency: the time an erase takes
    };

    SimBootloader();

    static bool handles(quint8 command);
    // The reply to one request, or none (a loader not in boot mode, a command out of range).
    std::optional<Reply> handle(quint8 command, const QByteArray& payload, const SimFaults& faults);

    void setEraseMs(int ms) { eraseMs_ = ms; }
    const QByteArray& memory() const { return memory_; }
    void setMemory(const QByteArray& memory);

private:
    QByteArray memory_;
    int eraseMs_ = kDefaultEraseMs;
    int readBlocks_ = 0;  // block reads since the last start of read
};
