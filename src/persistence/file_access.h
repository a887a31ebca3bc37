#pragma once

#include <QByteArray>
#include <QString>

#include "model/result.h"

// Codeplug and configuration files are a few kilobytes; a file beyond this is refused rather
// than read into memory.
constexpr qint64 kMaxFileSize = 4 * 1024 * 1024;

// The whole content, or a CannotOpen / TooLarge error naming the file.
Result<QByteArray> readWholeFile(const QString& path);

// Replaces the file in one step (QSaveFile): a crash or a full disk leaves the old file intact.
Result<void> saveWholeFile(const QString& path, const QByteArray& bytes);
