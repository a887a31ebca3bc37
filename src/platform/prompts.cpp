#include "platform/prompts.h"

void Set_StBar(Prompts& prompts, l10n::MessageId id, UiLanguage language, const QString& suffix) {
    prompts.showStatus({id, l10n::message(id, language) + suffix});
}

MessageBox warningBox(const QString& text, UiLanguage language) {
    return {text, l10n::message(l10n::MessageId::MsgWarningTitle, language), BoxIcon::Warning};
}
