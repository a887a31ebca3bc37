#include "model/presets.h"

#include <vector>

#include "model/code_tables.h"
#include "model/editing.h"

namespace {

struct Standard {
    const char* title;
    std::vector<double> frequencies;  // MHz, one per active slot
};

std::vector<double> evenlySpaced(double first, double step, int count) {
    std::vector<double> frequencies;
    for (int i = 0; i < count; ++i) frequencies.push_back(first + step * i);
    return frequencies;
}

// The national plans. The USA plan keeps its slot order: the 462.55000 block follows the
// 467 MHz block.
Standard standardOf(int freqsel, int lower) {
    switch (freqsel) {
        case 0:
            return {"美国标准",
                    {462.56250, 462.58750, 462.61250, 462.63750, 462.66250, 462.68750,
                     462.71250, 467.56250, 467.58750, 467.61250, 467.63750, 467.66250,
                     467.68750, 467.71250, 462.55000, 462.57500, 462.60000, 462.62500,
                     462.65000, 462.67500, 462.70000, 462.72500}};
        case 1: return {"中国标准", evenlySpaced(409.75, 0.0125, 20)};
        case 2: return {"台湾标准", evenlySpaced(467.5125, 0.0125, 14)};
        default: return {"自定义标准", std::vector<double>(kSlotCount, lower)};
    }
}

// Fills the active slots from the preset array, then puts every slot in the picture.
void refillActiveSlots(Codeplug& doc, const QString& code) {
    const int active = doc.activeChannelCount();
    for (int slot = 0; slot < active; ++slot) {
        ChannelRecord& ch = doc.plan[slot];
        ch.rxfreq = ch.txfreq = doc.presets.frequency[slot];
        ch.rxctc = ch.txctc = code;
        ch.band = narrowWord(doc.language);
        ch.power = highPowerWord(doc.language);
    }
    for (ChannelRecord& ch : doc.plan) {
        ch.rxfreq = formatFrequency(ch.rxfreq);
        ch.txfreq = formatFrequency(ch.txfreq);
    }
}

}  // namespace

QString standardTitle(int freqsel) { return QString::fromUtf8(standardOf(freqsel, 0).title); }

std::optional<QString> applyStandard(Codeplug& doc, int freqsel) {
    if (doc.channelsFixed) return std::nullopt;
    RESET_TEXT(doc);
    doc.settings[SettingKey::freqsel] = static_cast<qint16>(freqsel);
    const Standard standard = standardOf(freqsel, doc.bandLimits().lower);
    doc.chtot = QString::number(standard.frequencies.size());
    // Entries beyond the plan keep their earlier values; they are not applied.
    for (std::size_t i = 0; i < standard.frequencies.size(); ++i)
        doc.presets.frequency[i] = formatFrequencyValue(standard.frequencies[i]);
    refillActiveSlots(doc, QLatin1String(kCodeOff));
    return QString::fromUtf8(standard.title);
}

bool applyBand(Codeplug& doc, int freqband) {
    if (doc.channelsFixed) return false;
    RESET_TEXT(doc);
    doc.settings[SettingKey::freqband] = static_cast<qint16>(freqband);
    const QString lower = QString::number(doc.bandLimits().lower);
    doc.presets.frequency.fill(lower);
    refillActiveSlots(doc, QStringLiteral("67.0"));
    return true;
}
