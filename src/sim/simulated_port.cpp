#include "sim/simulated_port.h"

SimulatedPort::SimulatedPort(Clock& clock, SimRadio& radio, const QString& deviceName,
                             QObject* parent)
    : SerialPort(parent),
      radio_(radio),
      deviceName_(deviceName),
      toRadio_(clock, [this](const QByteArray& bytes) { arrivedAtRadio(bytes); }),
      fromRadio_(clock, [this](const QByteArray& bytes) { arrivedFromRadio(bytes); }) {
    radio_.setTransmitter([this](const QByteArray& bytes) { fromRadio_.push(bytes); });
    radio_.setHangUpHandler([this] {
        fromRadio_.clear();
        if (open_) Q_EMIT failed(QStringLiteral("the radio hung up"));
    });
}

void SimulatedPort::setPacing(bool on) {
    toRadio_.setPacing(on);
    fromRadio_.setPacing(on);
}

PortOpenError SimulatedPort::open(const QString& device) {
    if (device != deviceName_) return PortOpenError::NoSuchPort;
    if (open_) return PortOpenError::PortInUse;
    open_ = true;
    return PortOpenError::None;
}

void SimulatedPort::close() {
    open_ = false;
    toRadio_.clear();
    input_.clear();
}

void SimulatedPort::write(const QByteArray& bytes) {
    if (open_) toRadio_.push(bytes);
}

QByteArray SimulatedPort::read(qint64 maxBytes) {
    const QByteArray bytes = input_.left(maxBytes);
    input_.remove(0, bytes.size());
    return bytes;
}

void SimulatedPort::arrivedAtRadio(const QByteArray& bytes) {
    radio_.receive(bytes);
    if (open_ && toRadio_.pending() == 0) Q_EMIT drained();
}

void SimulatedPort::arrivedFromRadio(const QByteArray& bytes) {
    if (!open_) return;  // nobody listens on a closed port
    input_.append(bytes);
    notifyReceived();
}
