#pragma once

#include <QString>
#include <QStringList>
#include <limits>

#include "l10n/language.h"
#include "model/cell_fault.h"

// The words of CSV export and import: the active column's words and what an import found
// wrong, one line per bad cell.
namespace l10n {

// "yes"/"no" and "是"/"否": whether a channel is active (a reader takes both languages').
QString activeWord(bool active, UiLanguage language);

// "row 5, column 3 (rx_frequency): 512.00000 MHz is outside the band 400–500 MHz".
QString describeCellFault(const CellFault& fault, UiLanguage language);

// The line above the list of bad cells: nothing was imported.
QString csvRefusedHeading(UiLanguage language);

// One line per bad cell; beyond `shownAtMost` of them, a last line counts the others.
QStringList describeCellFaults(const CellFaults& faults, UiLanguage language,
                               int shownAtMost = std::numeric_limits<int>::max());

// The File menu items.
QString exportCsvMenuItem(UiLanguage language);
QString importCsvMenuItem(UiLanguage language);

}  // namespace l10n
