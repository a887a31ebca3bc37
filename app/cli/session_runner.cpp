#include "cli/session_runner.h"

#include <QCoreApplication>
#include <csignal>

#include "common/signal_notifier.h"

SessionOutcome runToEnd(RadioSession& session, const std::function<bool()>& start) {
    const QMetaObject::Connection done = QObject::connect(
        &session, &RadioSession::finished, QCoreApplication::instance(),
        [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
    {
        SignalNotifier interrupt({SIGINT});
        QObject::connect(&interrupt, &SignalNotifier::raised, &session,
                         [&session] { session.cancel(); });
        if (start()) QCoreApplication::exec();
    }
    QObject::disconnect(done);
    return session.outcome();
}
