#include "support/manual_clock.h"

#include <algorithm>

class ManualClock::ManualTimer : public Timer {
public:
    explicit ManualTimer(ManualClock* clock) : clock_(clock) { clock_->timers_.push_back(this); }
    ~ManualTimer() override {
        if (!clock_) return;
        auto& timers = clock_->timers_;
        timers.erase(std::remove(timers.begin(), timers.end(), this), timers.end());
    }

    void start(int intervalMs) override {
        if (!clock_) return;
        active_ = true;
        due_ = clock_->now_ + std::max(0, intervalMs);
        sequence_ = clock_->nextSequence_++;
    }
    void stop() override { active_ = false; }
    bool isActive() const override { return active_; }

    void detach() {
        clock_ = nullptr;
        active_ = false;
    }
    void fire() {
        active_ = false;
        expire();
    }

    bool active_ = false;
    qint64 due_ = 0;
    quint64 sequence_ = 0;

private:
    ManualClock* clock_;
};

ManualClock::~ManualClock() {
    for (ManualTimer* timer : timers_) timer->detach();
}

std::unique_ptr<Timer> ManualClock::createTimer() {
    return std::make_unique<ManualTimer>(this);
}

bool ManualClock::expireNext(qint64 until) {
    ManualTimer* next = nullptr;
    for (ManualTimer* timer : timers_) {
        if (!timer->active_ || timer->due_ > until) continue;
        if (!next || timer->due_ < next->due_ ||
            (timer->due_ == next->due_ && timer->sequence_ < next->sequence_)) {
            next = timer;
        }
    }
    if (!next) return false;
    now_ = std::max(now_, next->due_);
    next->fire();
    return true;
}

void ManualClock::advance(qint64 ms) {
    const qint64 until = now_ + std::max<qint64>(0, ms);
    while (expireNext(until)) {
    }
    now_ = until;
}

bool ManualClock::advanceUntil(const std::function<bool()>& done, qint64 limitMs) {
    const qint64 until = now_ + std::max<qint64>(0, limitMs);
    while (!done()) {
        if (!expireNext(until)) {
            now_ = until;
            return done();
        }
    }
    return true;
}

int ManualClock::activeTimerCount() const {
    return static_cast<int>(std::count_if(timers_.begin(), timers_.end(),
                                          [](const ManualTimer* t) { return t->active_; }));
}
