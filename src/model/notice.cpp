#include "model/notice.h"

#include "l10n/error_texts.h"

Notice noticeOf(const Error& error) {
    // A frequency gets the radio program's own warning, as the frequency checks give it.
    const bool frequency =
        error.field == QLatin1String("rxfreq") || error.field == QLatin1String("txfreq");
    Notice notice{l10n::MessageId::MsgChannelFreqError, error.channel};
    if (!frequency) notice.error = error;
    return notice;
}

QString noticeText(const Notice& notice, UiLanguage language) {
    if (notice.error) return l10n::describeError(*notice.error, language);
    if (notice.channel > 0) return l10n::channelMessage(notice.message, notice.channel, language);
    return l10n::message(notice.message, language);
}
