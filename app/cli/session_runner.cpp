#include "cli/session_runner.h"

#include <QCoreApplication>
#include <csignal>
#include <cstdio>
#include <cstring>

#include "common/signal_notifier.h"

SessionOutcome runToEnd(RadioSession& session, const std::function<bool()>& start) {
    const QMetaObject::Connection done = QObject::connect(
        &session, &RadioSession::finished, QCoreApplication::instance(),
        [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
    {
        // Ctrl-C, a terminal that closes and a polite kill all end the session the way
        // closing the progress window does, so that the user always hears how far it got.
        SignalNotifier stop({SIGINT, SIGTERM, SIGHUP});
        QObject::connect(&stop, &SignalNotifier::raised, &session, [&session](int signalNumber) {
            if (!session.isRunning()) return;
            std::fprintf(stderr, "radioprog-cli: stopped by %s\n", ::strsignal(signalNumber));
            session.cancel();
        });
        if (start()) QCoreApplication::exec();
    }
    QObject::disconnect(done);
    return session.outcome();
}
