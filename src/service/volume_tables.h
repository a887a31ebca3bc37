#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

#include "l10n/language.h"
#include "service/field_value.h"
#include "service/service_request.h"
#include "service/value_lines.h"

// The radio's two tables of audio levels, each edited as a row of sliders with text boxes:
//   Volume: microphone gain, the eight speaker steps and a second microphone gain (sliders
//           1..63), one record of ten bytes;
//   Player: the audio player's eight volume steps (sliders 1..31), after a record byte that
//           the program writes as 0 and does not read.
// The write sends what the boxes show, so the values are kept as text, in record order.
enum class LevelTable { Volume, Player };

struct LevelField {
    const char* name;  // the command line's name for it
    const char* label;
    int control;  // n of HScrolln / Textn
    int initial;
};
struct LevelLayout {
    int sliderMin, sliderMax;
    int firstByte;  // where the fields start in the record
    std::vector<LevelField> fields;
};
const LevelLayout& levelLayout(LevelTable table);

struct LevelValues {
    explicit LevelValues(LevelTable table);
    LevelTable table;
    std::vector<QString> text;  // in the order of the layout's fields
};

// The read requests: 56 03 00 00 07 60 (volume) and pack_pc_cmd(0x69) (player).
QByteArray levelReadRequest(LevelTable table, const RequestSelectors& selectors);
// The shortest reply that holds the record.
int levelRecordSize(LevelTable table);
// A reply's record into the boxes. Values outside a slider's range are shown as received.
void decodeLevels(const QByteArray& record, LevelValues* values);
// The sliders' scale: whole numbers, a box's value clamped to the range.
SliderScale levelSliderScale(LevelTable table);

// The write request, [0x5C, 12, block, sub, ten bytes] or [0x6A, 11, block, sub, 0, eight
// bytes], or the refusal naming the first box that does not hold a number 0..255.
struct LevelWrite {
    QByteArray frame;
    QString error;
    bool ok() const { return error.isEmpty(); }
};
LevelWrite levelWriteRequest(const LevelValues& values, const RequestSelectors& selectors,
                             UiLanguage language);

// The command line's lines: volume mic vol1..vol8 pmic, player vol1..vol8.
QStringList levelValueLines(const LevelValues& values);
// Takes the values named; on an unknown name `error` gets it and nothing changes.
bool applyLevelValues(const std::vector<Assignment>& assignments, LevelValues* values,
                      QString* error);
