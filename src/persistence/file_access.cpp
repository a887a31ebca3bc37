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
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return Error::inFile(ErrorKind::CannotWrite, path, file.errorString());
    }
    if (file.write(bytes) != bytes.size() || !file.commit()) {
        return Error::inFile(ErrorKind::CannotWrite, path, file.errorString());
    }
    return {};
}
