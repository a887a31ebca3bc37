#pragma once

#include <QByteArray>
#include <array>

#include "link/frame.h"

// The receive side of the link: one byte at a time, either framed replies or, for one service
// request, text lines ended by a carriage return. It knows nothing of timers; the transport
// decides what a returned state means for the reply time-out.
class FrameParser {
public:
    enum ParserState { AwaitCommand = 0, AwaitLength = 1, AwaitData = 2, AwaitChecksum = 3 };
    static constexpr int kLineBufferSize = 256;
    static constexpr quint8 kCarriageReturn = 13;

    enum class Outcome {
        Pending,         // the byte was taken into the frame or line under way
        Dropped,         // a command or length byte was refused; back to AwaitCommand
        FrameComplete,   // a frame with a good checksum; ReplyReady
        ChecksumFailed,  // a whole frame with a bad checksum, dropped silently
        LineComplete,    // line mode: a carriage return arrived
    };

    Outcome feed(quint8 byte);
    // Back to AwaitCommand, dropping a frame under way.
    void reset() { state_ = AwaitCommand; }

    ParserState state() const { return state_; }
    // Bytes of the whole frame under way, as far as known: its length byte not yet in, the
    // longest a reply can be.
    int frameBytesExpected() const;
    // Payload of the last good frame (ReplyData[0 .. ReplyIndex-1]).
    const QByteArray& reply() const { return reply_; }

    // Line mode (switched on for one request at a time); switching it on starts the line at
    // index 0.
    void setLineMode(bool on);
    bool lineMode() const { return lineMode_; }
    // The ring of received text bytes and the next position in it.
    QByteArray lineBuffer() const;
    int lineIndex() const { return lineIndex_; }

private:
    Outcome feedFrame(quint8 byte);
    Outcome feedLine(quint8 byte);

    ParserState state_ = AwaitCommand;
    int replyLength_ = 0;
    unsigned replySum_ = 0;
    QByteArray receiving_;  // payload of the frame under way
    QByteArray reply_;
    bool lineMode_ = false;
    std::array<char, kLineBufferSize> lineBuffer_{};
    int lineIndex_ = 0;
};
