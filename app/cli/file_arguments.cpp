#include "cli/file_arguments.h"

#include <QTextStream>
#include <cstdio>

#include "cli/commands.h"
#include "l10n/error_texts.h"

int reportError(const Error& error, UiLanguage language, int exitStatus) {
    QTextStream(stderr) << "radioprog-cli: " << l10n::describeError(error, language) << '\n';
    return exitStatus;
}

std::optional<LoadedCodeplug> loadCodeplugArgument(Codeplug& doc, const std::string& file) {
    const Result<LoadedCodeplug> loaded = openCodeplugFile(doc, QString::fromStdString(file));
    if (loaded) return *loaded;
    reportError(loaded.error(), doc.language, kExitBadInput);
    return std::nullopt;
}

int saveCodeplugArgument(const Codeplug& doc, const std::string& file, SaveMode mode) {
    const Result<void> saved = WriteSaveFile(doc, QString::fromStdString(file), mode);
    if (!saved) return reportError(saved.error(), doc.language, kExitCannotSave);
    return kExitOk;
}
