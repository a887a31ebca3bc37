#pragma once

#include <QString>
#include <array>
#include <optional>

#include "l10n/language.h"
#include "model/channel.h"
#include "model/result.h"

// What the configuration file gives the start-up document: the language, whether the channel
// table is fixed, the start channel count and band, and a start value per slot. Defaults are
// those of a first start without a file.
struct ChannelPresets {
    std::array<QString, kSlotCount> frequency;  // receive = transmit frequency, as text
    std::array<QString, kSlotCount> code;       // receive = transmit code display text
    std::array<QString, kSlotCount> power;      // "high"/"大" means high, anything else low
    std::array<QString, kSlotCount> bandwidth;  // "narrow"/"窄带" means narrow, else wide

    ChannelPresets();
};

struct StartupConfig {
    UiLanguage language = UiLanguage::Chinese;
    bool channelsFixed = false;            // `fixch` other than "no"
    QString maxch = QStringLiteral("22");  // start text of the channel-count selector
    int defband = 0;                       // start `freqband`
    ChannelPresets presets;
    // Set when config.ini exists but could not be read (a folder, no permission, too large):
    // the defaults above apply, and the user is told once, naming the file.
    std::optional<Error> unreadable;
};
