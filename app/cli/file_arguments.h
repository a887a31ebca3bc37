#pragma once

#include <optional>
#include <string>

#include "model/codeplug.h"
#include "persistence/codeplug_file.h"

// Files named on the command line: every command reports a file it cannot read or write the
// same way, as one line on stderr naming the file and the reason.

// Prints the line and returns `exitStatus`, for `return reportError(...)`.
int reportError(const Error& error, UiLanguage language, int exitStatus);

// Reads a codeplug file of any layout into `doc`; on failure `doc` is unchanged, the reason has
// been printed and nothing is returned.
std::optional<LoadedCodeplug> loadCodeplugArgument(Codeplug& doc, const std::string& file);

// Saves `doc` into a file named on the command line. Every command that saves gives the same
// exit status when it cannot: kExitCannotSave, after the reason on stderr.
int saveCodeplugArgument(const Codeplug& doc, const std::string& file, SaveMode mode);
