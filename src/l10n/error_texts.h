#pragma once

#include <QString>

#include "l10n/language.h"
#include "model/result.h"

// The words for an Error, in the user's language: one line that names the file or the channel
// and says what is wrong with it.
namespace l10n {

QString describeError(const Error& error, UiLanguage language);

// The one warning about a config.ini that exists but could not be read (the defaults apply),
// for a terminal or a status bar.
QString configWarning(const Error& error, UiLanguage language);

}  // namespace l10n
