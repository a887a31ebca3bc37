#include "cli/service_console.h"

#include <QTextStream>

#include "cli/session_runner.h"

ServiceConsole::ServiceConsole(const GlobalOptions& global, const PortArgument& port,
                               UiLanguage language)
    : language_(language),
      line_(global, port, language),
      channel_(*line_.transport, line_.prompts) {
    channel_.setLanguage(language);
}

ServiceConsole::~ServiceConsole() {
    if (sent_) line_.control->showPortState();
}

ServiceOutcome ServiceConsole::run(ServicePanel& panel, const std::function<bool()>& start) {
    sent_ = runUntilFinished(panel, &ServicePanel::finished, start);
    return panel.outcome();
}

int exitStatus(ServiceOutcome outcome) {
    return outcome == ServiceOutcome::Succeeded ? kExitOk : kExitFailed;
}

void printLines(const QStringList& lines) {
    QTextStream out(stdout);
    for (const QString& line : lines) out << line << '\n';
    out.flush();
}
