#include <QTextStream>
#include <cstdio>
#include <memory>

#include "cli/commands.h"
#include "link/console_session_view.h"
#include "link/link_transport.h"
#include "link/port_control.h"
#include "link/session_runner.h"
#include "link/write_session.h"
#include "persistence/codeplug_file.h"
#include "persistence/config_file.h"
#include "platform/qt_serial_port.h"
#include "platform/steady_clock.h"
#include "platform/stream_prompts.h"
#include "sim/simulated_radio_port.h"

namespace {

struct WriteOptions {
    std::string port;
    std::string file;
};

int writeRadio(const GlobalOptions& global, const WriteOptions& options) {
    const std::optional<PortArgument> portArgument =
        PortArgument::parse(QString::fromStdString(options.port));
    if (!portArgument) {
        std::fprintf(stderr, "radioprog-cli: --port takes COMn, a device path or sim\n");
        return kExitBadInput;
    }
    Codeplug doc = global.startupCodeplug();
    const CodeplugLoadResult loaded = openCodeplugFile(doc, QString::fromStdString(options.file));
    if (!loaded.ok()) {
        QTextStream(stderr) << "radioprog-cli: " << describeFileError(*loaded.error, doc.language)
                            << '\n';
        return kExitBadInput;
    }

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
    WriteSession session(transport, doc, prompts, view);
    const SessionOutcome outcome = runToEnd(session, [&] { return session.start(); });
    if (outcome != SessionOutcome::Refused) control.showPortState();
    return outcome == SessionOutcome::Succeeded ? kExitOk : kExitFailed;
}

}  // namespace

void addWriteCommand(CLI::App& app, const GlobalOptions& global, CommandRunner& run) {
    CLI::App* write = app.add_subcommand(
        "write", "check a codeplug file's frequencies, then write it into the radio");
    auto options = std::make_shared<WriteOptions>();
    write->add_option("--port", options->port, "COMn, a device path, or sim")->required();
    write->add_option("FILE", options->file, "codeplug file (.qzv) of any layout")->required();
    write->callback([&global, &run, options] {
        run = [&global, options] { return writeRadio(global, *options); };
    });
}
