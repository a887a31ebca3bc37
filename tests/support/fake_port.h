#pragma once

#include <QSet>
#include <QString>
#include <vector>

#include "platform/clock.h"
#include "platform/serial_port.h"

// A port for tests of the transport and the port logic: it records every write call, drains
// after a set delay on the given clock, and delivers whatever a test injects.
class FakePort : public SerialPort {
public:
    explicit FakePort(Clock& clock) : drainTimer_(clock.createTimer()) {
        drainTimer_->setCallback([this] {
            pendingOut_ = 0;
            Q_EMIT drained();
        });
    }

    // Devices that do not exist (8002) or are held by someone else (8005).
    QSet<QString> absent;
    QSet<QString> busy;
    QSet<QString> denied;  // there, but this user lacks the rights
    int drainDelayMs = 0;  // 0: the bytes are gone as soon as they are written
    std::vector<QByteArray> writes;
    std::vector<QString> openAttempts;
    int discardInputCount = 0;

    PortOpenError open(const QString& device) override {
        openAttempts.push_back(device);
        if (open_) return PortOpenError::PortInUse;
        if (absent.contains(device)) return PortOpenError::NoSuchPort;
        if (busy.contains(device)) return PortOpenError::PortInUse;
        if (denied.contains(device)) {
            setOpenFailure(QStringLiteral("Permission denied"), true);
            return PortOpenError::PortInUse;
        }
        open_ = true;
        device_ = device;
        return PortOpenError::None;
    }
    void close() override {
        open_ = false;
        device_.clear();
    }
    bool isOpen() const override { return open_; }
    QString device() const override { return device_; }

    void write(const QByteArray& bytes) override {
        writes.push_back(bytes);
        if (drainDelayMs == 0) return;
        pendingOut_ += bytes.size();
        drainTimer_->start(drainDelayMs);
    }
    qint64 bytesToWrite() const override { return pendingOut_; }
    qint64 bytesAvailable() const override { return input_.size(); }
    QByteArray read(qint64 maxBytes) override {
        const QByteArray bytes = input_.left(maxBytes);
        input_.remove(0, bytes.size());
        return bytes;
    }
    void discardInput() override {
        ++discardInputCount;
        input_.clear();
    }
    void discardOutput() override { pendingOut_ = 0; }

    // Bytes arriving from the radio in one receive event.
    void inject(const QByteArray& bytes) {
        input_.append(bytes);
        notifyReceived();
    }
    void fail() { Q_EMIT failed(QStringLiteral("device removed")); }

    // Everything written since the last call, run together.
    QByteArray takeWritten() {
        QByteArray all;
        for (const QByteArray& w : writes) all.append(w);
        writes.clear();
        return all;
    }

private:
    std::unique_ptr<Timer> drainTimer_;
    bool open_ = false;
    QString device_;
    QByteArray input_;
    qint64 pendingOut_ = 0;
};

inline QByteArray hexBytes(const char* hex) {
    return QByteArray::fromHex(hex);
}
