#pragma once

#include <QStringList>

#include "l10n/language.h"
#include "model/codeplug.h"

// The line-per-value layouts of earlier versions, read only. Each reader gets the file's lines
// (their number has already chosen the reader). Settings a layout lacks keep their values.

// 132 lines: mode option text, five channel blocks (no power), then the option texts of the
// frequency standard, channel count, step, txen, busytxdis and dtmfen. The mode goes through the
// mode switch, so fixed channels keep theirs.
void ReadSaveFile_V05(Codeplug& doc, const QStringList& lines);

// 213, 214 and 215 lines: normalmode, six channel blocks, freqsel, chtot, freqstep, the settings
// txen ... autolock (then tot from V16, agingtest from V18), the language flag and the custom
// tones. Each returns the language the flag says was active when the file was saved.
UiLanguage ReadSaveFile_V13(Codeplug& doc, const QStringList& lines);
UiLanguage ReadSaveFile_V16(Codeplug& doc, const QStringList& lines);
UiLanguage ReadSaveFile_V18(Codeplug& doc, const QStringList& lines);
