#include <QCoreApplication>
#include <cstdio>

#include "cli/commands.h"
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
    return loadStartupCodeplug(configPath(), ConfigCompletion::InMemoryOnly, language());
}

PortCatalogue GlobalOptions::portCatalogue() const {
    return PortCatalogue::fromSystem(readPortPins(configPath()));
}

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("radioprog"));

    CLI::App app{"radioprog-cli: programs the hand-held radio's channel plan from a terminal"};
    app.require_subcommand(1);
    app.set_version_flag("--version", "radioprog-cli " RADIOPROG_VERSION);
    GlobalOptions global;
    app.add_option("--config", global.configDir, "folder that holds config.ini");
    app.add_option("--lang", global.lang, "language of the output: zh or en")
        ->check(CLI::IsMember({"zh", "en"}));

    CommandRunner run;
    addShowCommand(app, global, run);
    addConvertCommand(app, global, run);
    addPortsCommand(app, global, run);
    addReadCommand(app, global, run);
    addWriteCommand(app, global, run);
    addFirmwareCommand(app, global, run);
    addServiceCommand(app, global, run);

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& e) {
        const int status = app.exit(e);
        return status == 0 ? kExitOk : kExitBadInput;
    }
    return run ? run() : kExitBadInput;
}
