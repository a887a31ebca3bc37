#include <QTextStream>
#include <memory>

#include "cli/commands.h"
#include "cli/file_arguments.h"
#include "cli/plan_printer.h"
#include "cli/radio_command.h"
#include "link/read_session.h"
#include "persistence/codeplug_file.h"

namespace {

struct ReadOptions {
    std::string port;
    std::string trace;
    std::string output;
};

int readRadio(const GlobalOptions& global, const ReadOptions& options) {
    const std::optional<PortArgument> port = parsePortOption(options.port);
    if (!port) return kExitBadInput;
    Codeplug doc = global.startupCodeplug();
    const SessionOutcome outcome =
        runSessionOnPort(global, *port, doc.language, options.trace,
                         [&doc](LinkTransport& link, Prompts& prompts, SessionView& view) {
                             return std::make_unique<ReadSession>(link, doc, prompts, view);
                         });
    if (outcome != SessionOutcome::Succeeded) return kExitFailed;

    QTextStream out(stdout);
    printCodeplug(out, doc);
    out.flush();
    if (options.output.empty()) return kExitOk;
    return saveCodeplugArgument(doc, options.output, SaveMode::KeepOtherLines);
}

}  // namespace

void addReadCommand(CLI::App& app, const GlobalOptions& global, CommandRunner& run) {
    CLI::App* read =
        app.add_subcommand("read", "read the channel plan and settings from the radio");
    auto options = std::make_shared<ReadOptions>();
    read->add_option("--port", options->port, "COMn, a device path, or sim")->required();
    addTraceOption(read, options->trace);
    read->add_option("-o,--output", options->output,
                     "save the plan read as a codeplug file (.qzv)");
    read->callback([&global, &run, options] {
        run = [&global, options] { return readRadio(global, *options); };
    });
}
