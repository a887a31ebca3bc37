#include "persistence/file_access.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

Result<QByteArray> readWholeFile(const QString& path) {
    const QFileInfo info(path);
    if (info.isDir()) return Error::inFile(ErrorKind::CannotOpen, path, QStringLiteral("a folder"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return Error::inFile(ErrorKind::CannotOpen, path, file.errorString());
    }
    // Read one byte past the limit instead of trusting size(): pipes and devices report none.
    QByteArray bytes = file.read(kMaxFileSize + 1);
    if (bytes.size() > kMaxFileSize) return Error::inFile(ErrorKind::TooLarge, path);
    if (file.error() != QFileDevice::NoError) {
        return Error::inFile(ErrorKind::CannotOpen, path, file.errorString());
    }
    return bytes;
}

Result<void> saveWholeFile(const QString& path, const QByteArray& bytes) {
    // QSaveFile would rename a regular file over a device, FIFO or socket of that name.
    const QFileInfo existing(path);
    if (existing.exists() && !existing.isFile() && !existing.isDir()) {
        return Error::inFile(ErrorKind::NotARegularFile, path);
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return Error::inFile(ErrorKind::CannotWrite, path, file.errorString());
    }
    // The bytes sit in the device's buffer until the flush, and commit() does not look at how
    // that went: on a full disk it would rename a short file over the old one.
    if (file.write(bytes) != bytes.size() || !file.flush()) {
        const QString reason = file.errorString();
        file.cancelWriting();
        return Error::inFile(ErrorKind::CannotWrite, path, reason);
    }
    if (!file.commit()) return Error::inFile(ErrorKind::CannotWrite, path, file.errorString());
    return {};
}
