#include "model/frequency.h"

#include <QLocale>
#include <cmath>

double numericValue(const QString& text) {
    // Leading blanks, an optional sign, digits with at most one point, an optional exponent.
    int i = 0;
    const int n = text.size();
    while (i < n && (text[i] == QLatin1Char(' ') || text[i] == QLatin1Char('\t'))) ++i;
    const int start = i;
    if (i < n && (text[i] == QLatin1Char('+') || text[i] == QLatin1Char('-'))) ++i;
    int digits = 0;
    while (i < n && text[i].isDigit() && text[i].unicode() < 128) ++i, ++digits;
    if (i < n && text[i] == QLatin1Char('.')) {
        ++i;
        while (i < n && text[i].isDigit() && text[i].unicode() < 128) ++i, ++digits;
    }
    if (digits == 0) return 0.0;
    int end = i;
    if (i < n && (text[i] == QLatin1Char('e') || text[i] == QLatin1Char('E'))) {
        int j = i + 1;
        if (j < n && (text[j] == QLatin1Char('+') || text[j] == QLatin1Char('-'))) ++j;
        const int exponentStart = j;
        while (j < n && text[j].isDigit() && text[j].unicode() < 128) ++j;
        if (j > exponentStart) end = j;
    }
    bool ok = false;
    const double value = QLocale::c().toDouble(text.mid(start, end - start), &ok);
    return ok && std::isfinite(value) ? value : 0.0;
}

std::optional<double> strictNumber(const QString& text) {
    bool ok = false;
    const double value = QLocale::c().toDouble(text.trimmed(), &ok);
    if (!ok || !std::isfinite(value)) return std::nullopt;
    return value;
}

int boundedInt(double value, int low, int high) {
    if (!(value >= low)) return low;  // NaN too
    if (value >= high) return high;
    return static_cast<int>(value);
}

QString formatFrequencyValue(double megahertz) {
    // "000.00000": at least three integer digits, exactly five decimals.
    QString digits = QString::asprintf("%09.5f", std::fabs(megahertz));
    if (digits == QLatin1String("000.00000")) return digits;  // no "-000.00000"
    return megahertz < 0 ? QLatin1Char('-') + digits : digits;
}

QString formatFrequency(const QString& text) {
    const std::optional<double> value = strictNumber(text);
    return value ? formatFrequencyValue(*value) : text;
}

BandLimits BandLimits::forBand(int freqband) {
    switch (freqband) {
        case 0:
            return BandLimits{400};
        case 1:
            return BandLimits{300};
        case 2:
            return BandLimits{200};
        default:
            return BandLimits{100};
    }
}
