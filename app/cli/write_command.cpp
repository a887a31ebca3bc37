#include <memory>

#include "cli/commands.h"
#include "cli/file_arguments.h"
#include "cli/radio_command.h"
#include "link/write_session.h"
#include "persistence/codeplug_file.h"

namespace {

struct WriteOptions {
    std::string port;
    std::string trace;
    std::string file;
};

int writeRadio(const GlobalOptions& global, const WriteOptions& options) {
    const std::optional<PortArgument> port = parsePortOption(options.port);
    if (!port) return kExitBadInput;
    Codeplug doc = global.startupCodeplug();
    if (!loadCodeplugArgument(doc, options.file)) return kExitBadInput;
    const SessionOutcome outcome =
        runSessionOnPort(global, *port, doc.language, options.trace,
                         [&doc](LinkTransport& link, Prompts& prompts, SessionView& view) {
                             return std::make_unique<WriteSession>(link, doc, prompts, view);
                         });
    return outcome == SessionOutcome::Succeeded ? kExitOk : kExitFailed;
}

}  // namespace

void addWriteCommand(CLI::App& app, const GlobalOptions& global, CommandRunner& run) {
    CLI::App* write = app.add_subcommand(
        "write", "check a codeplug file's frequencies, then write it into the radio");
    auto options = std::make_shared<WriteOptions>();
    write->add_option("--port", options->port, "COMn, a device path, or sim")->required();
    addTraceOption(write, options->trace);
    write->add_option("FILE", options->file, "codeplug file (.qzv) of any layout")->required();
    write->callback([&global, &run, options] {
        run = [&global, options] { return writeRadio(global, *options); };
    });
}
