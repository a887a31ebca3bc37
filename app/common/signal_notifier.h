#pragma once

#include <QObject>
#include <initializer_list>
#include <memory>

class QSocketNotifier;

// Turns POSIX signals into a Qt signal delivered by the event loop: the handler only writes
// the signal's number into a socket pair, which the loop then reads. While it lives, the
// signals it was given are caught; the previous handlers come back when it is destroyed.
// One instance at a time.
class SignalNotifier : public QObject {
    Q_OBJECT

public:
    explicit SignalNotifier(std::initializer_list<int> signalNumbers, QObject* parent = nullptr);
    ~SignalNotifier() override;

Q_SIGNALS:
    void raised(int signalNumber);

private:
    struct Installed;
    std::unique_ptr<QSocketNotifier> notifier_;
    std::unique_ptr<Installed> installed_;
};
