#include <QTextStream>
#include <cstdio>
#include <memory>

#include "cli/commands.h"
#include "cli/plan_printer.h"
#include "link/console_session_view.h"
#include "link/link_transport.h"
#include "link/port_control.h"
#include "link/read_session.h"
#include "link/session_runner.h"
#include "persistence/codeplug_file.h"
#include "persistence/config_file.h"
#include "platform/qt_serial_port.h"
#include "platform/steady_clock.h"
#include "platform/stream_prompts.h"
#include "sim/simulated_radio_port.h"

namespace {

struct ReadOptions {
    std::string port;
    std::string output;
};

int readRadio(const GlobalOptions& global, const ReadOptions& options) {
    const std::optional<PortArgument> portArgument =
        PortArgument::parse(QString::fromStdString(options.port));
    if (!portArgument) {
        std::fprintf(stderr, "radioprog-cli: --port takes COMn, a device path or sim\n");
        return kExitBadInput;
    }
    Codeplug doc = global.startupCodeplug();

    SteadyClock clock;
    StreamPrompts prompts(stderr);
    ConsoleSessionView view(stderr);
    std::unique_ptr<SerialPort> port;
    if (portArgument->kind == PortArgument::Simulator) {
        port = SimulatedRadioPort::create(clock);
    } else {
        port = std::make_unique<QtSerialPort>();
    }
    PortControl control(*port, global.portCatalogue(), prompts, doc.language);
    control.select(*portArgument, QString::fromLatin1(SimulatedPort::kDefaultDevice));

    LinkTransport transport(*port, clock, prompts, view);
    ReadSession session(transport, doc, prompts, view);
    const SessionOutcome outcome = runToEnd(session, [&] { return session.start(); });
    // What the status bar shows a second after a session.
    if (outcome != SessionOutcome::Refused) control.showPortState();
    if (outcome != SessionOutcome::Succeeded) return kExitFailed;

    QTextStream out(stdout);
    printCodeplug(out, doc);
    out.flush();
    if (!options.output.empty()) {
        const QString path = QString::fromStdString(options.output);
        if (const std::optional<FileError> error = WriteSaveFile(doc, path)) {
            QTextStream(stderr) << "radioprog-cli: " << describeFileError(*error, doc.language)
                                << '\n';
            return kExitBadInput;
        }
    }
    return kExitOk;
}

}  // namespace

void addReadCommand(CLI::App& app, const GlobalOptions& global, CommandRunner& run) {
    CLI::App* read =
        app.add_subcommand("read", "read the channel plan and settings from the radio");
    auto options = std::make_shared<ReadOptions>();
    read->add_option("--port", options->port, "COMn, a device path, or sim")->required();
    read->add_option("-o,--output", options->output,
                     "save the plan read as a codeplug file (.qzv)");
    read->callback([&global, &run, options] {
        run = [&global, options] { return readRadio(global, *options); };
    });
}
