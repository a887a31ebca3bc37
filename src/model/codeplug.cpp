#include "model/codeplug.h"

#include <algorithm>
#include <cmath>

#include "model/code_tables.h"

BandLimits Codeplug::bandLimits() const {
    return BandLimits::forBand(settings[SettingKey::freqband]);
}

int Codeplug::activeChannelCount() const {
    const double value = numericValue(chtot);
    return static_cast<int>(std::clamp(std::trunc(value), 0.0, static_cast<double>(kSlotCount)));
}

Codeplug buildStartupCodeplug(const StartupConfig& config) {
    Codeplug doc;
    doc.language = config.language;
    doc.channelsFixed = config.channelsFixed;
    doc.presets = config.presets;
    doc.defaultBand = config.defband;
    doc.settings[SettingKey::freqband] = static_cast<qint16>(config.defband);

    for (int slot = 0; slot < kSlotCount; ++slot) {
        ChannelRecord& ch = doc.plan[slot];
        ch.rxctc = ch.txctc = config.presets.code[slot];
        ch.rxfreq = ch.txfreq = formatFrequency(config.presets.frequency[slot]);
    }
    applyPresetWords(doc);

    doc.settings[SettingKey::freqsel] = 3;  // "4:custom"
    doc.settings[SettingKey::normalmode] = config.channelsFixed ? 1 : 0;
    doc.chtot = config.maxch;
    doc.codeTable = buildCodeTable(doc.settings[SettingKey::normalmode], doc.language);
    return doc;
}

void applyPresetWords(Codeplug& doc) {
    for (int slot = 0; slot < kSlotCount; ++slot) {
        ChannelRecord& ch = doc.plan[slot];
        ch.band = isNarrowWord(doc.presets.bandwidth[slot]) ? narrowWord(doc.language)
                                                            : wideWord(doc.language);
        ch.power = isHighPowerWord(doc.presets.power[slot]) ? highPowerWord(doc.language)
                                                            : lowPowerWord(doc.language);
    }
}

std::array<bool, kSlotCount> RESET_Ch_Sel(const Codeplug& doc) {
    std::array<bool, kSlotCount> editable{};
    const int active = doc.activeChannelCount();
    for (int slot = 0; slot < kSlotCount; ++slot) editable[slot] = slot < active;
    return editable;
}
