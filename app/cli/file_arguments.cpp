#include "cli/file_arguments.h"

#include <QTextStream>
#include <cstdio>

int reportFileError(const FileError& error, UiLanguage language, int exitStatus) {
    QTextStream(stderr) << "radioprog-cli: " << describeFileError(error, language) << '\n';
    return exitStatus;
}

std::optional<CodeplugLoadResult> loadCodeplugArgument(Codeplug& doc, const std::string& file) {
    const CodeplugLoadResult loaded = openCodeplugFile(doc, QString::fromStdString(file));
    if (loaded.ok()) return loaded;
    reportFileError(*loaded.error, doc.language, 0);
    return std::nullopt;
}
