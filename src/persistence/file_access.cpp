#include "persistence/file_access.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

QString reasonText(FileProblem problem, UiLanguage language) {
    const bool chinese = language == UiLanguage::Chinese;
    switch (problem) {
        case FileProblem::CannotOpen:
            return chinese ? QStringLiteral("无法打开文件")
                           : QStringLiteral("cannot open the file");
        case FileProblem::TooLarge:
            return chinese ? QStringLiteral("文件太大，不是频率文件")
                           : QStringLiteral("too large for a codeplug file");
        case FileProblem::NotACodeplug:
            return chinese ? QStringLiteral("不是频率文件（没有可识别的内容）")
                           : QStringLiteral("not a codeplug file (nothing in it is recognised)");
        case FileProblem::UnreadLayout:
            return chinese ? QStringLiteral("212 行的旧格式无法读取")
                           : QStringLiteral("an old 212-line layout, which cannot be read");
        case FileProblem::CannotWrite:
            return chinese ? QStringLiteral("无法写入文件")
                           : QStringLiteral("cannot write the file");
    }
    return QString();
}

}  // namespace

QString describeFileError(const FileError& error, UiLanguage language) {
    QString text = QDir::toNativeSeparators(error.path) + QLatin1String(": ") +
                   reasonText(error.problem, language);
    if (!error.detail.isEmpty()) text += QLatin1String(" (") + error.detail + QLatin1Char(')');
    return text;
}

std::variant<QByteArray, FileError> readWholeFile(const QString& path) {
    const QFileInfo info(path);
    if (info.isDir()) return FileError{path, FileProblem::CannotOpen, QStringLiteral("a folder")};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return FileError{path, FileProblem::CannotOpen, file.errorString()};
    }
    // Read one byte past the limit instead of trusting size(): pipes and devices report none.
    QByteArray bytes = file.read(kMaxFileSize + 1);
    if (bytes.size() > kMaxFileSize) return FileError{path, FileProblem::TooLarge, QString()};
    if (file.error() != QFileDevice::NoError) {
        return FileError{path, FileProblem::CannotOpen, file.errorString()};
    }
    return bytes;
}

std::optional<FileError> saveWholeFile(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return FileError{path, FileProblem::CannotWrite, file.errorString()};
    }
    if (file.write(bytes) != bytes.size() || !file.commit()) {
        return FileError{path, FileProblem::CannotWrite, file.errorString()};
    }
    return std::nullopt;
}
