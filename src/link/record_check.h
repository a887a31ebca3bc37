#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "link/record_reader.h"
#include "model/codeplug.h"

// One field in which the radio holds something else than was written, in the words of the
// document's language.
struct RecordDifference {
    int channel = 0;  // 0: the settings record, else the 1-based channel
    QString field;
    QString written;
    QString found;
};

// Compares the records read back with the records written, byte for byte, and names each field
// that differs, decoded as `doc` (the plan that was written) reads it. In a 13-byte channel
// record the two inversion flags are not compared: the record cannot carry them (the radio
// reports a custom DCS code with its flag set).
std::vector<RecordDifference> compareRecords(const Codeplug& doc, const RadioRecords& written,
                                             const RadioRecords& found);

// The differences as lines for the user, at most `limit` of them and a line counting the rest.
QStringList differenceLines(const std::vector<RecordDifference>& differences, UiLanguage language,
                            int limit = 10);
