#pragma once

#include <QtGlobal>
#include <functional>
#include <memory>

// A single-shot timer: `start` (re)arms it, the callback runs once when it expires.
// Every wait of the link is one of these; nothing sleeps and nothing polls.
class Timer {
public:
    virtual ~Timer() = default;

    virtual void start(int intervalMs) = 0;
    virtual void stop() = 0;
    virtual bool isActive() const = 0;

    void setCallback(std::function<void()> callback) { callback_ = std::move(callback); }

protected:
    void expire() {
        if (callback_) callback_();
    }

private:
    std::function<void()> callback_;
};

// Time and timers. Production runs on a steady clock and the event loop; tests on a manual
// clock that moves only when told, so a time-out of several seconds takes no time at all.
class Clock {
public:
    virtual ~Clock() = default;

    // Milliseconds of a steady clock (the start is arbitrary).
    virtual qint64 nowMs() const = 0;
    virtual std::unique_ptr<Timer> createTimer() = 0;
};
