#include "service/volume_tables.h"

#include <algorithm>

#include "l10n/board_texts.h"
#include "link/frame.h"
#include "service/field_value.h"
#include "service/service_protocol.h"

namespace {

using l10n::fixed::kPlayerLabels;
using l10n::fixed::kVolumeLabels;

const LevelLayout kVolume = {1,
                             63,
                             0,
                             {{"mic", kVolumeLabels[0], 9, 10},
                              {"vol1", kVolumeLabels[1], 1, 2},
                              {"vol2", kVolumeLabels[2], 2, 8},
                              {"vol3", kVolumeLabels[3], 3, 10},
                              {"vol4", kVolumeLabels[4], 4, 12},
                              {"vol5", kVolumeLabels[5], 5, 14},
                              {"vol6", kVolumeLabels[6], 6, 16},
                              {"vol7", kVolumeLabels[7], 7, 18},
                              {"vol8", kVolumeLabels[8], 8, 22},
                              {"pmic", kVolumeLabels[9], 10, 10}}};

const LevelLayout kPlayer = {1,
                             31,
                             1,
                             {{"vol1", kPlayerLabels[0], 1, 3},
                              {"vol2", kPlayerLabels[1], 2, 7},
                              {"vol3", kPlayerLabels[2], 3, 11},
                              {"vol4", kPlayerLabels[3], 4, 15},
                              {"vol5", kPlayerLabels[4], 5, 19},
                              {"vol6", kPlayerLabels[5], 6, 23},
                              {"vol7", kPlayerLabels[6], 7, 27},
                              {"vol8", kPlayerLabels[7], 8, 31}}};

}  // namespace

const LevelLayout& levelLayout(LevelTable table) {
    return table == LevelTable::Volume ? kVolume : kPlayer;
}

LevelValues::LevelValues(LevelTable t) : table(t) {
    for (const LevelField& field : levelLayout(t).fields)
        text.push_back(QString::number(field.initial));
}

QByteArray levelReadRequest(LevelTable table, const RequestSelectors& selectors) {
    if (table == LevelTable::Player) return pack_pc_cmd(service::kPlayerRead, selectors);
    return pack_pc_cmd_byte(service::kVolumeRead, service::kCalibrationTag, selectors);
}

int levelRecordSize(LevelTable table) {
    return table == LevelTable::Volume ? service::kVolumeRecordSize : service::kPlayerRecordSize;
}

void decodeLevels(const QByteArray& record, LevelValues* values) {
    const LevelLayout& layout = levelLayout(values->table);
    for (size_t i = 0; i < layout.fields.size(); ++i) {
        const int byte = layout.firstByte + static_cast<int>(i);
        values->text[i] = QString::number(byte < record.size() ? quint8(record[byte]) : 0);
    }
}

SliderScale levelSliderScale(LevelTable table) {
    return {levelLayout(table).sliderMin, levelLayout(table).sliderMax, 0};
}

LevelWrite levelWriteRequest(const LevelValues& values, const RequestSelectors& selectors,
                             UiLanguage language) {
    const LevelLayout& layout = levelLayout(values.table);
    QByteArray payload;
    payload.append(static_cast<char>(selectors.RequestBlock))
        .append(static_cast<char>(selectors.RequestSub))
        .append(QByteArray(layout.firstByte, '\0'));
    for (size_t i = 0; i < layout.fields.size(); ++i) {
        // The byte's range, not the slider's: a value read from the radio goes back as read.
        const FieldResult byte = integerField(values.text[i], 0, 255,
                                              QString::fromUtf8(layout.fields[i].label), language);
        if (!byte.ok()) return {{}, byte.error};
        payload.append(static_cast<char>(byte.value));
    }
    const quint8 command =
        values.table == LevelTable::Volume ? service::kVolumeWrite : service::kPlayerWrite;
    return {LinkFrame{command, payload}.encode(), {}};
}

QStringList levelValueLines(const LevelValues& values) {
    QStringList lines;
    const LevelLayout& layout = levelLayout(values.table);
    for (size_t i = 0; i < layout.fields.size(); ++i)
        lines << QStringLiteral("%1=%2").arg(QLatin1String(layout.fields[i].name), values.text[i]);
    return lines;
}

bool applyLevelValues(const std::vector<Assignment>& assignments, LevelValues* values,
                      QString* error) {
    LevelValues changed = *values;
    const std::vector<LevelField>& fields = levelLayout(values->table).fields;
    for (const Assignment& assignment : assignments) {
        const auto field = std::find_if(fields.begin(), fields.end(), [&](const LevelField& f) {
            return assignment.first == QLatin1String(f.name);
        });
        if (field == fields.end()) {
            *error = assignment.first;
            return false;
        }
        changed.text[static_cast<size_t>(field - fields.begin())] = assignment.second;
    }
    *values = changed;
    return true;
}
