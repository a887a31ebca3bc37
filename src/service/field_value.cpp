#include "service/field_value.h"

#include <algorithm>
#include <cmath>

#include "l10n/service_texts.h"

using l10n::ServiceText;

std::optional<double> decimalValue(const QString& text) {
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(value)) return std::nullopt;
    return value;
}

int roundHalfEven(double value) {
    return static_cast<int>(std::nearbyint(value));
}

QString SliderScale::text(int position) const {
    if (decimals == 0) return QString::number(position);
    return QString::number(position / std::pow(10.0, decimals), 'f', decimals);
}

std::optional<int> SliderScale::position(const QString& text) const {
    const std::optional<double> number = decimalValue(text);
    if (!number) return std::nullopt;
    // Clamped before rounding, so that no number is too large for an int.
    const double scaled = *number * std::pow(10.0, decimals);
    return std::clamp(roundHalfEven(std::clamp<double>(scaled, min, max)), min, max);
}

QString outOfRangeMessage(const QString& field, const QString& text, const QString& low,
                          const QString& high, UiLanguage language) {
    return l10n::serviceText(ServiceText::NotANumberInRange, language).arg(field, text, low, high);
}

QString fieldOfRow(const QString& field, int row, UiLanguage language) {
    return l10n::serviceText(ServiceText::FieldOfRow, language).arg(row).arg(field);
}

FieldResult integerField(const QString& text, int low, int high, const QString& field,
                         UiLanguage language, std::optional<int> emptyValue) {
    if (emptyValue && text.trimmed().isEmpty()) return {*emptyValue, {}};
    const std::optional<double> number = decimalValue(text);
    // Compared before rounding, so that 255.7 is refused rather than sent as 256.
    if (number && *number >= low - 0.5 && *number <= high + 0.5) {
        const int value = roundHalfEven(*number);
        if (value >= low && value <= high) return {value, {}};
    }
    return {0,
            outOfRangeMessage(field, text, QString::number(low), QString::number(high), language)};
}
