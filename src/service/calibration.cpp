#include "service/calibration.h"

#include <QStringDecoder>
#include <algorithm>

#include "l10n/service_texts.h"
#include "l10n/texts.h"
#include "link/frame.h"
#include "service/field_value.h"
#include "service/service_protocol.h"

using namespace service;

namespace {

constexpr int kErasedNoise = 255;

const std::array<CalibrationFieldInfo, kCalibrationFields> kFields = {{
    {CalibrationField::RssiNarrow, "rssi-narrow", 10, 254, 42, kCalRssiNarrow},
    {CalibrationField::RssiWide, "rssi-wide", 10, 254, 40, kCalRssiWide},
    {CalibrationField::PowerHigh, "power-high", 0, 128, 70, kCalPowerHigh},
    {CalibrationField::PowerLow, "power-low", 0, 128, 35, kCalPowerLow},
    {CalibrationField::RxPwm, "rx-pwm", 0, 128, 26, -1},
    {CalibrationField::NoiseNarrow, "noise-narrow", 0, 254, 53, kCalNoiseNarrow},
    {CalibrationField::NoiseWide, "noise-wide", 0, 254, 53, kCalNoiseWide},
}};

int at(const QByteArray& bytes, int i) {
    return i < bytes.size() ? static_cast<quint8>(bytes[i]) : 0;
}

}  // namespace

const std::array<CalibrationFieldInfo, kCalibrationFields>& calibrationFields() {
    return kFields;
}

const CalibrationFieldInfo& calibrationField(CalibrationField field) {
    return kFields[static_cast<size_t>(field)];
}

QString calibrationFieldLabel(CalibrationField field, UiLanguage language) {
    switch (field) {
        case CalibrationField::RssiNarrow:
            return l10n::serviceCaption(2, language);
        case CalibrationField::RssiWide:
            return l10n::serviceCaption(3, language);
        case CalibrationField::PowerHigh:
            return l10n::serviceCaption(7, language);
        case CalibrationField::PowerLow:
            return l10n::serviceCaption(8, language);
        case CalibrationField::RxPwm:
            return l10n::serviceCaption(9, language);
        case CalibrationField::NoiseNarrow:
            return l10n::serviceText(l10n::ServiceText::NoiseNarrow, language);
        case CalibrationField::NoiseWide:
            return l10n::serviceText(l10n::ServiceText::NoiseWide, language);
    }
    return {};
}

CalibrationValues::CalibrationValues() {
    for (const CalibrationFieldInfo& info : kFields)
        (*this)[info.field] = QString::number(info.initial);
}

QByteArray calibrationReadRequest() {
    return LinkFrame{kCalibrationRead, QByteArray::fromRawData("\0\0\x07", 3)}.encode();
}

void decodeCalibration(const QByteArray& record, CalibrationValues* values) {
    for (const CalibrationFieldInfo& info : kFields) {
        if (info.recordByte < 0) continue;
        int value = at(record, info.recordByte);
        const bool noise = info.recordByte == kCalNoiseNarrow || info.recordByte == kCalNoiseWide;
        if (noise && value >= kErasedNoise) value = 0;
        (*values)[info.field] = QString::number(value);
    }
}

SliderScale calibrationSlider(CalibrationField field) {
    const CalibrationFieldInfo& info = calibrationField(field);
    return {info.sliderMin, info.sliderMax};
}

CalibrationWrite calibrationWriteRequest(const CalibrationValues& values, int block, int sub,
                                         UiLanguage language) {
    QByteArray record(kCalibrationRecordSize, '\0');
    record[kCalFixed4] = static_cast<char>(kCalFixed4Value);
    record[kCalFixed5] = static_cast<char>(kCalFixed5Value);
    for (const CalibrationFieldInfo& info : kFields) {
        if (info.recordByte < 0) continue;
        // The byte's range, not the slider's: a value read from the radio goes back as read.
        const FieldResult byte = integerField(
            values[info.field], 0, 255, calibrationFieldLabel(info.field, language), language);
        if (!byte.ok()) return {{}, byte.error};
        record[info.recordByte] = static_cast<char>(byte.value);
    }
    QByteArray payload;
    payload.append(static_cast<char>(block)).append(static_cast<char>(sub)).append(record);
    return {LinkFrame{kCalibrationWrite, payload}.encode(), {}};
}

QStringList versionLines(const QByteArray& lineBuffer) {
    // The radio sends its version in the single-byte code page of its firmware.
    QStringDecoder decode("GB18030");
    QStringList lines;
    QByteArray line;
    for (int i = 0; i < std::min<int>(lineBuffer.size(), 256); ++i) {
        const char byte = lineBuffer[i];
        if (byte == '\n' || byte == '\r') {
            lines << decode.decode(line);
            line.clear();
            if (byte == '\r') break;
        } else {
            line.append(byte);
        }
    }
    return lines;
}
