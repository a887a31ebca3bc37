#include "bootloader/boot_frames.h"

#include <algorithm>
#include <array>

#include "link/frame.h"

namespace boot {

QByteArray request(Command command, int parameter, const QByteArray& data) {
    QByteArray payload;
    payload.append(static_cast<char>(parameter & 0xFF));
    payload.append(static_cast<char>((parameter >> 8) & 0xFF));
    payload.append(data);
    return LinkFrame{command, payload}.encode();
}

int eraseParameter(int start, int end) {
    return (end / kPageSize) * 256 + start / kPageSize;
}

int parseAddress(const QString& text) {
    if (text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive)) return 0;
    bool ok = false;
    const qulonglong value = text.toULongLong(&ok, 16);
    // A huge number stays huge, so that the range checks refuse it.
    constexpr int kFarOutOfRange = 0xFFFFF;
    return ok ? static_cast<int>(std::min<qulonglong>(value, kFarOutOfRange)) : 0;
}

namespace {

std::optional<l10n::BootText> checkEnd(int start, int end) {
    if (end < kLowestAddress || end >= kMemorySize || end < start) {
        return l10n::BootText::EndAddressError;
    }
    return std::nullopt;
}

}  // namespace

std::optional<l10n::BootText> checkEraseRange(int start, int end) {
    if (start < kLowestAddress || start > kHighestEraseStart) {
        return l10n::BootText::StartAddressError;
    }
    return checkEnd(start, end);
}

std::optional<l10n::BootText> checkReadRange(int start, int end) {
    if (start > kMemorySize) return l10n::BootText::StartAddressError;
    return checkEnd(start, end);
}

QByteArray paddedImage(const QByteArray& image, int start, int end) {
    QByteArray blocks;
    for (int offset = 0, address = start; offset < image.size() && address < end;
         offset += kBlockSize, address += kBlockSize) {
        QByteArray block = image.mid(offset, kBlockSize);
        block.append(QByteArray(kBlockSize - block.size(), static_cast<char>(kErased)));
        blocks.append(block);
    }
    return blocks;
}

quint32 crc32(const QByteArray& bytes) {
    static const std::array<quint32, 256> table = [] {
        std::array<quint32, 256> t{};
        for (quint32 i = 0; i < 256; ++i) {
            quint32 c = i;
            for (int k = 0; k < 8; ++k) c = (c & 1) ? 0xEDB88320u ^ (c >> 1) : c >> 1;
            t[i] = c;
        }
        return t;
    }();
    quint32 crc = 0xFFFFFFFFu;
    for (char byte : bytes) crc = table[(crc ^ static_cast<quint8>(byte)) & 0xFF] ^ (crc >> 8);
    return crc ^ 0xFFFFFFFFu;
}

}  // namespace boot
