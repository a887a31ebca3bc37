#include "doctor/port_finder.h"

namespace {

QStringList minus(const QStringList& a, const QStringList& b) {
    QStringList result;
    for (const QString& item : a) {
        if (!b.contains(item)) result << item;
    }
    return result;
}

}  // namespace

void PortFinder::start(const QStringList& ports) {
    baseline_ = ports;
    step_ = Step::Waiting;
    port_.clear();
    candidates_.clear();
}

PortFinder::Step PortFinder::update(const QStringList& ports) {
    if (step_ == Step::Found || step_ == Step::Ambiguous) return step_;
    const QStringList added = minus(ports, baseline_);
    const QStringList removed = minus(baseline_, ports);
    if (added.size() == 1) {
        step_ = Step::Found;
        port_ = added.first();
    } else if (added.size() > 1) {
        step_ = Step::Ambiguous;
        candidates_ = added;
    } else if (!removed.isEmpty()) {
        // Gone: whatever comes next is the cable coming back, under whichever name.
        step_ = Step::Unplugged;
        port_ = removed.first();
        baseline_ = ports;
    }
    return step_;
}
