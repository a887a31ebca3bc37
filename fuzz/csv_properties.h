#pragma once

// What the CSV import promises for any bytes at all, beyond not crashing. The fuzz target checks
// it for every input it makes; the regression test for the inputs kept in the test folder.

#include <QByteArray>

#include "persistence/csv_export.h"
#include "persistence/csv_import.h"
#include "persistence/csv_table.h"
#include "persistence/text_encoding.h"
#include "reader_properties.h"

namespace csv_properties {

// A refused file names at least one cell, each inside the file (or the row after its last);
// an imported plan has its channel count in range, and exporting it and importing that again
// gives the same plan and the same text.
inline const char* checkCsvImport(const QByteArray& bytes, int variant) {
    const Codeplug& start = reader_properties::startDocument(variant);
    const CsvImport first = importCsvBytes(start, bytes);
    if (first.document.has_value() == !first.faults.empty()) {
        return "a file is either imported or refused with its bad cells";
    }
    if (!first.document) {
        const int rows = static_cast<int>(parseCsv(decodeFileText(bytes)).size());
        for (const CellFault& fault : first.faults) {
            if (fault.row < 1 || fault.row > rows + 1) return "a fault's row lies in the file";
            if (fault.column < 0 || fault.column > 12) return "a fault's column lies in the table";
        }
        return nullptr;
    }
    if (const char* broken = reader_properties::checkChannelCount(*first.document)) return broken;
    const QByteArray text = codeplugCsvBytes(*first.document);
    const CsvImport second = importCsvBytes(start, text);
    if (!second.document) return "an exported plan imports";
    if (!reader_properties::sameDocument(*first.document, *second.document)) {
        return "export then import keeps the plan";
    }
    return codeplugCsvBytes(*second.document) == text ? nullptr
                                                      : "export then import keeps the text";
}

}  // namespace csv_properties
