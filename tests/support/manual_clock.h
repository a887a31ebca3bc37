#pragma once

#include <vector>

#include "platform/clock.h"

// A clock for tests: time stands still until `advance` moves it, and the timers that fall due
// on the way expire in order of their due time (ties in the order they were started), each
// with the clock set to its due time. Timers started by a callback expire in the same advance
// if they fall due within it.
class ManualClock : public Clock {
public:
    ManualClock() = default;
    ~ManualClock() override;
    ManualClock(const ManualClock&) = delete;
    ManualClock& operator=(const ManualClock&) = delete;

    qint64 nowMs() const override { return now_; }
    std::unique_ptr<Timer> createTimer() override;

    void advance(qint64 ms);
    // Advances until `done()` holds or `limitMs` have passed; true when `done()` held.
    bool advanceUntil(const std::function<bool()>& done, qint64 limitMs);
    // Runs everything that is due now (zero-length timers) without moving the clock.
    void settle() { advance(0); }

    int activeTimerCount() const;

private:
    class ManualTimer;
    friend class ManualTimer;

    // Expires the earliest timer due at or before `until`; false when there is none.
    bool expireNext(qint64 until);

    qint64 now_ = 0;
    quint64 nextSequence_ = 0;
    std::vector<ManualTimer*> timers_;
};
