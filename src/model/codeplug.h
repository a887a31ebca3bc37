#pragma once

#include <QString>
#include <QStringList>
#include <array>

#include "l10n/language.h"
#include "model/channel.h"
#include "model/frequency.h"
#include "model/settings.h"
#include "model/startup_config.h"

// The document: the channel plan and settings the user edits, reads from and writes to the
// radio, and keeps in codeplug files. It is the source of truth; widgets only show it.
struct Codeplug {
    ChannelPlan plan;
    QString chtot = QStringLiteral("22");     // number of active channels, as text
    QString freqstep = QStringLiteral("100");  // step in kHz, kept as text, not interpreted
    RadioSettings settings;
    bool channelsFixed = false;
    UiLanguage language = UiLanguage::Chinese;

    // Kept with the document but never saved with it:
    QStringList codeTable;  // the active picker list (for settings[normalmode], in `language`)
    std::array<bool, kSlotCount> RxStepFlags{};  // true: frequency on the 6.25 kHz raster
    std::array<bool, kSlotCount> TxStepFlags{};
    ChannelPresets presets;  // start values from config.ini; refills overwrite the frequencies
    int defaultBand = 0;     // `defband`: what a radio read sets `freqband` to

    BandLimits bandLimits() const;
    // The numeric value of `chtot`, held to 0..25 for loops over the slots.
    int activeChannelCount() const;
};

// The start-up document: configuration, band, presets, custom memories, bandwidth and power,
// settings, code tables; RESET_Ch_Sel is derived from `chtot`.
Codeplug buildStartupCodeplug(const StartupConfig& config);

// The bandwidth and power cells of every slot from the configuration's start values, in the
// document's language (at start-up and when the language changes).
void applyPresetWords(Codeplug& doc);

// RESET_Ch_Sel: which slots are editable (0 .. chtot-1).
std::array<bool, kSlotCount> RESET_Ch_Sel(const Codeplug& doc);
