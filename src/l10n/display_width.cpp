#include "l10n/display_width.h"

#include <QList>
#include <QStringView>

namespace l10n {
namespace {

bool isWide(char32_t c) {
    // The East Asian Wide and Fullwidth ranges a radio's texts can hold.
    return (c >= 0x1100 && c <= 0x115F) || (c >= 0x2E80 && c <= 0x303E) ||
           (c >= 0x3041 && c <= 0x33FF) || (c >= 0x3400 && c <= 0x4DBF) ||
           (c >= 0x4E00 && c <= 0x9FFF) || (c >= 0xA000 && c <= 0xA4CF) ||
           (c >= 0xAC00 && c <= 0xD7A3) || (c >= 0xF900 && c <= 0xFAFF) ||
           (c >= 0xFE30 && c <= 0xFE4F) || (c >= 0xFF00 && c <= 0xFF60) ||
           (c >= 0xFFE0 && c <= 0xFFE6) || (c >= 0x20000 && c <= 0x3FFFD);
}

}  // namespace

int displayWidth(const QString& text) {
    int width = 0;
    for (char32_t c : QStringView(text).toUcs4()) width += isWide(c) ? 2 : 1;
    return width;
}

QString padToWidth(const QString& text, int width) {
    const int shortBy = width - displayWidth(text);
    return shortBy > 0 ? text + QString(shortBy, QLatin1Char(' ')) : text;
}

}  // namespace l10n
