#include "model/editing.h"

#include <cmath>
#include <optional>

#include "model/code_tables.h"

namespace {

// Out-of-band check of a frequency text; short texts (partial typing) are never checked.
constexpr int kCheckedLength = 7;
constexpr int kCompleteLength = 9;

bool outOfBand(const Codeplug& doc, const QString& text) {
    return text.size() >= kCheckedLength && !doc.bandLimits().contains(numericValue(text));
}

// Puts one frequency text on its raster; returns whether it lies on the 6.25 kHz raster.
// The arithmetic keeps the old program's 32-bit float steps, so the flags and the moved values
// match what radios programmed with it hold.
bool placeOnRaster(QString& text, int lower) {
    if (text.isEmpty()) text = QStringLiteral("0");
    const std::optional<double> value = strictNumber(text);
    if (!value) return false;  // not a number: nothing to put on a raster

    const float d = static_cast<float>((*value - lower) * 1000.0);  // kHz above L
    const double on625 = static_cast<double>(d) / 6.25;
    const bool on6 = on625 == std::floor(on625);
    const float on5Steps = d / 5.0f;
    const float k = std::floor(on5Steps);
    const bool on5 = on5Steps == k;
    if (!on5 && !on6) {
        // On neither raster: moved down onto the 5 kHz raster.
        const float offset = k * 5.0f / 1000.0f;
        text = formatFrequencyValue(lower + static_cast<double>(offset));
    }
    return on6;  // on both rasters (a multiple of 25 kHz) still counts as 6.25 kHz
}

}  // namespace

Notices enterTxFrequency(Codeplug& doc, int slot, const QString& text) {
    doc.plan[slot].txfreq = text;
    if (outOfBand(doc, text)) return {{l10n::MessageId::MsgChannelFreqError, slot + 1}};
    return {};
}

Notices enterRxFrequency(Codeplug& doc, int slot, const QString& text) {
    ChannelRecord& ch = doc.plan[slot];
    ch.rxfreq = text;
    Notices notices;
    if (text.size() == kCompleteLength) notices = enterTxFrequency(doc, slot, text);

    const QString lowerText = QString::number(doc.bandLimits().lower);
    if (text == QLatin1String("0")) {
        ch.rxfreq = lowerText;
    } else if (outOfBand(doc, text)) {
        ch.rxfreq = lowerText;
        notices.push_back({l10n::MessageId::MsgChannelFreqError, slot + 1});
    }
    return notices;
}

void RESET_FER(Codeplug& doc) {
    const int lower = doc.bandLimits().lower;
    for (int slot = 0; slot < kSlotCount; ++slot) {
        ChannelRecord& ch = doc.plan[slot];
        doc.RxStepFlags[slot] = placeOnRaster(ch.rxfreq, lower);
        doc.TxStepFlags[slot] = placeOnRaster(ch.txfreq, lower);
        ch.rxfreq = formatFrequency(ch.rxfreq);
        ch.txfreq = formatFrequency(ch.txfreq);
    }
}

namespace {

void redrawCodeCell(QString& code, QString& toolTip, const QString& customTone,
                    const QString& customDcs, UiLanguage language) {
    toolTip.clear();
    if (isCustomToneText(code)) {
        toolTip = customTone;
        code = l10n::caption(l10n::CapCustomTone, language);
    } else if (code == QLatin1String(kCdcssText)) {
        toolTip = customDcs;
    }
}

}  // namespace

void RESET_TEXT(Codeplug& doc) {
    RESET_FER(doc);
    for (ChannelRecord& ch : doc.plan) {
        redrawCodeCell(ch.rxctc, ch.rxCodeToolTip, ch.rxctcfreq, ch.rxcdc, doc.language);
        redrawCodeCell(ch.txctc, ch.txCodeToolTip, ch.txctcfreq, ch.txcdc, doc.language);
    }
}

void toggleBandwidth(Codeplug& doc, int slot) {
    if (doc.channelsFixed) return;
    QString& band = doc.plan[slot].band;
    band = band == wideWord(doc.language) ? narrowWord(doc.language) : wideWord(doc.language);
}

void togglePower(Codeplug& doc, int slot) {
    if (doc.channelsFixed) return;
    QString& power = doc.plan[slot].power;
    power = power == highPowerWord(doc.language) ? lowPowerWord(doc.language)
                                                 : highPowerWord(doc.language);
}

void rebuildCodeTables(Codeplug& doc) {
    doc.codeTable = buildCodeTable(doc.settings[SettingKey::normalmode], doc.language);
    for (ChannelRecord& ch : doc.plan) ch.rxctc = ch.txctc = QLatin1String(kCodeOff);
    RESET_TEXT(doc);
}

bool switchMode(Codeplug& doc, int normalmode) {
    if (doc.channelsFixed) return false;
    doc.settings[SettingKey::normalmode] = static_cast<qint16>(normalmode);
    rebuildCodeTables(doc);
    return true;
}

bool setChannelCount(Codeplug& doc, const QString& chtot) {
    if (doc.channelsFixed) return false;
    doc.chtot = chtot;
    RESET_FER(doc);
    return true;
}

void applyLanguage(Codeplug& doc, UiLanguage language) {
    doc.language = language;
    // Each row keeps what it holds, in the new language's words: going back to the
    // configuration's start values would silently undo edits, reads and loads.
    for (ChannelRecord& ch : doc.plan) {
        ch.band = isNarrowWord(ch.band) ? narrowWord(language) : wideWord(language);
        ch.power = isHighPowerWord(ch.power) ? highPowerWord(language) : lowPowerWord(language);
    }
    if (doc.settings[SettingKey::normalmode] == 1) doc.codeTable = ProfessionalCodeTable(language);
    RESET_TEXT(doc);
}

bool frequencyCellClicked(Codeplug& doc, int slot, CodeDirection direction) {
    if (direction == CodeDirection::Rx && doc.plan[slot].rxfreq.size() != kCompleteLength) {
        return false;
    }
    RESET_TEXT(doc);
    return true;
}

bool pickCode(Codeplug& doc, int slot, CodeDirection direction, int position) {
    ChannelRecord& ch = doc.plan[slot];
    (direction == CodeDirection::Rx ? ch.rxctc : ch.txctc) = codeText(doc.codeTable, position);
    RESET_TEXT(doc);
    return doc.settings[SettingKey::normalmode] == 1 &&
           position == kProfessionalCustomTonePosition;
}
