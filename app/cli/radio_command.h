#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "cli/commands.h"
#include "link/link_transport.h"
#include "link/port_catalogue.h"
#include "link/port_control.h"
#include "link/radio_session.h"
#include "platform/steady_clock.h"
#include "platform/stream_prompts.h"

class SessionView;

// What the commands that talk to a radio share: the --port text understood (a message on
// stderr when it is not), the port opened with its status lines on stderr, and one session
// run on it, followed by the port state the status bar shows a second later.
std::optional<PortArgument> parsePortOption(const std::string& text);

// The port named on the command line, opened and reported like a choice from the port menu,
// with the link on it. A port that lost its device says so on stderr.
class RadioLine {
public:
    RadioLine(const GlobalOptions& global, const PortArgument& portArgument, UiLanguage language);
    ~RadioLine();

    SteadyClock clock;
    StreamPrompts prompts{stderr};
    std::unique_ptr<SerialPort> port;
    std::unique_ptr<PortControl> control;
    std::unique_ptr<LinkTransport> transport;
};

using SessionFactory =
    std::function<std::unique_ptr<RadioSession>(LinkTransport&, Prompts&, SessionView&)>;

SessionOutcome runSessionOnPort(const GlobalOptions& global, const PortArgument& portArgument,
                                UiLanguage language, const SessionFactory& makeSession);
