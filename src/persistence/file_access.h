#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <variant>

#include "l10n/language.h"

// Why a file could not be used. The document or file it concerned is left as it was.
enum class FileProblem {
    CannotOpen,    // missing, unreadable, a folder...
    TooLarge,      // far larger than any file this program writes
    NotACodeplug,  // neither an old layout nor a file with a codeplug section
    UnreadLayout,  // the 212-line layout, which no reader takes
    CannotWrite,   // the folder or the disk refused the new file
};

struct FileError {
    QString path;
    FileProblem problem = FileProblem::CannotOpen;
    QString detail;  // the system's own words, when it gave any
};

// One line naming the file and the reason, for a message box or a terminal.
QString describeFileError(const FileError& error, UiLanguage language);

// Codeplug and configuration files are a few kilobytes; a file beyond this is refused rather
// than read into memory.
constexpr qint64 kMaxFileSize = 4 * 1024 * 1024;

std::variant<QByteArray, FileError> readWholeFile(const QString& path);

// Replaces the file in one step (QSaveFile): a crash or a full disk leaves the old file intact.
std::optional<FileError> saveWholeFile(const QString& path, const QByteArray& bytes);
