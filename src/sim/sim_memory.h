#pragma once

#include <QByteArray>

// What a factory-fresh simulated radio holds: normal mode, band 0 (400 MHz), 16 active
// channels; slot i on 446.00625 + i × 0.0125 MHz (the 6.25 kHz raster), codes off, tones and
// DCS codes on a few slots, narrow and wide, high and low power mixed.
QByteArray initialSettingsRecord();
QByteArray initialChannelRecord(int slot);
