#include "platform/steady_clock.h"

#include <QTimer>

namespace {

class QtTimer : public Timer {
public:
    QtTimer() {
        timer_.setSingleShot(true);
        timer_.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer_, &QTimer::timeout, [this] { expire(); });
    }

    void start(int intervalMs) override { timer_.start(intervalMs); }
    void stop() override { timer_.stop(); }
    bool isActive() const override { return timer_.isActive(); }

private:
    QTimer timer_;
};

}  // namespace

SteadyClock::SteadyClock() {
    elapsed_.start();
}

qint64 SteadyClock::nowMs() const {
    return elapsed_.elapsed();
}

std::unique_ptr<Timer> SteadyClock::createTimer() {
    return std::make_unique<QtTimer>();
}
