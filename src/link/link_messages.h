#pragma once

#include <QString>

#include "l10n/language.h"

// Said when a second read, write or service exchange is started while one is running: the
// link serves one exchange at a time.
QString linkBusyMessage(UiLanguage language);
