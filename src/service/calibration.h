#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <array>

#include "l10n/language.h"
#include "service/field_value.h"

// The engineering panel's calibration values. Each is a slider with a text box; the write
// sends what the boxes show, so the values are kept as text.
enum class CalibrationField {
    RssiNarrow,
    RssiWide,
    PowerHigh,
    PowerLow,
    RxPwm,  // shown, but neither read nor written: the record has no byte for it
    NoiseNarrow,
    NoiseWide,
};
constexpr int kCalibrationFields = 7;

struct CalibrationFieldInfo {
    CalibrationField field;
    const char* name;  // the command line's name for it
    int sliderMin, sliderMax, initial;
    int recordByte;  // -1: not in the record
};
const std::array<CalibrationFieldInfo, kCalibrationFields>& calibrationFields();
const CalibrationFieldInfo& calibrationField(CalibrationField field);
// The label the panel shows for it, in `language`.
QString calibrationFieldLabel(CalibrationField field, UiLanguage language);

struct CalibrationValues {
    // The text boxes, in the order of CalibrationField; a fresh panel shows the initial values.
    std::array<QString, kCalibrationFields> text;

    CalibrationValues();
    QString& operator[](CalibrationField f) { return text[static_cast<size_t>(f)]; }
    const QString& operator[](CalibrationField f) const { return text[static_cast<size_t>(f)]; }
};

// The read request: 54 03 00 00 07 5E.
QByteArray calibrationReadRequest();
// Decodes the record into the boxes (the receive PWM box keeps its text). Noise bytes of 255
// (an erased record) read as 0. Values outside a slider's range are shown as received.
void decodeCalibration(const QByteArray& record, CalibrationValues* values);
// The field's slider, whose box shows its position as a whole number.
SliderScale calibrationSlider(CalibrationField field);

// The write request [0x59, 10, block, sub, the record, checksum], or the refusal naming the
// first box that does not hold a number 0..255.
struct CalibrationWrite {
    QByteArray frame;
    QString error;
    bool ok() const { return error.isEmpty(); }
};
CalibrationWrite calibrationWriteRequest(const CalibrationValues& values, int block, int sub,
                                         UiLanguage language);

// The version text: the line buffer walked from its start, a line feed ending each line and a
// carriage return the last one; at most 256 bytes.
QStringList versionLines(const QByteArray& lineBuffer);
