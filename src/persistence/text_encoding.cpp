#include "persistence/text_encoding.h"

#include <QStringDecoder>
#include <QStringEncoder>

namespace {

const char* const kGbkName = "GB18030";
const QByteArray kUtf8Bom = QByteArrayLiteral("\xEF\xBB\xBF");

}  // namespace

QString decodeFileText(const QByteArray& bytes) {
    QStringDecoder utf8(QStringDecoder::Utf8);  // skips a leading byte-order mark
    QString text = utf8(bytes);
    if (!utf8.hasError() || bytes.startsWith(kUtf8Bom)) return text;
    QStringDecoder gbk(kGbkName);
    return gbk(bytes);
}

QByteArray encodeFileText(const QString& text) {
    QStringEncoder gbk(kGbkName);
    return gbk(text);
}

QStringList splitLines(const QString& text) {
    QStringList lines;
    qsizetype start = 0;
    const qsizetype size = text.size();
    for (qsizetype i = 0; i < size; ++i) {
        const QChar c = text[i];
        if (c != QLatin1Char('\r') && c != QLatin1Char('\n')) continue;
        lines << text.mid(start, i - start);
        if (c == QLatin1Char('\r') && i + 1 < size && text[i + 1] == QLatin1Char('\n')) ++i;
        start = i + 1;
    }
    if (start < size) lines << text.mid(start);
    return lines;
}

qsizetype countLines(const QString& text) {
    qsizetype count = 0;
    const qsizetype size = text.size();
    qsizetype start = 0;
    for (qsizetype i = 0; i < size; ++i) {
        const QChar c = text[i];
        if (c != QLatin1Char('\r') && c != QLatin1Char('\n')) continue;
        ++count;
        if (c == QLatin1Char('\r') && i + 1 < size && text[i + 1] == QLatin1Char('\n')) ++i;
        start = i + 1;
    }
    return start < size ? count + 1 : count;
}

QString joinLines(const QStringList& lines) {
    QString text;
    for (const QString& line : lines) text += line + QLatin1String("\r\n");
    return text;
}
