#pragma once

#include <QByteArray>
#include <QString>

#include "model/codeplug.h"
#include "model/result.h"

// A codeplug as a CSV file (the layout is in persistence/csv_format.h): every slot with its
// custom-code memories, whether it is active, and the settings. Bandwidth, power, the
// custom-tone code and the setting options are written in English whatever the document's
// language; a cell that holds no known word is written as it is.

// The text: UTF-8 without a byte-order mark, CR LF after every row.
QString codeplugCsvText(const Codeplug& doc);
QByteArray codeplugCsvBytes(const Codeplug& doc);

// Replaces the file in one step: a failure leaves an old file of that name as it was.
Result<void> exportCsvFile(const Codeplug& doc, const QString& path);
