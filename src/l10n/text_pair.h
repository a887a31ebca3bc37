#pragma once

#include <QString>
#include <cstddef>

#include "l10n/language.h"

namespace l10n {

// One text in both languages, as UTF-8.
struct TextPair {
    const char* chinese;
    const char* english;
};

// Entry `index` of a table in `language`; an index outside the table gives an empty text.
template <std::size_t N>
QString lookUp(const TextPair (&table)[N], int index, UiLanguage language) {
    if (index < 0 || index >= static_cast<int>(N)) return QString();
    const TextPair& pair = table[index];
    return QString::fromUtf8(language == UiLanguage::Chinese ? pair.chinese : pair.english);
}

}  // namespace l10n
