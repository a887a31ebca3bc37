#include "doctor/radio_probe.h"

#include "link/link_trace.h"
#include "link/link_transport.h"
#include "link/protocol.h"
#include "link/read_session.h"
#include "link/requests.h"

RadioProbe::RadioProbe(LinkTransport& transport, QObject* parent)
    : QObject(parent), transport_(transport) {}

RadioProbe::~RadioProbe() {
    // Gone with its owner (a dialog closed under it): the link is freed and nobody is told.
    if (!running_) return;
    transport_.abort();
    transport_.setTrace(nullptr);
    transport_.release(this);
}

bool RadioProbe::start() {
    if (!transport_.acquire(this)) return false;
    running_ = true;
    heard_.clear();
    // What comes back is seen through a trace: its lines from the radio are what was heard.
    trace_ = std::make_unique<LinkTrace>([this](const QString& line) {
        if (line.section(QLatin1Char(' '), 1, 1) == QLatin1String("<")) heard_ << line;
    });
    transport_.setTrace(trace_.get());
    transport_.startReceiving();
    transport_.request(readSettingsRequest(), ReadSession::kOpeningReplyMs,
                       ReadSession::kOpeningAttempts, {protocol::kSettingsRecordSize});
    return true;
}

void RadioProbe::cancel() {
    if (!running_) return;
    transport_.abort();
    finish(Outcome::Cancelled);
}

void RadioProbe::replyReceived(const QByteArray& payload) {
    answer_ = payload;
    finish(Outcome::Answered);
}

void RadioProbe::replyIgnored(int /*length*/) {
    // A good frame of the wrong size is heard like any other bytes; the wait goes on.
}

void RadioProbe::exchangeFailed(const LinkFailure& failure) {
    if (failure.kind == LinkFailure::PortLost) {
        portLostDetail_ = failure.detail;
        finish(Outcome::PortLost);
        return;
    }
    finish(heard_.isEmpty() ? Outcome::Silent : Outcome::Garbled);
}

void RadioProbe::finish(Outcome outcome) {
    outcome_ = outcome;
    running_ = false;
    transport_.setTrace(nullptr);
    transport_.release(this);
    Q_EMIT finished();
}

QList<ProbeCause> probeCauses(RadioProbe::Outcome outcome, PortOpenError openError,
                              const SerialDeviceReport* device, int serialDevices) {
    if (openError != PortOpenError::None) return {ProbeCause::PortNotOpened};
    if (outcome == RadioProbe::Outcome::Answered || outcome == RadioProbe::Outcome::Cancelled) {
        return {};
    }
    const bool held = device && !device->holders.isEmpty();
    const bool brltty = device && device->brlttyMayGrab;
    const bool modemManager = device && device->modemManagerMayProbe;
    const bool counterfeit = device && device->chip.counterfeitProne;
    QList<ProbeCause> causes;
    auto addIf = [&causes](bool condition, ProbeCause cause) {
        if (condition) causes << cause;
    };
    if (outcome == RadioProbe::Outcome::Garbled) {
        // Bytes came back: something is on the line, just not the radio's answer.
        addIf(held, ProbeCause::OtherProgram);
        addIf(modemManager, ProbeCause::ModemManager);
        addIf(brltty, ProbeCause::Brltty);
        addIf(counterfeit, ProbeCause::CounterfeitChip);
        causes << ProbeCause::CableForOtherRadio << ProbeCause::PlugNotSeated;
        return causes;
    }
    causes << ProbeCause::RadioOff << ProbeCause::PlugNotSeated;
    addIf(serialDevices > 1, ProbeCause::WrongPort);
    addIf(held, ProbeCause::OtherProgram);
    addIf(brltty, ProbeCause::Brltty);
    addIf(modemManager, ProbeCause::ModemManager);
    addIf(counterfeit, ProbeCause::CounterfeitChip);
    causes << ProbeCause::CableForOtherRadio;
    return causes;
}
