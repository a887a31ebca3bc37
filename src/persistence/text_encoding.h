#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// Dealers exchange files written in GBK; files that passed through a newer editor are often
// UTF-8. A file that is valid UTF-8 (or starts with a UTF-8 byte-order mark) is read as UTF-8,
// anything else as GBK.
QString decodeFileText(const QByteArray& bytes);

// GBK, through its GB18030 superset so that a character GBK lacks is kept rather than lost.
QByteArray encodeFileText(const QString& text);

// The lines of a text. CR LF, LF and a lone CR each end a line; a last line without an ending
// counts, an empty text has no line.
QStringList splitLines(const QString& text);

// How many lines splitLines() would give, without making them.
qsizetype countLines(const QString& text);

// The reverse: every line followed by CR LF.
QString joinLines(const QStringList& lines);
