#include "persistence/file_access.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include "l10n/program_texts.h"

namespace {

QString reasonText(FileProblem problem, UiLanguage language) {
    using l10n::ProgramText;
    switch (problem) {
        case FileProblem::CannotOpen:
            return l10n::programText(ProgramText::FileCannotOpen, language);
        case FileProblem::TooLarge:
            return l10n::programText(ProgramText::FileTooLarge, language);
        case FileProblem::NotACodeplug:
            return l10n::programText(ProgramText::FileNotCodeplug, language);
        case FileProblem::UnreadLayout:
            return l10n::programText(ProgramText::FileOld212Lines, language);
        case FileProblem::CannotWrite:
            return l10n::programText(ProgramText::FileCannotWrite, language);
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
