#pragma once

#include <QString>

// The language the user interface speaks. Stored in config.ini as "Chinese" / "English".
enum class UiLanguage { Chinese, English };

// "English" (exactly) selects English; any other text, "english" included, selects Chinese.
UiLanguage languageFromConfigText(const QString& text);
QString configTextOf(UiLanguage language);
