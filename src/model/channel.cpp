#include "model/channel.h"

#include "l10n/texts.h"

bool ChannelRecord::operator==(const ChannelRecord& o) const {
    return rxfreq == o.rxfreq && txfreq == o.txfreq && rxctc == o.rxctc && txctc == o.txctc &&
           band == o.band && power == o.power && rxctcfreq == o.rxctcfreq &&
           txctcfreq == o.txctcfreq && rxcdc == o.rxcdc && txcdc == o.txcdc &&
           rxCodeToolTip == o.rxCodeToolTip && txCodeToolTip == o.txCodeToolTip;
}

namespace {

bool isEitherLanguage(const QString& word, int captionIndex) {
    return word == l10n::caption(captionIndex, UiLanguage::Chinese) ||
           word == l10n::caption(captionIndex, UiLanguage::English);
}

}  // namespace

bool isHighPowerWord(const QString& word) { return isEitherLanguage(word, l10n::CapHigh); }
bool isNarrowWord(const QString& word) { return isEitherLanguage(word, l10n::CapNarrow); }
bool isWideWord(const QString& word) { return isEitherLanguage(word, l10n::CapWide); }

QString narrowWord(UiLanguage language) { return l10n::caption(l10n::CapNarrow, language); }
QString wideWord(UiLanguage language) { return l10n::caption(l10n::CapWide, language); }
QString highPowerWord(UiLanguage language) { return l10n::caption(l10n::CapHigh, language); }
QString lowPowerWord(UiLanguage language) { return l10n::caption(l10n::CapLow, language); }
