#pragma once

#include <QString>
#include <QStringList>

#include "model/settings.h"

// The channel plan as a CSV file: a header row, one row per channel slot 1..25, a blank row,
// then the settings as "setting,value" rows. Words are written in English; a reader takes
// either language's.
namespace csv_format {

enum Column : int {
    Channel,
    Active,
    RxFrequency,
    TxFrequency,
    RxCode,
    TxCode,
    Bandwidth,
    Power,
    RxCustomTone,
    TxCustomTone,
    RxCustomDcs,
    TxCustomDcs,
    ColumnCount,
};

// The name of a channel column in the header row ("rx_frequency").
QString columnName(int column);
QStringList channelHeader();

// The settings section: its header row, and the keys beyond the thirteen settings.
inline constexpr const char* kSettingColumn = "setting";
inline constexpr const char* kValueColumn = "value";
inline constexpr const char* kFreqstepKey = "freqstep";
QStringList settingHeader();

// The keys of the settings section in writing order: the settings, then freqstep.
QStringList settingKeys();

}  // namespace csv_format
