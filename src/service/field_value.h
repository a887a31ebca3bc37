#pragma once

#include <QString>
#include <optional>

#include "l10n/language.h"

// Checks of the values a technician types or loads, made before anything is sent. A value
// that does not fit its field is refused with a message that names the field.

// A decimal number (blanks around it allowed); nothing else.
std::optional<double> decimalValue(const QString& text);
// Rounded to the nearest integer, halves to even, as every value is turned into a byte.
int roundHalfEven(double value);

// The refusal: "<field>: "<text>" is not a number from <low> to <high>; nothing was sent".
QString outOfRangeMessage(const QString& field, const QString& text, const QString& low,
                          const QString& high, UiLanguage language);
// A field of a grid row, named for messages: "register data of row 3".
QString fieldOfRow(const QString& field, int row, UiLanguage language);

// The result of turning a field's text into its byte(s): the value, or the refusal.
struct FieldResult {
    int value = 0;
    QString error;  // empty when the value fits
    bool ok() const { return error.isEmpty(); }
};

// A slider with its text box. The box shows the position divided by 10^decimals; what is typed
// into the box moves the slider, and a value received from the radio is shown in the box as
// received while the slider stops at the end of its range.
struct SliderScale {
    int min = 0;
    int max = 0;
    int decimals = 0;

    QString text(int position) const;
    // Where the slider stands for the box's text: the number rounded and clamped to the range;
    // nothing when the box holds no number (the slider stays where it is).
    std::optional<int> position(const QString& text) const;
};

// A decimal text rounded into low..high (an empty text counts as `emptyValue`, when given).
FieldResult integerField(const QString& text, int low, int high, const QString& field,
                         UiLanguage language, std::optional<int> emptyValue = std::nullopt);
