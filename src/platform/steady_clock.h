#pragma once

#include <QElapsedTimer>

#include "platform/clock.h"

// The production clock: QElapsedTimer for time, precise QTimers for waits (a coarse timer may
// fire a few per cent early, and the 20 ms settle after sending must not be cut short).
class SteadyClock : public Clock {
public:
    SteadyClock();

    qint64 nowMs() const override;
    std::unique_ptr<Timer> createTimer() override;

private:
    QElapsedTimer elapsed_;
};
