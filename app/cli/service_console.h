#pragma once

#include <QStringList>
#include <functional>
#include <memory>

#include "cli/commands.h"
#include "cli/radio_command.h"
#include "service/service_channel.h"
#include "service/service_panel.h"

// The service command's world: the port named by --port, the link and the service channel,
// with the panels' boxes and status texts on stderr. Operations run one after the other, each
// to its end in the application's event loop; Ctrl-C, SIGTERM and SIGHUP give up the one under
// way. The port state follows the last operation, as the status bar shows it a second later.
class ServiceConsole {
public:
    ServiceConsole(const GlobalOptions& global, const PortArgument& port, UiLanguage language);
    // The serial traffic into `path` (nothing for an empty path); false after saying why.
    bool traceTo(const std::string& path) { return line_.traceTo(path); }
    ~ServiceConsole();

    ServiceChannel& channel() { return channel_; }
    UiLanguage language() const { return language_; }

    // Runs one operation of `panel`; `start` is the button press.
    ServiceOutcome run(ServicePanel& panel, const std::function<bool()>& start);

private:
    UiLanguage language_;
    RadioLine line_;
    ServiceChannel channel_;
    bool sent_ = false;
};

// Exit status of an operation's outcome.
int exitStatus(ServiceOutcome outcome);
// Prints lines on stdout.
void printLines(const QStringList& lines);
