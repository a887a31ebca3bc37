#pragma once

#include <QByteArray>
#include <optional>

#include "l10n/language.h"

class WindowPrompts;

// The text files of the register and band windows, chosen in the file dialogs.

// The chosen file's bytes; nothing when the user cancelled or it could not be read (which is
// then shown).
std::optional<QByteArray> openPanelFile(WindowPrompts& prompts, UiLanguage language);
// Writes the chosen file in one step; a failure is shown.
void savePanelFile(WindowPrompts& prompts, UiLanguage language, const QByteArray& bytes);
