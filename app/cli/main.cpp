#include <QCoreApplication>
#include <QTextStream>
#include <cstdio>

#include "cli/commands.h"
#include "l10n/error_texts.h"
#include "persistence/config_file.h"

std::optional<UiLanguage> GlobalOptions::language() const {
    if (lang == "zh") return UiLanguage::Chinese;
    if (lang == "en") return UiLanguage::English;
    return std::nullopt;
}

QString GlobalOptions::configPath() const {
    return configFilePath(QString::fromStdString(configDir));
}

Codeplug GlobalOptions::startupCodeplug() const {
    std::optional<Error> unreadable;
    Codeplug doc =
        loadStartupCodeplug(configPath(), ConfigCompletion::InMemoryOnly, language(), &unreadable);
    if (unreadable) {
        QTextStream(stderr) << "radioprog-cli: " << l10n::configWarning(*unreadable, doc.language)
                            << '\n';
    }
    return doc;
}

PortCatalogue GlobalOptions::portCatalogue() const {
    return PortCatalogue::fromSystem(readPortPins(configPath()));
}

const char* const kExitStatusHelp =
    "Exit status, for every command:\n"
    "  0  done\n"
    "  1  the radio did not answer, or a check refused the plan\n"
    "  2  bad usage, or an input file that cannot be read\n"
    "  3  an output file could not be written (an old file of that name is left as it was)";

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("radioprog"));

    CLI::App app{"radioprog-cli: programs the hand-held radio's channel plan from a terminal"};
    app.require_subcommand(1);
    app.set_version_flag("--version", "radioprog-cli " RADIOPROG_VERSION);
    app.footer(kExitStatusHelp);
    GlobalOptions global;
    app.add_option("--config", global.configDir, "folder that holds config.ini");
    app.add_option("--lang", global.lang, "language of the output: zh or en")
        ->check(CLI::IsMember({"zh", "en"}));

    CommandRunner run;
    addShowCommand(app, global, run);
    addConvertCommand(app, global, run);
    addCsvCommands(app, global, run);
    addPortsCommand(app, global, run);
    addReadCommand(app, global, run);
    addWriteCommand(app, global, run);
    addFirmwareCommand(app, global, run);
    addServiceCommand(app, global, run);
    addDoctorCommand(app, global, run);

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& e) {
        const int status = app.exit(e);
        return status == 0 ? kExitOk : kExitBadInput;
    }
    return run ? run() : kExitBadInput;
}
