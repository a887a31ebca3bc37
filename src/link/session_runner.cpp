#include "link/session_runner.h"

#include <QCoreApplication>

SessionOutcome runToEnd(RadioSession& session, const std::function<bool()>& start) {
    const QMetaObject::Connection done = QObject::connect(
        &session, &RadioSession::finished, QCoreApplication::instance(),
        [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
    if (start()) QCoreApplication::exec();
    QObject::disconnect(done);
    return session.outcome();
}
