#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

// Why a port could not be opened. The old program knew these as the communications control's
// errors 8002 and 8005; both get the same warning, anything else is passed over silently.
enum class PortOpenError {
    None,
    NoSuchPort,  // 8002: no device behind that number or path, or not a serial line at all
    PortInUse,   // 8005: another program (or this one) holds the device
    Other,
};

// The serial line to the radio, always 9600 baud, 8 data bits, no parity, 1 stop bit.
// Writes are queued; `drained` tells when the queue has gone out. Received bytes wait in the
// input queue; `received` is raised for them only while receive notification is on, so that a
// sender can keep its own echo away from the parser.
class SerialPort : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    virtual PortOpenError open(const QString& device) = 0;
    virtual void close() = 0;
    virtual bool isOpen() const = 0;
    // The device of the open port (empty while closed).
    virtual QString device() const = 0;

    virtual void write(const QByteArray& bytes) = 0;
    // Bytes written but not yet on the line.
    virtual qint64 bytesToWrite() const = 0;
    // Bytes received and not yet read.
    virtual qint64 bytesAvailable() const = 0;
    virtual QByteArray read(qint64 maxBytes) = 0;
    virtual void discardInput() = 0;
    virtual void discardOutput() = 0;

    // Why the last open() failed, in the system's words (empty when it gave none), and whether
    // the device is there but this user lacks the rights to it.
    QString openErrorDetail() const { return openErrorDetail_; }
    bool openPermissionDenied() const { return openPermissionDenied_; }

    void setReceiveNotification(bool on) { receiveNotification_ = on; }
    bool receiveNotification() const { return receiveNotification_; }

Q_SIGNALS:
    // Bytes are waiting in the input queue (only while receive notification is on).
    void received();
    // The output queue has become empty.
    void drained();
    // The device failed while open (cable pulled, device gone, I/O error). The port is of no
    // further use; its owner closes it.
    void failed(const QString& reason);

protected:
    // Implementations call this whenever bytes have arrived.
    void notifyReceived() {
        if (receiveNotification_) Q_EMIT received();
    }

    void setOpenFailure(const QString& detail, bool permissionDenied) {
        openErrorDetail_ = detail;
        openPermissionDenied_ = permissionDenied;
    }

private:
    bool receiveNotification_ = false;
    QString openErrorDetail_;
    bool openPermissionDenied_ = false;
};
