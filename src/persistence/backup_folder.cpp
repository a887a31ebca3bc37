#include "persistence/backup_folder.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "persistence/codeplug_file.h"

namespace {

const QString kExtension = QStringLiteral(".qzv");

// Letters, digits, "-" and "." pass on every file system we know; runs of anything else
// become one "_".
QString safePortName(const QString& port) {
    QString name;
    for (const QChar c : port) {
        const bool safe = (c.unicode() < 0x80 && c.isLetterOrNumber()) || c == QLatin1Char('-') ||
                          c == QLatin1Char('.');
        if (safe) {
            name += c;
        } else if (!name.isEmpty() && !name.endsWith(QLatin1Char('_'))) {
            name += QLatin1Char('_');
        }
    }
    while (name.endsWith(QLatin1Char('_')) || name.endsWith(QLatin1Char('.'))) name.chop(1);
    return name.isEmpty() ? QStringLiteral("port") : name;
}

}  // namespace

QString backupFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
           QStringLiteral("/backups");
}

QString backupFileName(const QDateTime& when, const QString& port) {
    return when.toString(QStringLiteral("yyyy-MM-dd_HH-mm-ss_")) + safePortName(port) + kExtension;
}

Result<QString> saveBackup(const Codeplug& doc, const QString& folder, const QDateTime& when,
                           const QString& port) {
    if (!QDir().mkpath(folder)) return Error::inFile(ErrorKind::CannotWrite, folder);
    const QDir dir(folder);
    const QString name = backupFileName(when, port);
    QString path = dir.filePath(name);
    for (int n = 2; QFileInfo::exists(path); ++n) {
        path = dir.filePath(name.chopped(kExtension.size()) + QStringLiteral("-%1").arg(n) +
                            kExtension);
    }
    if (const Result<void> saved = WriteSaveFile(doc, path, SaveMode::ReplaceFile); !saved) {
        return saved.error();
    }
    return path;
}

int pruneBackups(const QString& folder, const QDateTime& now) {
    const QDateTime limit = now.addDays(-kBackupKeepDays);
    int removed = 0;
    const QFileInfoList files = QDir(folder).entryInfoList({QStringLiteral("*") + kExtension},
                                                           QDir::Files | QDir::NoDotAndDotDot);
    for (const QFileInfo& file : files) {
        if (file.lastModified() < limit && QFile::remove(file.absoluteFilePath())) ++removed;
    }
    return removed;
}
