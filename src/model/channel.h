#pragma once

#include <QString>
#include <array>

#include "l10n/language.h"

constexpr int kSlotCount = 25;

// One channel slot, as text exactly as shown and saved.
struct ChannelRecord {
    QString rxfreq;
    QString txfreq;
    QString rxctc;
    QString txctc;
    QString band;   // "窄带"/"narrow" or "宽带"/"wide", in the language that set it
    QString power;  // "大"/"high" or "小"/"low"
    // Custom-code memories: used when the code is the custom tone or "CDCSS".
    QString rxctcfreq = QStringLiteral("67.0");
    QString txctcfreq = QStringLiteral("67.0");
    QString rxcdc = QStringLiteral("D023");
    QString txcdc = QStringLiteral("D023");
    // Tool-tips of the two code cells, written by RESET_TEXT.
    QString rxCodeToolTip;
    QString txCodeToolTip;

    bool operator==(const ChannelRecord& other) const;
};

using ChannelPlan = std::array<ChannelRecord, kSlotCount>;

// Both languages' words are understood wherever a bandwidth or power word is interpreted.
bool isHighPowerWord(const QString& word);   // "大" or "high": drawn red
bool isNarrowWord(const QString& word);      // "窄带" or "narrow"
bool isWideWord(const QString& word);        // "宽带" or "wide"

QString narrowWord(UiLanguage language);
QString wideWord(UiLanguage language);
QString highPowerWord(UiLanguage language);
QString lowPowerWord(UiLanguage language);

// The colour a power cell is drawn in (0x0000FF as the old program wrote it: 255 = red).
constexpr int kPowerColourHigh = 255;
constexpr int kPowerColourLow = 0;
inline int powerColour(const QString& word) {
    return isHighPowerWord(word) ? kPowerColourHigh : kPowerColourLow;
}
