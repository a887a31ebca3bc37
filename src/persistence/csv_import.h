#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "model/cell_fault.h"
#include "model/codeplug.h"
#include "model/result.h"

// Reads a CSV file written by exportCsvFile, or one a person or a spreadsheet made from it.
// Every cell is checked before anything is taken: a frequency of an active channel in the band,
// a code in the code list of the file's mode, a custom tone in use from 67.0 to 255.0 Hz, at most
// nine characters for a frequency, words of either language, the shape of every row. Rows may
// come in any order, blank rows and a UTF-8 byte-order mark are skipped, lines may end in CR LF
// or LF. Cells are trimmed of blanks. A file that is not UTF-8 is read as GBK, as spreadsheets
// in a Chinese locale save it.

struct CsvImport {
    std::optional<Codeplug> document;  // set only when no cell is bad
    CellFaults faults;                 // every bad cell, by row and column
};

// `base` is the document the plan is imported into: it gives the language the words come back
// in and what a CSV does not carry (the configured presets, whether channels are fixed). The
// imported plan is redrawn as a loaded file is: frequencies formatted and put on their raster.
CsvImport importCsvText(const Codeplug& base, const QString& text);
CsvImport importCsvBytes(const Codeplug& base, const QByteArray& bytes);

// The file could not be read at all: a CannotOpen or TooLarge error naming it.
Result<CsvImport> importCsvFile(const Codeplug& base, const QString& path);
