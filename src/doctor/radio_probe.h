#pragma once

#include <QByteArray>
#include <QObject>
#include <QStringList>
#include <memory>

#include "doctor/serial_device.h"
#include "link/link_client.h"
#include "platform/serial_port.h"

class LinkTrace;
class LinkTransport;

// One settings request ("S") on a port that is already open, to learn whether a radio is at
// the other end of the cable. It sends the request as a read would, three times a second
// apart, and tells what came back: the radio's answer, bytes that make no answer, or nothing.
class RadioProbe : public QObject, private LinkClient {
    Q_OBJECT

public:
    enum class Outcome { NotRun, Answered, Garbled, Silent, PortLost, Cancelled };

    explicit RadioProbe(LinkTransport& transport, QObject* parent = nullptr);
    ~RadioProbe() override;

    // False when the link is busy; the outcome then stays NotRun.
    bool start();
    void cancel();
    bool isRunning() const { return running_; }

    Outcome outcome() const { return outcome_; }
    // The settings record of an answer; the received bytes as trace lines otherwise.
    QByteArray answer() const { return answer_; }
    const QStringList& heard() const { return heard_; }
    QString portLostDetail() const { return portLostDetail_; }

Q_SIGNALS:
    void finished();

private:
    void replyReceived(const QByteArray& payload) override;
    void exchangeFailed(const LinkFailure& failure) override;
    void replyIgnored(int length) override;
    void finish(Outcome outcome);

    LinkTransport& transport_;
    std::unique_ptr<LinkTrace> trace_;
    bool running_ = false;
    Outcome outcome_ = Outcome::NotRun;
    QByteArray answer_;
    QStringList heard_;
    QString portLostDetail_;
};

// Why a radio did not answer, most likely first.
enum class ProbeCause {
    PortNotOpened,       // the port did not open at all: see the device's report
    RadioOff,            // switched off, or not ready to be programmed
    PlugNotSeated,       // the plug is not all the way into the radio's jack
    WrongPort,           // another of the machine's serial devices is the cable
    OtherProgram,        // another program has the port open and takes the bytes
    Brltty,              // brltty has claimed the adapter
    ModemManager,        // ModemManager probes the port and garbles the first bytes
    CounterfeitChip,     // the adapter's chip is a copy
    CableForOtherRadio,  // a cable wired for another radio, or a radio of another model
};

// `device` is the report of the probed port (null when the machine has none for it) and
// `serialDevices` how many serial devices the machine has in all.
QList<ProbeCause> probeCauses(RadioProbe::Outcome outcome, PortOpenError openError,
                              const SerialDeviceReport* device, int serialDevices);
