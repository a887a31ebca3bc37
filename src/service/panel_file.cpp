#include "service/panel_file.h"

#include "l10n/service_texts.h"
#include "persistence/text_encoding.h"

using l10n::ServiceText;

QStringList panelFileLines(const QByteArray& bytes) {
    return splitLines(decodeFileText(bytes));
}

QByteArray panelFileBytes(const QStringList& lines) {
    return encodeFileText(joinLines(lines));
}

QString droppedLinesMessage(const QStringList& lines, int used, int unpaired, UiLanguage language) {
    QStringList parts;
    if (unpaired > 0 && !lines.value(unpaired - 1).trimmed().isEmpty()) {
        parts << l10n::serviceText(ServiceText::FileUnpairedLine, language).arg(unpaired);
    }
    int beyond = 0;
    for (int i = used; i < lines.size(); ++i) beyond += lines[i].trimmed().isEmpty() ? 0 : 1;
    if (beyond > 0) {
        parts << l10n::serviceText(ServiceText::FileLinesBeyond, language)
                     .arg(lines.size() - used)
                     .arg(used);
    }
    if (parts.isEmpty()) return {};
    return l10n::serviceText(ServiceText::FileNotAllLoaded, language)
        .arg(parts.join(language == UiLanguage::Chinese ? QStringLiteral("，")
                                                        : QStringLiteral(", ")));
}
