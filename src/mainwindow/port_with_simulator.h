#pragma once

#include <memory>

#include "platform/serial_port.h"

class Clock;
class SimRadio;
class SimulatedRadioPort;

// The desktop program's one port to the radio: the machine's serial devices through
// QSerialPort, and, for trying the program without a radio, the in-process simulated radio
// behind the device name "sim". Whichever is open speaks for the port.
class PortWithSimulator : public SerialPort {
    Q_OBJECT

public:
    PortWithSimulator(std::unique_ptr<SerialPort> hardware, Clock& clock,
                      QObject* parent = nullptr);
    ~PortWithSimulator() override;

    static QString simulatorDevice();
    // The simulated line at 9600 baud, so that a read takes as long as with a radio.
    void setSimulatorPacing(bool on);
    SimRadio& simulatedRadio();

    PortOpenError open(const QString& device) override;
    void close() override;
    bool isOpen() const override;
    QString device() const override;

    void write(const QByteArray& bytes) override;
    qint64 bytesToWrite() const override;
    qint64 bytesAvailable() const override;
    QByteArray read(qint64 maxBytes) override;
    void discardInput() override;
    void discardOutput() override;

private:
    void attach(SerialPort& inner);
    SerialPort& active() const;

    std::unique_ptr<SerialPort> hardware_;
    std::unique_ptr<SimulatedRadioPort> simulator_;
    SerialPort* active_;
};
