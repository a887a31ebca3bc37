#include "bootloader/boot_frames.h"

#include <gtest/gtest.h>

namespace {

using l10n::BootText;

TEST(BootFrames, RequestsCarryTheParameterLowByteFirst) {
    const struct {
        boot::Command command;
        int parameter;
        QByteArray data;
        const char* hex;
    } cases[] = {
        {boot::kLink, 0, QByteArray(1, '\0'), "3b 03 00 00 00 3e"},
        {boot::kErase, boot::eraseParameter(0x1000, 0x7FFF), QByteArray(1, '\0'),
         "38 03 10 7f 00 ca"},
        {boot::kEndWrite, 224, QByteArray(1, '\0'), "3a 03 e0 00 00 1d"},
        {boot::kReadBlock, 0x1080, QByteArray(1, '\0'), "33 03 80 10 00 c6"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(boot::request(c.command, c.parameter, c.data).toHex(' '), QByteArray(c.hex));
    }
    const QByteArray block = boot::request(boot::kWriteBlock, 0x1000, QByteArray(128, '\x01'));
    EXPECT_EQ(block.size(), 133);
    EXPECT_EQ(block.left(4).toHex(' '), "39 82 00 10");
    EXPECT_EQ(static_cast<quint8>(block.back()), (0x39 + 0x82 + 0x10 + 128) % 256);
}

TEST(BootFrames, AddressesAreHexWithoutPrefix) {
    const struct {
        const char* text;
        int value;
    } cases[] = {{"1000", 0x1000}, {"7FFF", 32767}, {"8000", 32768}, {"7a01", 0x7A01},
                 {"", 0},          {"12G4", 0},     {"0x1000", 0},   {"FFFFFFFFFFFF", 0xFFFFF}};
    for (const auto& c : cases) EXPECT_EQ(boot::parseAddress(c.text), c.value) << c.text;
}

TEST(BootFrames, RangesEachOperationTakes) {
    using Fault = std::optional<BootText>;
    const struct {
        int start, end;
        Fault erase, read;
    } cases[] = {
        {0x1000, 0x7FFF, {}, {}},
        {0x7A00, 0x7FFF, {}, {}},
        {0x7A01, 0x7FFF, BootText::StartAddressError, {}},
        {0x0FFF, 0x7FFF, BootText::StartAddressError, {}},
        {0x0000, 0x1000, BootText::StartAddressError, {}},
        {0x8001, 0x7FFF, BootText::StartAddressError, BootText::StartAddressError},
        {0x1000, 0x8000, BootText::EndAddressError, BootText::EndAddressError},
        {0x2000, 0x1FFF, BootText::EndAddressError, BootText::EndAddressError},
        {0x1000, 0x0FFF, BootText::EndAddressError, BootText::EndAddressError},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(boot::checkEraseRange(c.start, c.end), c.erase) << std::hex << c.start;
        EXPECT_EQ(boot::checkReadRange(c.start, c.end), c.read) << std::hex << c.start;
    }
}

TEST(BootFrames, TheImageGoesInWholeBlocksPaddedWithTheErasedValue) {
    const QByteArray image(300, '\x11');
    const QByteArray blocks = boot::paddedImage(image, 0x1000, 0x7FFF);
    ASSERT_EQ(blocks.size(), 384);
    EXPECT_EQ(blocks.left(300), image);
    EXPECT_EQ(blocks.mid(300), QByteArray(84, '\xff'));
    // No block starts at or beyond the end address.
    EXPECT_EQ(boot::paddedImage(QByteArray(1024, '\x22'), 0x1000, 0x1100).size(), 256);
    EXPECT_EQ(boot::paddedImage(QByteArray(1024, '\x22'), 0x1000, 0x1101).size(), 384);
}

TEST(BootFrames, Crc32IsTheUsualOne) {
    EXPECT_EQ(boot::crc32("123456789"), 0xCBF43926u);
    EXPECT_EQ(boot::crc32({}), 0u);
}

}  // namespace
