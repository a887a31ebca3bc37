#include "model/notice.h"

QString noticeText(const Notice& notice, UiLanguage language) {
    if (notice.channel > 0) return l10n::channelMessage(notice.message, notice.channel, language);
    return l10n::message(notice.message, language);
}
