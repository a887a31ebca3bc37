#pragma once

#include <QString>
#include <optional>

#include "model/codeplug.h"

// The national channel plans (frequency standard) and the band refill.

// The window title a standard gives ("美国标准" …, "自定义标准" for 3 or any other value).
QString standardTitle(int freqsel);

// The user chose standard `freqsel`: refills chtot and the active slots with that plan (codes
// "OFF", narrow, high power). Returns the new window title, or nothing when the channels are
// fixed and the table stays as it was.
std::optional<QString> applyStandard(Codeplug& doc, int freqsel);

// The user chose band `freqband`: every active slot moves to the band's lower limit with code
// "67.0", narrow, high power; chtot stays. Returns false when the channels are fixed.
bool applyBand(Codeplug& doc, int freqband);
