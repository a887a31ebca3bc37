#pragma once

#include <QString>
#include <optional>

// Frequency text and band limits. Channel frequencies are kept as the text the user sees
// ("462.56250"); numbers are made from it only to check the band and to build the radio's image.

// The value of a text the way the old program read numbers: leading blanks skipped, then the
// longest prefix that forms a decimal number; 0 when there is none ("462.5x" gives 462.5).
double numericValue(const QString& text);

// The value of a text that is a number as a whole (surrounding blanks allowed), else nothing.
std::optional<double> strictNumber(const QString& text);

// A number held to [low, high] before it becomes an int; NaN gives `low`. Every text-to-number
// conversion goes through this, since a double outside int's range has no int value at all.
int boundedInt(double value, int low, int high);

// Applies the picture "000.00000" to the value of a number text; other text is returned as is.
QString formatFrequency(const QString& text);
QString formatFrequencyValue(double megahertz);

// Lower limit L (MHz) of the band chosen by `freqband`; a frequency f is in the band when
// L <= f < L + 100. The option labels ("0:400--470M") are only labels: 480 MHz is in band 0.
struct BandLimits {
    int lower = 400;

    static BandLimits forBand(int freqband);
    int upper() const { return lower + 100; }
    bool contains(double megahertz) const { return megahertz >= lower && megahertz < upper(); }
};
