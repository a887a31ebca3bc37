#include "service/ui/panel_file_dialogs.h"

#include "l10n/error_texts.h"
#include "l10n/window_texts.h"
#include "persistence/file_access.h"
#include "platform/window_prompts.h"

std::optional<QByteArray> openPanelFile(WindowPrompts& prompts, UiLanguage language) {
    const QString path = prompts.chooseOpenFile(QString::fromUtf8(l10n::fixed::kTextFilter));
    if (path.isEmpty()) return std::nullopt;
    Result<QByteArray> bytes = readWholeFile(path);
    if (!bytes) {
        prompts.showMessage({l10n::describeError(bytes.error(), language), {}});
        return std::nullopt;
    }
    return std::move(bytes.value());
}

void savePanelFile(WindowPrompts& prompts, UiLanguage language, const QByteArray& bytes) {
    const QString path = prompts.chooseSaveFile(QString::fromUtf8(l10n::fixed::kTextFilter));
    if (path.isEmpty()) return;
    if (const Result<void> saved = saveWholeFile(path, bytes); !saved) {
        prompts.showMessage({l10n::describeError(saved.error(), language), {}});
    }
}
