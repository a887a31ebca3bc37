#include <QTextStream>
#include <cstdio>
#include <memory>

#include "cli/commands.h"
#include "cli/file_arguments.h"
#include "l10n/csv_texts.h"
#include "persistence/csv_export.h"
#include "persistence/csv_import.h"

namespace {

struct FilePair {
    std::string in;
    std::string out;
};

int exportCsv(const GlobalOptions& global, const FilePair& files) {
    Codeplug doc = global.startupCodeplug();
    if (!loadCodeplugArgument(doc, files.in)) return kExitBadInput;
    const Result<void> saved = exportCsvFile(doc, QString::fromStdString(files.out));
    if (!saved) return reportError(saved.error(), doc.language, kExitCannotSave);
    return kExitOk;
}

int importCsv(const GlobalOptions& global, const FilePair& files) {
    // The start-up document gives the language the words come back in.
    const Codeplug base = global.startupCodeplug();
    const QString in = QString::fromStdString(files.in);
    const Result<CsvImport> read = importCsvFile(base, in);
    if (!read) return reportError(read.error(), base.language, kExitBadInput);
    if (!read->document) {
        QTextStream err(stderr);
        err << "radioprog-cli: " << in << ": " << l10n::csvRefusedHeading(base.language) << '\n';
        for (const QString& line : l10n::describeCellFaults(read->faults, base.language)) {
            err << "  " << line << '\n';
        }
        return kExitBadInput;
    }
    return saveCodeplugArgument(*read->document, files.out, SaveMode::ReplaceFile);
}

void addFilePairCommand(CLI::App& app, const GlobalOptions& global, CommandRunner& run,
                        const char* name, const char* description, const char* inText,
                        const char* outText,
                        int (*command)(const GlobalOptions&, const FilePair&)) {
    CLI::App* sub = app.add_subcommand(name, description);
    auto files = std::make_shared<FilePair>();
    sub->add_option("IN", files->in, inText)->required();
    sub->add_option("OUT", files->out, outText)->required();
    sub->callback([&global, &run, files, command] {
        run = [&global, files, command] { return command(global, *files); };
    });
}

}  // namespace

void addCsvCommands(CLI::App& app, const GlobalOptions& global, CommandRunner& run) {
    addFilePairCommand(app, global, run, "export-csv",
                       "write a codeplug file of any layout as CSV: a row per channel, then the "
                       "settings",
                       "codeplug file to read", "CSV file to write", exportCsv);
    addFilePairCommand(app, global, run, "import-csv",
                       "check a CSV file, then write it as a codeplug file; with bad cells, each "
                       "is named and nothing is written",
                       "CSV file to read (either language's words)", "codeplug file to write",
                       importCsv);
}
