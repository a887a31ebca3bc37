#pragma once

#include <QSerialPort>
#include <QTimer>

#include "platform/serial_port.h"

// The production port on QSerialPort. QSerialPort counts a byte as written once the operating
// system has it; the line is drained only when the system's own queue is empty too, so that
// the settle time after sending starts when the last byte has left, as the radio expects.
class QtSerialPort : public SerialPort {
    Q_OBJECT

public:
    explicit QtSerialPort(QObject* parent = nullptr);

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
    // Bytes the system still holds for the line (0 where it cannot tell).
    qint64 systemOutputQueue() const;
    void checkDrained();
    void onError(QSerialPort::SerialPortError error);

    QSerialPort port_;
    QTimer lineDrain_;  // a deadline from the baud rate for the system's queue, never a poll loop
};

// How QSerialPort's reasons for refusing to open map onto the two errors users are warned about.
PortOpenError openErrorOf(QSerialPort::SerialPortError error);
