#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <utility>
#include <vector>

#include "service/band_table.h"
#include "service/calibration.h"
#include "service/register_grid.h"

// The panels' values as "name=value" lines, one value a line: what the command line prints
// after a read and takes back for a write, unchanged.
//   registers:   addr1=3A data1=1F00 … addr10 data10 (rows with an address)
//   calibration: rssi-narrow rssi-wide power-high power-low noise-narrow noise-wide
//   band:        tx1 … tx20, rx1 … rx20, rssi1 … rssi20 (a read gives rows 1..15)
//   crystal:     crystal
using Assignment = std::pair<QString, QString>;

// Splits "name=value" arguments (names in any case); `error` gets an argument without "=".
std::optional<std::vector<Assignment>> parseAssignments(const QStringList& arguments,
                                                        QString* error);

QStringList registerValueLines(const RegisterGrid& grid);
// Puts each value into its cell; on an unknown name, `error` gets it and nothing changes.
bool applyRegisterValues(const std::vector<Assignment>& values, RegisterGrid* grid, QString* error);

QStringList calibrationValueLines(const CalibrationValues& values);
bool applyCalibrationValues(const std::vector<Assignment>& values, CalibrationValues* target,
                            QString* error);

QStringList bandValueLines(const BandTable& table, int rows = BandTable::kLabelledRows);
bool applyBandValues(const std::vector<Assignment>& values, BandTable* table, QString* error);

constexpr const char* kCrystalName = "crystal";
