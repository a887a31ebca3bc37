#include "link/frame_parser.h"

#include <gtest/gtest.h>

#include "support/fake_port.h"

namespace {

using Outcome = FrameParser::Outcome;

// Feeds all bytes and returns the outcome of the last one.
Outcome feedAll(FrameParser& parser, const QByteArray& bytes) {
    Outcome last = Outcome::Pending;
    for (char b : bytes) last = parser.feed(static_cast<quint8>(b));
    return last;
}

TEST(FrameParser, AcceptsOnlyRepliesWithinTheCommandRangeAndLengthLimit) {
    QByteArray longest;
    longest.append(char(0x41)).append(char(130)).append(QByteArray(130, 0x01));
    longest.append(char((0x41 + 130 + 130) & 0xFF));

    const struct {
        const char* name;
        QByteArray bytes;
        Outcome last;
        int payload;  // payload size when complete
    } cases[] = {
        {"below the range", hexBytes("3c00 3c"), Outcome::Dropped, 0},
        {"above the range", hexBytes("4900 49"), Outcome::Dropped, 0},
        {"first command", hexBytes("3d00 3d"), Outcome::FrameComplete, 0},
        {"last command", hexBytes("4800 48"), Outcome::FrameComplete, 0},
        {"length 130", longest, Outcome::FrameComplete, 130},
        {"bad checksum", hexBytes("4102 0102 47"), Outcome::ChecksumFailed, 0},
        {"good checksum", hexBytes("4102 0102 46"), Outcome::FrameComplete, 2},
    };
    for (const auto& c : cases) {
        FrameParser parser;
        EXPECT_EQ(feedAll(parser, c.bytes), c.last) << c.name;
        EXPECT_EQ(parser.state(), FrameParser::AwaitCommand) << c.name;
        if (c.last == Outcome::FrameComplete) {
            EXPECT_EQ(parser.reply().size(), c.payload) << c.name;
        }
    }
}

TEST(FrameParser, RefusedStartBytesLeaveItWaitingForACommand) {
    FrameParser parser;
    // Length 131 is refused at the length byte; 0x83 that follows is no command either.
    EXPECT_EQ(feedAll(parser, hexBytes("4183")), Outcome::Dropped);
    EXPECT_EQ(parser.state(), FrameParser::AwaitCommand);
    // Garbage before a frame is skipped byte by byte.
    EXPECT_EQ(feedAll(parser, hexBytes("00ff3c49 4101 07 49")), Outcome::FrameComplete);
    EXPECT_EQ(parser.reply(), hexBytes("07"));
}

TEST(FrameParser, KeepsTheLastGoodFrameAcrossABadOne) {
    FrameParser parser;
    feedAll(parser, hexBytes("4101 07 49"));
    EXPECT_EQ(feedAll(parser, hexBytes("4101 08 00")), Outcome::ChecksumFailed);
    EXPECT_EQ(parser.reply(), hexBytes("07"));
    feedAll(parser, hexBytes("4101 09 4b"));
    EXPECT_EQ(parser.reply(), hexBytes("09"));
}

TEST(FrameParser, LineModeFillsARingAndEndsAtCarriageReturn) {
    FrameParser parser;
    parser.setLineMode(true);
    EXPECT_EQ(feedAll(parser, QByteArray(255, 'a')), Outcome::Pending);
    EXPECT_EQ(parser.lineIndex(), 255);
    EXPECT_EQ(parser.feed('b'), Outcome::Pending);  // the 256th byte goes to index 255
    EXPECT_EQ(parser.lineBuffer().at(255), 'b');
    EXPECT_EQ(parser.lineIndex(), 0);
    EXPECT_EQ(parser.feed('\r'), Outcome::LineComplete);  // the next one to index 0, stored
    EXPECT_EQ(parser.lineBuffer().at(0), '\r');
    // Line mode takes frame bytes as text.
    EXPECT_EQ(parser.feed(0x41), Outcome::Pending);
    EXPECT_EQ(parser.state(), FrameParser::AwaitCommand);
}

}  // namespace
