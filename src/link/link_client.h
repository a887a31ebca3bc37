#pragma once

#include <QByteArray>

// The one exchange that owns the link at a time: a read or write session, or a service panel.
// The transport reports back to it alone.
class LinkClient {
public:
    virtual ~LinkClient() = default;

    // A reply arrived: the payload of a good frame, or in line mode the whole line buffer.
    virtual void replyReceived(const QByteArray& payload) = 0;
    // The reply timer expired. When `gaveUp`, the attempts are used up (or the port failed) and
    // the transport has already done the give-up clean-up and reported it; otherwise the owner
    // may send again.
    virtual void replyTimedOut(bool gaveUp) = 0;
    // A frame sent without awaiting a reply has gone out (drained and settled).
    virtual void sendFinished() {}
};

// Who owns the link decides what a give-up reports: only a read or write session shows the
// "check the radio" box and gives the session buttons back.
enum class LinkUse { Session, Service };
