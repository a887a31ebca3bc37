#pragma once

#include <QByteArray>
#include <deque>
#include <functional>
#include <memory>

#include "platform/clock.h"

// One direction of the serial line. With pacing on, each byte takes as long as 9600 baud, 8N1
// gives it (10 bits, about 1.04 ms) and is delivered when its last bit would have arrived;
// bytes pushed while others are under way queue behind them. Without pacing, bytes are
// delivered as soon as the event loop (or the manual clock) comes round, never from inside
// `push`, so that writer and reader never call into each other.
class PacedLine {
public:
    static constexpr double kMicrosecondsPerByte = 10 * 1e6 / 9600;

    PacedLine(Clock& clock, std::function<void(const QByteArray&)> deliver);

    void setPacing(bool on) { pacing_ = on; }
    bool pacing() const { return pacing_; }

    void push(const QByteArray& bytes);
    // Bytes on their way.
    qint64 pending() const { return static_cast<qint64>(queue_.size()); }
    // Drops the bytes on their way (the sender's queue discarded, or the line cut).
    void clear();

private:
    struct Byte {
        double dueUs;
        char value;
    };

    void deliverDue();
    void armForFront();

    Clock& clock_;
    std::function<void(const QByteArray&)> deliver_;
    std::unique_ptr<Timer> timer_;
    std::deque<Byte> queue_;
    double lastDueUs_ = 0;
    bool pacing_ = false;
};
