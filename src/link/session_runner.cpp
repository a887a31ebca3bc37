#include "link/session_runner.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <memory>

#ifdef Q_OS_UNIX
#include <sys/socket.h>
#include <unistd.h>

#include <csignal>
#endif

namespace {

#ifdef Q_OS_UNIX
int interruptPipe[2] = {-1, -1};

void onInterrupt(int) {
    const char byte = 1;
    const ssize_t written = ::write(interruptPipe[1], &byte, 1);
    (void)written;
}

// Turns SIGINT into an event of the loop while it lives (a signal handler may do no more
// than write a byte).
class InterruptAsCancel {
public:
    explicit InterruptAsCancel(RadioSession& session) {
        if (::socketpair(AF_UNIX, SOCK_STREAM, 0, interruptPipe) != 0) return;
        notifier_ = std::make_unique<QSocketNotifier>(interruptPipe[0], QSocketNotifier::Read);
        QObject::connect(notifier_.get(), &QSocketNotifier::activated, [&session] {
            char byte;
            const ssize_t got = ::read(interruptPipe[0], &byte, 1);
            (void)got;
            session.cancel();
        });
        struct sigaction action {};
        action.sa_handler = onInterrupt;
        sigemptyset(&action.sa_mask);
        installed_ = ::sigaction(SIGINT, &action, &previous_) == 0;
    }
    ~InterruptAsCancel() {
        if (installed_) ::sigaction(SIGINT, &previous_, nullptr);
        notifier_.reset();
        for (int& fd : interruptPipe) {
            if (fd >= 0) ::close(fd);
            fd = -1;
        }
    }

private:
    std::unique_ptr<QSocketNotifier> notifier_;
    struct sigaction previous_ {};
    bool installed_ = false;
};
#else
struct InterruptAsCancel {
    explicit InterruptAsCancel(RadioSession&) {}
};
#endif

}  // namespace

SessionOutcome runToEnd(RadioSession& session, const std::function<bool()>& start) {
    const QMetaObject::Connection done = QObject::connect(
        &session, &RadioSession::finished, QCoreApplication::instance(),
        [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
    {
        InterruptAsCancel interrupt(session);
        if (start()) QCoreApplication::exec();
    }
    QObject::disconnect(done);
    return session.outcome();
}
