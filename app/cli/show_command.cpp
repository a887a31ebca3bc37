#include <QTextStream>
#include <cstdio>

#include "cli/commands.h"
#include "cli/plan_printer.h"
#include "model/codeplug.h"

void addShowCommand(CLI::App& app, const GlobalOptions& global, CommandRunner& run) {
    CLI::App* show = app.add_subcommand("show", "print the start-up channel plan");
    show->callback([&global, &run] {
        run = [&global] {
            StartupConfig config;
            if (auto lang = global.language()) config.language = *lang;
            const Codeplug doc = buildStartupCodeplug(config);
            QTextStream out(stdout);
            printCodeplug(out, doc);
            return kExitOk;
        };
    });
}
