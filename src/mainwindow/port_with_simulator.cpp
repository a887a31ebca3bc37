#include "mainwindow/port_with_simulator.h"

#include "sim/simulated_radio_port.h"

PortWithSimulator::PortWithSimulator(std::unique_ptr<SerialPort> hardware, Clock& clock,
                                     QObject* parent)
    : SerialPort(parent), hardware_(std::move(hardware)),
      simulator_(SimulatedRadioPort::create(clock)), active_(hardware_.get()) {
    attach(*hardware_);
    attach(*simulator_);
}

PortWithSimulator::~PortWithSimulator() = default;

QString PortWithSimulator::simulatorDevice() {
    return QString::fromLatin1(SimulatedPort::kDefaultDevice);
}

void PortWithSimulator::setSimulatorPacing(bool on) { simulator_->setPacing(on); }

SimRadio& PortWithSimulator::simulatedRadio() { return simulator_->radio(); }

void PortWithSimulator::attach(SerialPort& inner) {
    // The inner ports always report arrivals; whether anyone hears of them is this port's
    // receive notification, which the link switches.
    inner.setReceiveNotification(true);
    connect(&inner, &SerialPort::received, this, [this, &inner] {
        if (&inner == active_) notifyReceived();
    });
    connect(&inner, &SerialPort::drained, this, [this, &inner] {
        if (&inner == active_) Q_EMIT drained();
    });
    connect(&inner, &SerialPort::failed, this, [this, &inner](const QString& reason) {
        if (&inner == active_) Q_EMIT failed(reason);
    });
}

SerialPort& PortWithSimulator::active() const { return *active_; }

PortOpenError PortWithSimulator::open(const QString& device) {
    close();
    active_ = device == simulatorDevice() ? static_cast<SerialPort*>(simulator_.get())
                                          : hardware_.get();
    return active_->open(device);
}

void PortWithSimulator::close() {
    hardware_->close();
    simulator_->close();
}

bool PortWithSimulator::isOpen() const { return active().isOpen(); }
QString PortWithSimulator::device() const { return active().device(); }
void PortWithSimulator::write(const QByteArray& bytes) { active().write(bytes); }
qint64 PortWithSimulator::bytesToWrite() const { return active().bytesToWrite(); }
qint64 PortWithSimulator::bytesAvailable() const { return active().bytesAvailable(); }
QByteArray PortWithSimulator::read(qint64 maxBytes) { return active().read(maxBytes); }
void PortWithSimulator::discardInput() { active().discardInput(); }
void PortWithSimulator::discardOutput() { active().discardOutput(); }
