#include "cli/session_runner.h"

#include <cstdio>
#include <cstring>

void reportStop(int signalNumber) {
    std::fprintf(stderr, "radioprog-cli: stopped by %s\n", ::strsignal(signalNumber));
}

SessionOutcome runToEnd(RadioSession& session, const std::function<bool()>& start) {
    runUntilFinished(session, &RadioSession::finished, start);
    return session.outcome();
}
