#pragma once

#include <QString>
#include <QStringList>
#include <vector>

// Comma-separated text as spreadsheets write and read it: fields holding a comma, a quote or a
// line break are quoted, a quote inside is doubled. Records end with CR LF when written; a
// reader takes CR LF, LF or a lone CR.

// One record, with the field quoted where it has to be, without its line ending.
QString csvRecord(const QStringList& fields);

// Records each followed by CR LF.
QString csvText(const std::vector<QStringList>& records);

struct CsvRow {
    int number = 0;  // 1-based, as a spreadsheet numbers its rows (blank rows count)
    QStringList fields;
    bool unterminatedQuote = false;  // the text ended inside a quoted field

    // A blank line, or a row a spreadsheet padded with empty fields only.
    bool isBlank() const;
};

// Every record of a text. A last line without an ending counts; a text ending in a line
// ending has no empty record after it. A quote that opens in the middle of a field is taken
// literally, as are characters after a closing quote, so that no input is lost.
std::vector<CsvRow> parseCsv(const QString& text);
