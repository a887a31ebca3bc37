#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "l10n/language.h"

// The small text files of the register and band panels: one cell a line, CR LF after each,
// written in GBK and read as UTF-8 or GBK like every file of the program.
QStringList panelFileLines(const QByteArray& bytes);
QByteArray panelFileBytes(const QStringList& lines);

// What a load could not take, for the message: the lines after line `used` (blank ones do not
// count) and, when `unpaired` is a line number, that line. Empty when nothing was dropped.
QString droppedLinesMessage(const QStringList& lines, int used, int unpaired, UiLanguage language);
