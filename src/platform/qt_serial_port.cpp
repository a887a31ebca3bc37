#include "platform/qt_serial_port.h"

#include <QFile>
#include <cmath>

#ifdef Q_OS_UNIX
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace {

constexpr int kBaudRate = 9600;
constexpr double kMsPerByte = 10 * 1000.0 / kBaudRate;  // start + 8 data + stop bits

}  // namespace

PortOpenError openErrorOf(QSerialPort::SerialPortError error) {
    switch (error) {
        case QSerialPort::NoError:
            return PortOpenError::None;
        case QSerialPort::DeviceNotFoundError:
        case QSerialPort::UnsupportedOperationError:  // not a serial line: no such port
            return PortOpenError::NoSuchPort;
        case QSerialPort::PermissionError:  // locked or held exclusively by another process
        case QSerialPort::OpenError:        // already open here
            return PortOpenError::PortInUse;
        default:
            return PortOpenError::Other;
    }
}

QtSerialPort::QtSerialPort(QObject* parent) : SerialPort(parent) {
    lineDrain_.setSingleShot(true);
    lineDrain_.setTimerType(Qt::PreciseTimer);
    connect(&lineDrain_, &QTimer::timeout, this, &QtSerialPort::checkDrained);
    connect(&port_, &QSerialPort::readyRead, this, [this] { notifyReceived(); });
    connect(&port_, &QSerialPort::bytesWritten, this, &QtSerialPort::checkDrained);
    connect(&port_, &QSerialPort::errorOccurred, this, &QtSerialPort::onError);
}

PortOpenError QtSerialPort::open(const QString& device) {
    if (port_.isOpen()) return PortOpenError::PortInUse;
    port_.setPortName(device);
    port_.setBaudRate(kBaudRate);
    port_.setDataBits(QSerialPort::Data8);
    port_.setParity(QSerialPort::NoParity);
    port_.setStopBits(QSerialPort::OneStop);
    port_.setFlowControl(QSerialPort::NoFlowControl);
    setOpenFailure({}, false);
    if (port_.open(QIODevice::ReadWrite)) return PortOpenError::None;
    const PortOpenError error = openErrorOf(port_.error());
    bool denied = false;
#ifdef Q_OS_UNIX
    // QSerialPort says "permission" for a lock held elsewhere too; the file's rights tell.
    const QByteArray path = QFile::encodeName(port_.portName().startsWith(QLatin1Char('/'))
                                                  ? port_.portName()
                                                  : QStringLiteral("/dev/") + port_.portName());
    denied = ::access(path.constData(), R_OK | W_OK) != 0 && errno == EACCES;
#endif
    setOpenFailure(port_.errorString(), denied);
    port_.clearError();
    return error == PortOpenError::None ? PortOpenError::Other : error;
}

void QtSerialPort::close() {
    lineDrain_.stop();
    if (port_.isOpen()) port_.close();
}

bool QtSerialPort::isOpen() const {
    return port_.isOpen();
}

QString QtSerialPort::device() const {
    return port_.isOpen() ? port_.portName() : QString();
}

void QtSerialPort::write(const QByteArray& bytes) {
    if (port_.isOpen()) port_.write(bytes);
}

qint64 QtSerialPort::bytesToWrite() const {
    return port_.bytesToWrite() + systemOutputQueue();
}

qint64 QtSerialPort::bytesAvailable() const {
    return port_.bytesAvailable();
}

QByteArray QtSerialPort::read(qint64 maxBytes) {
    return port_.read(maxBytes);
}

void QtSerialPort::discardInput() {
    if (port_.isOpen()) port_.clear(QSerialPort::Input);
}

void QtSerialPort::discardOutput() {
    if (port_.isOpen()) port_.clear(QSerialPort::Output);
}

qint64 QtSerialPort::systemOutputQueue() const {
#ifdef TIOCOUTQ
    int queued = 0;
    if (port_.isOpen() && ::ioctl(static_cast<int>(port_.handle()), TIOCOUTQ, &queued) == 0) {
        return queued;
    }
#endif
    return 0;
}

void QtSerialPort::checkDrained() {
    if (!port_.isOpen() || port_.bytesToWrite() > 0) return;
    const qint64 queued = systemOutputQueue();
    if (queued == 0) {
        Q_EMIT drained();
        return;
    }
    lineDrain_.start(static_cast<int>(std::ceil(queued * kMsPerByte)));
}

void QtSerialPort::onError(QSerialPort::SerialPortError error) {
    switch (error) {
        case QSerialPort::ResourceError:
        case QSerialPort::ReadError:
        case QSerialPort::WriteError:
            if (port_.isOpen()) Q_EMIT failed(port_.errorString());
            break;
        default:
            break;
    }
}
