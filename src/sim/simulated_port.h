#pragma once

#include "platform/serial_port.h"
#include "sim/paced_line.h"
#include "sim/sim_radio.h"

// A serial port with the simulated radio at the other end of the cable, for tests (on the
// manual clock) and for `--port sim` (on the real one). Only the device name it was given
// opens; any other is "no such port".
class SimulatedPort : public SerialPort {
    Q_OBJECT

public:
    static constexpr const char* kDefaultDevice = "sim";

    SimulatedPort(Clock& clock, SimRadio& radio, const QString& deviceName = kDefaultDevice,
                  QObject* parent = nullptr);

    // Line pacing at 9600 baud in both directions.
    void setPacing(bool on);

    PortOpenError open(const QString& device) override;
    void close() override;
    bool isOpen() const override { return open_; }
    QString device() const override { return open_ ? deviceName_ : QString(); }

    void write(const QByteArray& bytes) override;
    qint64 bytesToWrite() const override { return toRadio_.pending(); }
    qint64 bytesAvailable() const override { return input_.size(); }
    QByteArray read(qint64 maxBytes) override;
    void discardInput() override { input_.clear(); }
    void discardOutput() override { toRadio_.clear(); }

private:
    void arrivedAtRadio(const QByteArray& bytes);
    void arrivedFromRadio(const QByteArray& bytes);

    SimRadio& radio_;
    QString deviceName_;
    PacedLine toRadio_;
    PacedLine fromRadio_;
    QByteArray input_;
    bool open_ = false;
};
