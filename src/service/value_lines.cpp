#include "service/value_lines.h"

#include <QRegularExpression>
#include <algorithm>

namespace {

// "name<row>" for the grid panels, with the row in 1..rows.
bool splitRowName(const QString& name, const QStringList& columns, int rows, int* column,
                  int* row) {
    static const QRegularExpression pattern(QStringLiteral("^([a-z-]+)([0-9]{1,2})$"));
    const QRegularExpressionMatch match = pattern.match(name);
    if (!match.hasMatch()) return false;
    *column = static_cast<int>(columns.indexOf(match.captured(1))) + 1;
    *row = match.captured(2).toInt();
    return *column > 0 && *row >= 1 && *row <= rows;
}

const QStringList kRegisterColumns = {QStringLiteral("addr"), QStringLiteral("data")};
const QStringList kBandColumns = {QStringLiteral("tx"), QStringLiteral("rx"),
                                  QStringLiteral("rssi")};

}  // namespace

std::optional<std::vector<Assignment>> parseAssignments(const QStringList& arguments,
                                                        QString* error) {
    std::vector<Assignment> values;
    for (const QString& argument : arguments) {
        const qsizetype equals = argument.indexOf(QLatin1Char('='));
        if (equals <= 0) {
            *error = argument;
            return std::nullopt;
        }
        values.push_back({argument.left(equals).trimmed().toLower(), argument.mid(equals + 1)});
    }
    return values;
}

QStringList registerValueLines(const RegisterGrid& grid) {
    QStringList lines;
    for (int r = 1; r <= RegisterGrid::kRows; ++r) {
        if (grid.row(r).address.isEmpty()) continue;
        lines << QStringLiteral("addr%1=%2").arg(r).arg(grid.row(r).address)
              << QStringLiteral("data%1=%2").arg(r).arg(grid.row(r).value);
    }
    return lines;
}

bool applyRegisterValues(const std::vector<Assignment>& values, RegisterGrid* grid,
                         QString* error) {
    RegisterGrid changed = *grid;
    for (const auto& [name, value] : values) {
        int column = 0, row = 0;
        if (!splitRowName(name, kRegisterColumns, RegisterGrid::kRows, &column, &row)) {
            *error = name;
            return false;
        }
        (column == 1 ? changed.row(row).address : changed.row(row).value) = value;
    }
    *grid = changed;
    return true;
}

QStringList calibrationValueLines(const CalibrationValues& values) {
    QStringList lines;
    for (const CalibrationFieldInfo& info : calibrationFields()) {
        if (info.recordByte < 0) continue;
        lines << QStringLiteral("%1=%2").arg(QLatin1String(info.name), values[info.field]);
    }
    return lines;
}

bool applyCalibrationValues(const std::vector<Assignment>& values, CalibrationValues* target,
                            QString* error) {
    CalibrationValues changed = *target;
    for (const Assignment& assignment : values) {
        const auto& fields = calibrationFields();
        const auto field = std::find_if(fields.begin(), fields.end(), [&](const auto& info) {
            return info.recordByte >= 0 && assignment.first == QLatin1String(info.name);
        });
        if (field == fields.end()) {
            *error = assignment.first;
            return false;
        }
        changed[field->field] = assignment.second;
    }
    *target = changed;
    return true;
}

QStringList bandValueLines(const BandTable& table, int rows) {
    QStringList lines;
    for (int column = 1; column <= BandTable::kColumns; ++column) {
        for (int row = 1; row <= rows; ++row) {
            lines << QStringLiteral("%1%2=%3")
                         .arg(kBandColumns[column - 1])
                         .arg(row)
                         .arg(table.cell(row, column));
        }
    }
    return lines;
}

bool applyBandValues(const std::vector<Assignment>& values, BandTable* table, QString* error) {
    BandTable changed = *table;
    for (const auto& [name, value] : values) {
        int column = 0, row = 0;
        if (!splitRowName(name, kBandColumns, BandTable::kRows, &column, &row)) {
            *error = name;
            return false;
        }
        changed.cell(row, column) = value;
    }
    *table = changed;
    return true;
}
