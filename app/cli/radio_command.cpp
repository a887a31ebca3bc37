#include "cli/radio_command.h"

#include <cstdio>

#include "cli/console_session_view.h"
#include "cli/session_runner.h"
#include "platform/qt_serial_port.h"
#include "sim/simulated_radio_port.h"

std::optional<PortArgument> parsePortOption(const std::string& text) {
    std::optional<PortArgument> port = PortArgument::parse(QString::fromStdString(text));
    if (!port) std::fprintf(stderr, "radioprog-cli: --port takes COMn, a device path or sim\n");
    return port;
}

RadioLine::RadioLine(const GlobalOptions& global, const PortArgument& portArgument,
                     UiLanguage language) {
    if (portArgument.kind == PortArgument::Simulator) {
        port = SimulatedRadioPort::create(clock);
    } else {
        port = std::make_unique<QtSerialPort>();
    }
    control = std::make_unique<PortControl>(*port, global.portCatalogue(), prompts, language);
    control->select(portArgument, QString::fromLatin1(SimulatedPort::kDefaultDevice));
    transport = std::make_unique<LinkTransport>(*port, clock);
    QObject::connect(transport.get(), &LinkTransport::portLost, [this] { control->portLost(); });
}

RadioLine::~RadioLine() {
    transport->setTrace(nullptr);
}

bool RadioLine::traceTo(const std::string& path) {
    if (path.empty()) return true;
    traceFile_ = std::make_unique<QFile>(QString::fromStdString(path));
    if (!traceFile_->open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text)) {
        std::fprintf(stderr, "radioprog-cli: cannot write the trace %s: %s\n", path.c_str(),
                     qPrintable(traceFile_->errorString()));
        return false;
    }
    trace_ = std::make_unique<LinkTrace>(LinkTrace::fileSink(traceFile_.get()));
    transport->setTrace(trace_.get());
    return true;
}

void addTraceOption(CLI::App* command, std::string& path) {
    command->add_option("--trace", path,
                        "log every frame to and from the radio, with times, into this file");
}

SessionOutcome runSessionOnPort(const GlobalOptions& global, const PortArgument& portArgument,
                                UiLanguage language, const std::string& tracePath,
                                const SessionFactory& makeSession) {
    RadioLine line(global, portArgument, language);
    if (!line.traceTo(tracePath)) return SessionOutcome::Refused;
    ConsoleSessionView view(stderr);
    const std::unique_ptr<RadioSession> session = makeSession(*line.transport, line.prompts, view);
    const SessionOutcome outcome = runToEnd(*session, [&] { return session->start(); });
    if (outcome != SessionOutcome::Refused) line.control->showPortState();
    return outcome;
}
