#pragma once

#include <QString>

// How many terminal columns a text takes: Chinese characters, full-width punctuation and other
// East Asian wide characters take two, everything else one.
namespace l10n {

int displayWidth(const QString& text);
// `text` followed by spaces up to `width` columns (nothing is cut).
QString padToWidth(const QString& text, int width);

}  // namespace l10n
