#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "cli/commands.h"
#include "link/port_catalogue.h"
#include "link/radio_session.h"

class LinkTransport;
class Prompts;
class SessionView;

// What the read and write commands share: the --port text understood (a message on stderr
// when it is not), and one session run on that port with its status lines and messages on
// stderr, followed by the port state the status bar shows a second later.
std::optional<PortArgument> parsePortOption(const std::string& text);

using SessionFactory =
    std::function<std::unique_ptr<RadioSession>(LinkTransport&, Prompts&, SessionView&)>;

SessionOutcome runSessionOnPort(const GlobalOptions& global, const PortArgument& portArgument,
                                UiLanguage language, const SessionFactory& makeSession);
