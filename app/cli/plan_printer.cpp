#include "cli/plan_printer.h"

#include "l10n/texts.h"

namespace {

QString column(const QString& text, int width) {
    return text.leftJustified(width);
}

}  // namespace

void printCodeplug(QTextStream& out, const Codeplug& doc) {
    const UiLanguage lang = doc.language;
    const auto editable = RESET_Ch_Sel(doc);

    out << column(l10n::caption(40, lang), 9) << column(l10n::caption(41, lang), 14)
        << column(l10n::caption(42, lang), 10) << column(l10n::caption(43, lang), 14)
        << column(l10n::caption(44, lang), 10) << column(l10n::caption(45, lang), 10)
        << l10n::caption(46, lang) << '\n';
    for (int slot = 0; slot < kSlotCount; ++slot) {
        const ChannelRecord& ch = doc.plan[slot];
        out << QStringLiteral("%1 %2 ").arg(slot + 1, 2).arg(editable[slot] ? '*' : '-') << "   "
            << column(ch.rxfreq, 14) << column(ch.rxctc, 10) << column(ch.txfreq, 14)
            << column(ch.txctc, 10) << column(ch.band, 10) << ch.power << '\n';
    }
    out << "(* active, - inactive)\n\n";

    out << l10n::caption(48, lang) << ": " << doc.chtot << '\n';
    out << l10n::caption(49, lang) << ": " << doc.freqstep << '\n';
    for (SettingKey key : kAllSettings) {
        out << settingLabel(key, lang) << " (" << settingKeyName(key)
            << "): " << Show_Combo(key, doc.settings[key], lang) << '\n';
    }
}
