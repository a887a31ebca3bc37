#pragma once

#include <CLI/CLI.hpp>
#include <QString>
#include <functional>
#include <optional>

#include "l10n/language.h"
#include "link/port_catalogue.h"
#include "model/codeplug.h"

// Options every command shares.
struct GlobalOptions {
    std::string configDir;  // --config DIR; empty: the usual place
    std::string lang;       // --lang zh|en; empty: the configuration's language

    std::optional<UiLanguage> language() const;
    // Where config.ini is, and the start-up document built from it (never rewriting the file).
    QString configPath() const;
    Codeplug startupCodeplug() const;
    // The machine's ports with the numbers config.ini pins.
    PortCatalogue portCatalogue() const;
};

// Exit statuses of the CLI, the same for every command (listed by --help: kExitStatusHelp).
constexpr int kExitOk = 0;
constexpr int kExitFailed = 1;      // the radio did not answer, or a check failed
constexpr int kExitBadInput = 2;    // bad usage, or an input file that cannot be read
constexpr int kExitCannotSave = 3;  // an output file could not be written; the old one is intact
extern const char* const kExitStatusHelp;

// Each command registers itself on the app and sets `run` when it is chosen.
using CommandRunner = std::function<int()>;

void addShowCommand(CLI::App& app, const GlobalOptions& global, CommandRunner& run);
void addConvertCommand(CLI::App& app, const GlobalOptions& global, CommandRunner& run);
// export-csv and import-csv.
void addCsvCommands(CLI::App& app, const GlobalOptions& global, CommandRunner& run);
void addPortsCommand(CLI::App& app, const GlobalOptions& global, CommandRunner& run);
void addReadCommand(CLI::App& app, const GlobalOptions& global, CommandRunner& run);
void addWriteCommand(CLI::App& app, const GlobalOptions& global, CommandRunner& run);
void addFirmwareCommand(CLI::App& app, const GlobalOptions& global, CommandRunner& run);
void addServiceCommand(CLI::App& app, const GlobalOptions& global, CommandRunner& run);
void addDoctorCommand(CLI::App& app, const GlobalOptions& global, CommandRunner& run);
