#pragma once

#include <QString>

#include "l10n/language.h"
#include "model/result.h"

// The words for an Error, in the user's language: one line that names the file or the channel
// and says what is wrong with it.
namespace l10n {

QString describeError(const Error& error, UiLanguage language);

}  // namespace l10n
