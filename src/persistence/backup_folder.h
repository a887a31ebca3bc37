#pragma once

#include <QDateTime>
#include <QString>

#include "model/codeplug.h"
#include "model/result.h"

// The folder of backups that a write takes of the radio before changing it: one codeplug file
// (current layout) per write, named after the time and the port, kept for a year.

constexpr int kBackupKeepDays = 365;

// <the program's data folder>/backups; the data folder follows the application name.
QString backupFolder();

// "2026-11-23_17-40-05_COM3.qzv": the local time and the port, with everything in the port's
// name that some file system would not take replaced by "_" ("/dev/ttyUSB0" gives
// "dev_ttyUSB0").
QString backupFileName(const QDateTime& when, const QString& port);

// Saves `doc` into `folder` (made when missing) under backupFileName(); a name already taken
// gets "-2", "-3"... before the extension. Returns the path written, or why it could not be.
Result<QString> saveBackup(const Codeplug& doc, const QString& folder, const QDateTime& when,
                           const QString& port);

// Removes the codeplug files of `folder` last changed more than kBackupKeepDays before `now`.
// Returns how many went.
int pruneBackups(const QString& folder, const QDateTime& now);
