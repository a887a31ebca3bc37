#include <memory>

#include "cli/commands.h"
#include "cli/file_arguments.h"
#include "persistence/codeplug_file.h"
#include "persistence/config_file.h"

namespace {

struct ConvertArguments {
    std::string in;
    std::string out;
};

int convert(const GlobalOptions& global, const ConvertArguments& files) {
    // An old layout leaves some settings out; they come from the start-up document, as they
    // would when the program opened the file.
    Codeplug doc = global.startupCodeplug();
    if (!loadCodeplugArgument(doc, files.in)) return kExitBadInput;
    // The output holds the codeplug alone, whatever a file of that name held before.
    return saveCodeplugArgument(doc, files.out, SaveMode::ReplaceFile);
}

}  // namespace

void addConvertCommand(CLI::App& app, const GlobalOptions& global, CommandRunner& run) {
    CLI::App* command =
        app.add_subcommand("convert", "read a codeplug file of any layout, write the current one");
    auto files = std::make_shared<ConvertArguments>();
    command->add_option("IN", files->in, "codeplug file to read")->required();
    command->add_option("OUT", files->out, "codeplug file to write")->required();
    command->callback(
        [&global, &run, files] { run = [&global, files] { return convert(global, *files); }; });
}
