#include <QTextStream>
#include <memory>

#include "cli/commands.h"
#include "cli/file_arguments.h"
#include "cli/plan_printer.h"
#include "model/codeplug.h"
#include "persistence/codeplug_file.h"
#include "persistence/config_file.h"

namespace {

QString layoutLine(const LoadedCodeplug& result) {
    QString line = QStringLiteral("layout: ") + layoutName(result.layout);
    if (result.savedLanguage) {
        line +=
            QStringLiteral(", saved while %1 was active").arg(configTextOf(*result.savedLanguage));
    }
    return line;
}

int showFile(const GlobalOptions& global, const std::string& file) {
    // A read-only command leaves config.ini as it finds it.
    Codeplug doc = global.startupCodeplug();
    QTextStream out(stdout);
    if (!file.empty()) {
        const std::optional<LoadedCodeplug> loaded = loadCodeplugArgument(doc, file);
        if (!loaded) return kExitBadInput;
        out << layoutLine(*loaded) << "\n\n";
    }
    printCodeplug(out, doc);
    return kExitOk;
}

}  // namespace

void addShowCommand(CLI::App& app, const GlobalOptions& global, CommandRunner& run) {
    CLI::App* show = app.add_subcommand(
        "show", "print a codeplug file of any layout, or without FILE the start-up channel plan");
    auto file = std::make_shared<std::string>();
    show->add_option("FILE", *file, "codeplug file (.qzv)");
    show->callback(
        [&global, &run, file] { run = [&global, file] { return showFile(global, *file); }; });
}
