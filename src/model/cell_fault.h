#pragma once

#include <QString>
#include <QStringList>
#include <vector>

// A bad cell of a table the user hands the program (a CSV file): where it is and what is wrong
// with it. A reader reports every bad cell it finds, not only the first, so that one round of
// corrections is enough. The words for people are made in l10n/csv_texts.h.
// Like model/result.h, this header depends on nothing of the program.

enum class CellFaultKind {
    // The table's shape
    RowLength,        // args: the fields found, the fields expected
    UnclosedQuote,    // the text ends inside a quoted field
    HeaderName,       // args: the name expected
    ChannelNumber,    // args: the cell; not a whole number from 1 to 25
    ChannelRepeated,  // args: the channel number
    ChannelMissing,   // args: the channel number
    SettingsMissing,  // no "setting,value" section
    // Channel cells
    NotANumber,           // args: the cell
    TooLong,              // args: the cell, the longest text allowed
    OutOfBand,            // args: the cell, the band's lower and upper limit in MHz
    CodeNotInList,        // args: the cell
    ToneOutOfRange,       // args: the cell, the lowest tone, the first tone too high
    NotADcsCode,          // args: the cell
    UnknownWord,          // args: the cell, the words accepted
    ActiveAfterInactive,  // args: the channel number
    NoActiveChannel,
    // Settings
    SettingUnknown,   // args: the cell
    SettingRepeated,  // args: the key
    SettingMissing,   // args: the key
    SettingValue,     // args: the cell, the options accepted
    NotAWholeNumber,  // args: the cell
};

struct CellFault {
    int row = 0;         // 1-based, as a spreadsheet numbers its rows
    int column = 0;      // 1-based; 0 when the fault is the row's (or the file's) as a whole
    QString columnName;  // the column's name in the header, when there is one
    CellFaultKind kind = CellFaultKind::NotANumber;
    QStringList args;
};

using CellFaults = std::vector<CellFault>;
