#pragma once

#include <QCoreApplication>
#include <csignal>
#include <functional>

#include "common/signal_notifier.h"
#include "link/radio_session.h"

// Says on stderr which signal stopped the operation under way.
void reportStop(int signalNumber);

// For programs without a window (the command line): starts an operation (a session, a service
// panel, a boot loader job) with `start` and runs the application's event loop until the
// operation emits `finished`. SIGINT (Ctrl-C), SIGTERM and SIGHUP meanwhile do what closing the
// progress window does: they cancel the operation, which then ends with its usual messages.
// Returns whether it started. Must not be called while the event loop is already running.
template <typename Operation, typename FinishedSignal>
bool runUntilFinished(Operation& operation, FinishedSignal finished,
                      const std::function<bool()>& start) {
    const QMetaObject::Connection done = QObject::connect(
        &operation, finished, QCoreApplication::instance(), [] { QCoreApplication::exit(0); },
        Qt::QueuedConnection);
    bool started = false;
    {
        SignalNotifier stop({SIGINT, SIGTERM, SIGHUP});
        QObject::connect(&stop, &SignalNotifier::raised, &operation,
                         [&operation](int signalNumber) {
                             if (!operation.isRunning()) return;
                             reportStop(signalNumber);
                             operation.cancel();
                         });
        started = start();
        if (started) QCoreApplication::exec();
    }
    QObject::disconnect(done);
    return started;
}

// A read or write session run to its end; its outcome.
SessionOutcome runToEnd(RadioSession& session, const std::function<bool()>& start);
