#pragma once

#include <QByteArray>
#include <QString>
#include <bitset>
#include <initializer_list>

#include "link/frame.h"

// The payload lengths a request accepts in its reply. A good frame of any other length is not
// its reply: it is ignored and the wait goes on.
class ReplyLengths {
public:
    ReplyLengths(std::initializer_list<int> lengths) {
        for (int length : lengths) lengths_.set(static_cast<size_t>(length));
    }
    // For replies whose length the requester cannot know (text lines, monitored frames).
    static ReplyLengths any() {
        ReplyLengths all{};
        all.lengths_.set();
        return all;
    }
    // For records the requester reads from the start, whatever the radio adds after them.
    static ReplyLengths atLeast(int shortest) {
        ReplyLengths lengths = any();
        for (int length = 0; length < shortest; ++length)
            lengths.lengths_.reset(static_cast<size_t>(length));
        return lengths;
    }
    bool accepts(int length) const {
        return length >= 0 && length < static_cast<int>(lengths_.size()) &&
               lengths_.test(static_cast<size_t>(length));
    }

private:
    std::bitset<LinkFrame::kMaxReplyPayload + 1> lengths_;
};

// Why an exchange ended without its reply.
struct LinkFailure {
    enum Kind {
        GaveUp,    // every attempt timed out
        PortLost,  // the port failed under the exchange and has been closed
    };
    Kind kind = GaveUp;
    QString detail;  // the system's words for a lost port
};

// The one exchange that owns the link at a time: a read or write session, a service exchange
// or the boot loader. The transport reports the outcome of each request to it alone and shows
// nothing itself; what the user sees of an outcome is the owner's business.
class LinkClient {
public:
    virtual ~LinkClient() = default;

    // A reply arrived: the payload of a good frame, or in line mode the whole line buffer.
    virtual void replyReceived(const QByteArray& payload) = 0;
    // Attempt `attempt` (1-based) timed out and the transport is sending the request again.
    virtual void attemptTimedOut(int attempt) { (void)attempt; }
    // The request ended without a reply; the link is idle and the owner decides what follows.
    virtual void exchangeFailed(const LinkFailure& failure) = 0;
    // A good frame arrived whose length the request does not accept; the wait goes on.
    virtual void replyIgnored(int length) { (void)length; }
    // A request could not go out because the port is closed. The transport goes on as if it
    // had (the attempts then time out), as the radio's tool always has.
    virtual void portClosedOnSend() {}
    // A frame sent without awaiting a reply has gone out (drained and settled).
    virtual void sendFinished() {}
};
