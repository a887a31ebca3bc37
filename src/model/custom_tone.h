#pragma once

#include <QString>

#include "model/codeplug.h"
#include "model/editing.h"
#include "model/notice.h"

// Rules of the small dialog that edits a slot's custom CTCSS tone.

enum class KeyAction { Accept, Discard, FocusNext };
constexpr int kKeyBackspace = 8;
constexpr int kKeyEnter = 13;
constexpr int kKeyDelete = 127;

// Digits, ".", Backspace and Delete are accepted, Enter moves on; once the text holds
// 5 characters only Backspace is accepted.
KeyAction customToneKey(const QString& current, int key);

// The picture "00.0": "88.5" stays, "100" becomes "100.0"; text that is no number is kept.
QString formatCustomTone(const QString& text);

// Valid when not empty and 67.0 <= f < 255.0.
bool ChkCtcOk_Int(const QString& text);

struct CustomToneResult {
    QString fieldText;  // what the dialog's field shows after OK
    bool accepted = false;
    Notices notices;
};

// OK pressed with `text`: formats it; a valid tone becomes the slot's memory for that direction
// and the code cells are redrawn, an invalid one gives the CTCSS warning.
CustomToneResult confirmCustomTone(Codeplug& doc, int slot, CodeDirection direction,
                                   const QString& text);
