#include "sim/paced_line.h"

#include <algorithm>
#include <cmath>

PacedLine::PacedLine(Clock& clock, std::function<void(const QByteArray&)> deliver)
    : clock_(clock), deliver_(std::move(deliver)), timer_(clock.createTimer()) {
    timer_->setCallback([this] { deliverDue(); });
}

void PacedLine::push(const QByteArray& bytes) {
    const double nowUs = clock_.nowMs() * 1000.0;
    for (char value : bytes) {
        double due = nowUs;
        if (pacing_) {
            due = std::max(nowUs, lastDueUs_) + kMicrosecondsPerByte;
            lastDueUs_ = due;
        }
        queue_.push_back({due, value});
    }
    if (!timer_->isActive()) armForFront();
}

void PacedLine::clear() {
    queue_.clear();
    timer_->stop();
    lastDueUs_ = 0;
}

void PacedLine::deliverDue() {
    const double nowUs = clock_.nowMs() * 1000.0;
    QByteArray due;
    while (!queue_.empty() && queue_.front().dueUs <= nowUs) {
        due.append(queue_.front().value);
        queue_.pop_front();
    }
    armForFront();
    if (!due.isEmpty()) deliver_(due);
}

void PacedLine::armForFront() {
    if (queue_.empty()) return;
    const double waitUs = queue_.front().dueUs - clock_.nowMs() * 1000.0;
    timer_->start(static_cast<int>(std::max(0.0, std::ceil(waitUs / 1000.0))));
}
