#include "persistence/csv_format.h"

namespace csv_format {
namespace {

// In the order of Column.
const char* const kColumnNames[] = {
    "channel",   "active", "rx_frequency",   "tx_frequency",   "rx_code",       "tx_code",
    "bandwidth", "power",  "rx_custom_tone", "tx_custom_tone", "rx_custom_dcs", "tx_custom_dcs",
};
static_assert(sizeof(kColumnNames) / sizeof(kColumnNames[0]) == ColumnCount);

}  // namespace

QString columnName(int column) {
    if (column < 0 || column >= ColumnCount) return QString();
    return QLatin1String(kColumnNames[column]);
}

QStringList channelHeader() {
    QStringList header;
    for (int column = 0; column < ColumnCount; ++column) header << columnName(column);
    return header;
}

QStringList settingHeader() {
    return {QLatin1String(kSettingColumn), QLatin1String(kValueColumn)};
}

QStringList settingKeys() {
    QStringList keys;
    for (SettingKey key : kAllSettings) keys << settingKeyName(key);
    return keys << QLatin1String(kFreqstepKey);
}

}  // namespace csv_format
