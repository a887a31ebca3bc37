#include "link/frame_parser.h"

FrameParser::Outcome FrameParser::feed(quint8 byte) {
    return lineMode_ ? feedLine(byte) : feedFrame(byte);
}

FrameParser::Outcome FrameParser::feedFrame(quint8 byte) {
    switch (state_) {
        case AwaitCommand:
            receiving_.clear();
            replyLength_ = 0;
            if (byte < LinkFrame::kFirstReplyCommand || byte > LinkFrame::kLastReplyCommand) {
                return Outcome::Dropped;
            }
            replySum_ = byte;
            state_ = AwaitLength;
            return Outcome::Pending;
        case AwaitLength:
            replyLength_ = byte;
            if (byte > LinkFrame::kMaxReplyPayload) {
                state_ = AwaitCommand;
                return Outcome::Dropped;
            }
            replySum_ += byte;
            state_ = byte == 0 ? AwaitChecksum : AwaitData;
            return Outcome::Pending;
        case AwaitData:
            receiving_.append(static_cast<char>(byte));
            replySum_ += byte;
            if (receiving_.size() == replyLength_) state_ = AwaitChecksum;
            return Outcome::Pending;
        case AwaitChecksum:
            state_ = AwaitCommand;
            if (byte != (replySum_ & 0xFF)) return Outcome::ChecksumFailed;
            reply_ = receiving_;
            return Outcome::FrameComplete;
    }
    return Outcome::Dropped;
}

int FrameParser::frameBytesExpected() const {
    constexpr int kOverhead = 3;  // command, length, checksum
    return state_ == AwaitLength ? LinkFrame::kMaxReplyPayload + kOverhead
                                 : replyLength_ + kOverhead;
}

FrameParser::Outcome FrameParser::feedLine(quint8 byte) {
    lineBuffer_[static_cast<size_t>(lineIndex_)] = static_cast<char>(byte);
    lineIndex_ = (lineIndex_ + 1) % kLineBufferSize;
    return byte == kCarriageReturn ? Outcome::LineComplete : Outcome::Pending;
}

void FrameParser::setLineMode(bool on) {
    lineMode_ = on;
    if (on) lineIndex_ = 0;
}

QByteArray FrameParser::lineBuffer() const {
    return QByteArray(lineBuffer_.data(), kLineBufferSize);
}
