#pragma once

#include <functional>

#include "link/radio_session.h"

// For programs without a window (the command line): starts a session and runs the
// application's event loop until the session has finished. SIGINT (Ctrl-C), SIGTERM and SIGHUP
// meanwhile do what closing the progress window does: they cancel the session, which then ends
// with its usual messages. Must not be called while the event loop is already running.
SessionOutcome runToEnd(RadioSession& session, const std::function<bool()>& start);
