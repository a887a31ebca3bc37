#pragma once

#include <optional>
#include <string>

#include "model/codeplug.h"
#include "persistence/codeplug_file.h"

// Files named on the command line: every command reports a file it cannot read or write the
// same way, as one line on stderr naming the file and the reason.

// Prints the line and returns `exitStatus`, for `return reportFileError(...)`.
int reportFileError(const FileError& error, UiLanguage language, int exitStatus);

// Reads a codeplug file of any layout into `doc`; on failure `doc` is unchanged, the reason has
// been printed and nothing is returned.
std::optional<CodeplugLoadResult> loadCodeplugArgument(Codeplug& doc, const std::string& file);
