#include "service/service_panel.h"

#include "platform/prompts.h"

ServicePanel::ServicePanel(ServiceChannel& channel, QObject* parent)
    : QObject(parent), channel_(channel) {}

void ServicePanel::box(const QString& text, const QString& title) {
    channel_.prompts().showMessage({text, title});
}

void ServicePanel::box(l10n::ServiceText text, l10n::ServiceText title) {
    box(this->text(text), this->text(title));
}

bool ServicePanel::begin() {
    if (!channel_.begin()) {
        outcome_ = ServiceOutcome::Refused;
        return false;
    }
    // A monitor ends with every operation of any panel, whose replies it would otherwise take
    // (the test panel's monitor start sets a new one afterwards).
    channel_.setMonitor(nullptr);
    running_ = true;
    Q_EMIT runningChanged(true);
    return true;
}

void ServicePanel::finish(ServiceOutcome outcome) {
    channel_.end();
    running_ = false;
    outcome_ = outcome;
    Q_EMIT runningChanged(false);
    Q_EMIT finished(outcome);
}

bool ServicePanel::refuse(const QString& text, const QString& title) {
    outcome_ = ServiceOutcome::Refused;
    box(text, title);
    return false;
}

void ServicePanel::cancel() {
    if (!running_) return;
    channel_.abandon();
    finish(ServiceOutcome::Cancelled);
}

void ServicePanel::send(const QByteArray& frame, AttemptCount preset, ReplyLengths accepted,
                        ServiceChannel::Done done) {
    channel_.Pc_Send_dt(frame, preset, accepted, std::move(done));
}
