#pragma once

#include <QMap>
#include <QString>
#include <optional>

#include "l10n/language.h"
#include "model/codeplug.h"
#include "model/result.h"
#include "model/startup_config.h"
#include "persistence/private_profile.h"

// config.ini: the preferences that outlive a run (language, fixed channel table, start channel
// count and band, a start value per channel). Read once at start-up; a key that is missing is
// written with its default, so the first start leaves a complete file behind.

enum class ConfigCompletion {
    SaveMissingKeys,  // the program: the completed file is saved (silently not, when it cannot be)
    InMemoryOnly,     // read-only tools: the defaults apply but the file is left alone
};

// Reads, completes and returns the configuration. A file that cannot be read gives the
// defaults, and one that exists but cannot be read is never overwritten; `unreadable` of the
// result then says why, for the one warning the user gets.
StartupConfig ReadConfigFile(const QString& configPath,
                             ConfigCompletion completion = ConfigCompletion::SaveMissingKeys);

// The program's start-up document: the configuration read, then the document built from it;
// `language`, when given, replaces the configured one. `unreadable`, when given, receives the
// reason a config.ini that exists could not be read.
Codeplug loadStartupCodeplug(const QString& configPath,
                             ConfigCompletion completion = ConfigCompletion::SaveMissingKeys,
                             std::optional<UiLanguage> language = std::nullopt,
                             std::optional<Error>* unreadable = nullptr);

// The reading steps on a file already in memory: missing keys are written into `profile`.
StartupConfig readConfigProfile(PrivateProfile& profile);

// The [ports] section: port numbers pinned to devices (com3=/dev/ttyUSB0), numbers 0..64.
QMap<int, QString> readPortPins(const QString& configPath);

// Records the language after the user switched it. Only the key "Lang" is written; any other
// key is ignored and gives a CannotWrite error, as a file that cannot be read or saved does.
Result<void> WriteConfigFile(const QString& configPath, const QString& key, UiLanguage language);

// The [safewrite] section: whether a write backs the radio up first (backup=yes) and reads it
// back afterwards (verify=yes). Both are on unless the file says "no".
struct SafeWritePreferences {
    bool backup = true;
    bool verify = true;
};
SafeWritePreferences readSafeWritePreferences(const QString& configPath);
// Writes the section and leaves every other line as it was; a file that exists but cannot be
// read is not replaced.
Result<void> writeSafeWritePreferences(const QString& configPath,
                                       const SafeWritePreferences& preferences);

// Where config.ini lives: `overrideDir` when given (--config), else the program's folder when it
// is writable and not a system folder (/usr/bin for the installed package), else the per-user
// configuration folder (~/.config/radioprog).
QString configFilePath(const QString& overrideDir = QString());
QString configFilePathIn(const QString& overrideDir, const QString& programDir,
                         const QString& userConfigDir);
