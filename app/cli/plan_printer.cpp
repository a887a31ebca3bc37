#include "cli/plan_printer.h"

#include "l10n/display_width.h"
#include "l10n/texts.h"

namespace {

// Padded by the columns a terminal gives it, so that Chinese captions and words line up.
QString column(const QString& text, int width) {
    return l10n::padToWidth(text, width);
}

}  // namespace

void printCodeplug(QTextStream& out, const Codeplug& doc) {
    const UiLanguage lang = doc.language;
    const auto editable = RESET_Ch_Sel(doc);

    using namespace l10n;
    out << column(caption(CapChannel, lang), 8) << column(caption(CapRxFrequency, lang), 14)
        << column(caption(CapRxCode, lang), 10) << column(caption(CapTxFrequency, lang), 14)
        << column(caption(CapTxCode, lang), 10) << column(caption(CapBandwidth, lang), 10)
        << caption(CapPower, lang) << '\n';
    for (int slot = 0; slot < kSlotCount; ++slot) {
        const ChannelRecord& ch = doc.plan[slot];
        out << QStringLiteral("%1 %2 ").arg(slot + 1, 2).arg(editable[slot] ? '*' : '-') << "   "
            << column(ch.rxfreq, 14) << column(ch.rxctc, 10) << column(ch.txfreq, 14)
            << column(ch.txctc, 10) << column(ch.band, 10) << ch.power << '\n';
    }
    out << "(* active, - inactive)\n\n";

    out << caption(CapChannelCount, lang) << ": " << doc.chtot << '\n';
    out << caption(CapFrequencyStep, lang) << ": " << doc.freqstep << '\n';
    for (SettingKey key : kAllSettings) {
        out << settingLabel(key, lang) << " (" << settingKeyName(key)
            << "): " << Show_Combo(key, doc.settings[key], lang) << '\n';
    }
}
