#pragma once

#include <QString>

#include "model/codeplug.h"
#include "model/notice.h"

enum class CodeDirection { Rx, Tx };

// Editing rules of the channel grid, as document operations.

// A receive frequency cell changed to `text`: a 9-character text is copied to the transmit
// cell (and checked there first); "0" becomes the band's lower limit; a text of 7 or more
// characters outside the band becomes the lower limit, with a warning.
Notices enterRxFrequency(Codeplug& doc, int slot, const QString& text);

// A transmit frequency cell changed: out-of-band text of 7 or more characters is warned about
// and kept as typed.
Notices enterTxFrequency(Codeplug& doc, int slot, const QString& text);

// RESET_FER: puts every receive and transmit frequency on its raster (moving one that is on
// neither raster down onto the 5 kHz raster), sets RxStepFlags/TxStepFlags and reformats all
// frequency cells with "000.00000". A text that is not a number is left alone (flag cleared).
void RESET_FER(Codeplug& doc);

// RESET_TEXT: RESET_FER, then the code cells: a custom-tone cell shows the custom-tone word of
// the current language with its tone as tool-tip; a "CDCSS" cell shows its DCS memory.
void RESET_TEXT(Codeplug& doc);

// Bandwidth and power toggles; nothing happens while the channels are fixed.
void toggleBandwidth(Codeplug& doc, int slot);
void togglePower(Codeplug& doc, int slot);

// Rebuilds the code table for the current `normalmode` and resets every slot's codes, active
// or not, to "OFF"; then RESET_TEXT. Used after a mode change and by the file readers.
void rebuildCodeTables(Codeplug& doc);

// The user chose another mode: taken over only when the channels are not fixed.
// Returns whether it was taken over.
bool switchMode(Codeplug& doc, int normalmode);

// The user chose another channel count; ignored while the channels are fixed.
bool setChannelCount(Codeplug& doc, const QString& chtot);

// Switches the language: every row's bandwidth and power words are translated (a row edited
// to wide stays wide; an unknown word counts as wide or low), a professional code table gets
// the new custom-tone word, and the code cells are redrawn. The settings keep their indices.
void applyLanguage(Codeplug& doc, UiLanguage language);

// A click on a frequency cell reformats the whole grid (RESET_TEXT): always for a transmit
// cell, for a receive cell only when it holds a complete 9-character text. Returns whether it
// did.
bool frequencyCellClicked(Codeplug& doc, int slot, CodeDirection direction);

// The user picked entry `position` of the active code list for a slot's code cell; the code
// cells are redrawn. Returns true when the pick is the custom-tone entry of the professional
// list, for which the custom tone dialog opens.
bool pickCode(Codeplug& doc, int slot, CodeDirection direction, int position);
