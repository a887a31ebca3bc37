#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "l10n/language.h"

// What the write says about the backup it takes before and the check it makes after: the
// radio's programming saved to a file first, and read back and compared with what was sent.
namespace l10n {

enum class SafeWriteText {
    BackupMenuItem,        // Setup menu, checkable
    VerifyMenuItem,        // Setup menu, checkable
    BackupSaved,           // %1 path
    BackupChannelsUnread,  // %1 list of channels
    BackupReadFailed,      // %1 why
    BackupNotSaved,        // %1 why
    NoAnswerSettings,
    NoAnswerChannel,     // %1 channel
    PortLost,            // %1 the system's words
    VerifyReadFailed,    // %1 why
    VerifyDifferent,     // heading of the differences
    ChannelDifference,   // %1 channel, %2 field, %3 written, %4 found
    SettingsDifference,  // %1 field, %2 written, %3 found
    MoreDifferences,     // %1 count
    // Fields of the records that have no caption of their own in the main window.
    RxStep,
    TxStep,
    RxCustomValue,
    TxCustomValue,
    UnusedFlagBits,
    FixedSettingBits,
    RecordLength,
    WholeRecord,
};

QString safeWriteText(SafeWriteText id, UiLanguage language);

// The line naming the channels (1-based) a backup had to leave empty; empty when there are none.
QString backupChannelsUnread(const QList<int>& channels, UiLanguage language);

}  // namespace l10n
