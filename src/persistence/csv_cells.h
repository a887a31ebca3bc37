#pragma once

#include <QString>
#include <QStringList>
#include <optional>

#include "model/cell_fault.h"
#include "model/channel.h"
#include "model/frequency.h"
#include "model/settings.h"
#include "persistence/csv_table.h"

// The cells of one CSV row, each checked on its own. A bad cell becomes a fault naming its row
// and column; every good one is taken over.

// What the channel cells are judged against, from the settings section. A setting that could
// not be read leaves its check out rather than reporting every row of the plan.
struct ChannelRules {
    std::optional<BandLimits> band;             // from freqband
    std::optional<QStringList> codeTable;       // from normalmode, in the document's language
    UiLanguage language = UiLanguage::Chinese;  // the words the record is given
};

struct ChannelRow {
    ChannelRecord record;
    std::optional<bool> active;  // nothing when the cell is bad
};

// A row of exactly csv_format::ColumnCount fields, the channel cell already read.
ChannelRow readChannelCells(const CsvRow& row, const ChannelRules& rules, CellFaults& faults);

// The channel number in a row's first cell, 1..25, or nothing.
std::optional<int> channelNumberOf(const QString& cell);

// The value cell of a setting: an option of either language, or its position as a whole number
// from 0 to 32767 (an index no option has survives, as a codeplug file keeps it).
std::optional<qint16> settingValueOf(SettingKey key, const QString& cell);
// The options a setting's cell takes, both languages, for the fault's words.
QString settingOptionsText(SettingKey key);

// A whole number written with digits alone, as the frequency step is.
bool isWholeNumberText(const QString& cell);

// A fault at a row and column (1-based; csv_format's Column + 1 for channel cells).
CellFault cellFault(const CsvRow& row, int column, const QString& columnName, CellFaultKind kind,
                    QStringList args = {});
