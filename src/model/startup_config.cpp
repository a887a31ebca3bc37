#include "model/startup_config.h"

ChannelPresets::ChannelPresets() {
    frequency.fill(QStringLiteral("0"));
    code.fill(QStringLiteral("67.0"));
    power.fill(QStringLiteral("high"));
    bandwidth.fill(QStringLiteral("窄带"));
}
