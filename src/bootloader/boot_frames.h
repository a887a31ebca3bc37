#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>
#include <optional>

#include "l10n/boot_texts.h"

// The boot loader's side of the line: its commands, framed like every link frame with a 16-bit
// parameter (low byte first) in front of the data, and the address rules of its three
// operations. Program memory is 32 KB; a page is 256 bytes, data moves in 128-byte blocks.
namespace boot {

enum Command : quint8 {
    kLink = 0x3B,
    kErase = 0x38,
    kWriteBlock = 0x39,
    kEndWrite = 0x3A,
    kStartRead = 0x32,
    kReadBlock = 0x33,
    kEndRead = 0x34,
};

constexpr int kLinkReplyMs = 100;
constexpr int kLinkAttempts = 1000;
constexpr int kEraseReplyMs = 2000;
constexpr int kStartReadReplyMs = 2000;
constexpr int kBlockReplyMs = 500;

constexpr int kBlockSize = 128;
constexpr int kPageSize = 256;
constexpr int kMemorySize = 32768;
constexpr quint8 kErased = 0xFF;
constexpr int kLowestAddress = 0x1000;
constexpr int kHighestEraseStart = 0x7A00;

// Command, n + 2, parameter low and high, n data bytes, checksum. The one-byte commands carry
// a 0.
QByteArray request(Command command, int parameter, const QByteArray& data = QByteArray(1, '\0'));
// The erase parameter: the page of the end address high, the page of the start address low.
int eraseParameter(int start, int end);

// An address as typed: unsigned hexadecimal without prefix; anything else reads as 0.
int parseAddress(const QString& text);

// The refusal of a range, if any: erase and write take start 0x1000..0x7A00, a read any start
// up to 0x8000; every end lies in 0x1000..0x7FFF and not below the start.
std::optional<l10n::BootText> checkEraseRange(int start, int end);
std::optional<l10n::BootText> checkReadRange(int start, int end);

// The blocks a write sends for `image` from `start` to `end`: the image cut in 128-byte blocks,
// the last one padded with the erased value, no block starting at or beyond `end`.
QByteArray paddedImage(const QByteArray& image, int start, int end);

// The CRC-32 that zip and most flashers print.
quint32 crc32(const QByteArray& bytes);

}  // namespace boot
