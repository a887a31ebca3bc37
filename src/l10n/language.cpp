#include "l10n/language.h"

UiLanguage languageFromConfigText(const QString& text) {
    return text == QLatin1String("English") ? UiLanguage::English : UiLanguage::Chinese;
}

QString configTextOf(UiLanguage language) {
    return language == UiLanguage::English ? QStringLiteral("English") : QStringLiteral("Chinese");
}
