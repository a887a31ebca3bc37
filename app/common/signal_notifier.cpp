#include "common/signal_notifier.h"

#include <QSocketNotifier>
#include <vector>

#ifdef Q_OS_UNIX
#include <sys/socket.h>
#include <unistd.h>

#include <csignal>

namespace {

int signalPipe[2] = {-1, -1};

void onSignal(int signalNumber) {
    const char byte = static_cast<char>(signalNumber);
    const ssize_t written = ::write(signalPipe[1], &byte, 1);
    (void)written;
}

}  // namespace

struct SignalNotifier::Installed {
    std::vector<std::pair<int, struct sigaction>> previous;
};

SignalNotifier::SignalNotifier(std::initializer_list<int> signalNumbers, QObject* parent)
    : QObject(parent), installed_(std::make_unique<Installed>()) {
    Q_ASSERT(signalPipe[0] < 0);
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, signalPipe) != 0) return;
    notifier_ = std::make_unique<QSocketNotifier>(signalPipe[0], QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        if (::read(signalPipe[0], &byte, 1) == 1) Q_EMIT raised(static_cast<unsigned char>(byte));
    });
    for (int number : signalNumbers) {
        struct sigaction action {};
        action.sa_handler = onSignal;
        sigemptyset(&action.sa_mask);
        struct sigaction previous {};
        if (::sigaction(number, &action, &previous) == 0)
            installed_->previous.push_back({number, previous});
    }
}

SignalNotifier::~SignalNotifier() {
    for (const auto& [number, previous] : installed_->previous)
        ::sigaction(number, &previous, nullptr);
    notifier_.reset();
    for (int& fd : signalPipe) {
        if (fd >= 0) ::close(fd);
        fd = -1;
    }
}
#else
struct SignalNotifier::Installed {};

SignalNotifier::SignalNotifier(std::initializer_list<int>, QObject* parent) : QObject(parent) {}
SignalNotifier::~SignalNotifier() = default;
#endif
