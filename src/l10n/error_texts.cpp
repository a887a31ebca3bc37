#include "l10n/error_texts.h"

#include <QDir>

#include "l10n/program_texts.h"
#include "l10n/texts.h"

namespace l10n {
namespace {

QString fileReason(ErrorKind kind, UiLanguage language) {
    switch (kind) {
        case ErrorKind::CannotOpen:
            return programText(ProgramText::FileCannotOpen, language);
        case ErrorKind::TooLarge:
            return programText(ProgramText::FileTooLarge, language);
        case ErrorKind::NotACodeplug:
            return programText(ProgramText::FileNotCodeplug, language);
        case ErrorKind::UnreadLayout:
            return programText(ProgramText::FileOld212Lines, language);
        case ErrorKind::NotARegularFile:
            return programText(ProgramText::FileNotRegular, language);
        case ErrorKind::TooLargeToKeep:
            return programText(ProgramText::FileTooLargeToKeep, language);
        case ErrorKind::CannotWrite:
        case ErrorKind::ValueDoesNotFit:
            break;
    }
    return QString();
}

// A channel value: the frequency message of the radio program's table, or this program's words
// for the custom tone and DCS values, after the channel prefix and number.
QString channelValueText(const Error& error, UiLanguage language) {
    const QString channel =
        message(MessageId::MsgChannelPrefix, language) + QString::number(error.channel);
    if (error.field.endsWith(QLatin1String("ctcfreq"))) {
        return channel + programText(ProgramText::ChannelCustomToneError, language);
    }
    if (error.field.endsWith(QLatin1String("cdc"))) {
        return channel + programText(ProgramText::ChannelCustomDcsError, language);
    }
    if (error.field.endsWith(QLatin1String("ctc"))) {
        return channel + programText(ProgramText::ChannelCodeNotInList, language).arg(error.detail);
    }
    return channel + message(MessageId::MsgChannelFreqError, language);
}

}  // namespace

QString describeError(const Error& error, UiLanguage language) {
    const QString path = QDir::toNativeSeparators(error.path);
    switch (error.kind) {
        case ErrorKind::ValueDoesNotFit:
            return channelValueText(error, language);
        case ErrorKind::CannotWrite:
            return programText(ProgramText::FileCannotWrite, language)
                .arg(path, error.detail.isEmpty() ? programText(ProgramText::FileNoReason, language)
                                                  : error.detail);
        default:
            break;
    }
    QString text = path + QLatin1String(": ") + fileReason(error.kind, language);
    if (!error.detail.isEmpty()) text += QLatin1String(" (") + error.detail + QLatin1Char(')');
    return text;
}

QString configWarning(const Error& error, UiLanguage language) {
    return programText(ProgramText::ConfigUnreadable, language).arg(describeError(error, language));
}

}  // namespace l10n
