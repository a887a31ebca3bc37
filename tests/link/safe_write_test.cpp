#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "link/record_check.h"
#include "link/write_session.h"
#include "model/code_tables.h"
#include "persistence/codeplug_file.h"
#include "session_fixture.h"

namespace {

constexpr qint64 kLongEnough = 200'000;

// A write with a backup folder of its own, on the simulated radio.
class SafeWriteWorld : public SessionFixture {
public:
    SafeWriteWorld() { doc = validPlan(); }

    SafeWriteOptions options(bool backup = true, bool verify = true) const {
        return {backup, verify, dir.filePath("backups"), "/dev/ttyUSB0"};
    }
    SessionOutcome runWrite(const SafeWriteOptions& safety) {
        WriteSession write(transport, doc, prompts, view, safety);
        QObject::connect(&write, &WriteSession::backupSaved,
                         [this](const QString& path, const QList<int>& unread) {
                             backupPath = path;
                             unreadInBackup = unread;
                         });
        EXPECT_TRUE(write.start());
        clock.advanceUntil([&] { return !write.isRunning(); }, kLongEnough);
        EXPECT_FALSE(write.isRunning());
        clock.advance(kLongEnough);  // nothing more goes out
        return write.outcome();
    }
    // The commands the radio received, one letter each.
    QString commands() const {
        QString letters;
        for (const auto& request : requests) letters += QLatin1Char(request.second[0]);
        return letters;
    }
    QStringList backups() const { return QDir(dir.filePath("backups")).entryList(QDir::Files); }
    void spoilStoredByte(int channel, int offset) {
        SimFaults faults;
        faults.corruptChannel = channel;
        faults.corruptOffset = offset;
        radio.setFaults(faults);
    }

    QTemporaryDir dir;
    Codeplug doc;
    QString backupPath;
    QList<int> unreadInBackup;
};

class SafeWriteTest : public ::testing::Test, public SafeWriteWorld {};

const QString kRead = QStringLiteral("S") + QString(25, QLatin1Char('R'));
const QString kWrite = QStringLiteral("X") + QString(25, QLatin1Char('W')) + QStringLiteral("E");

TEST_F(SafeWriteTest, BacksUpWritesAndVerifiesAndTheBackupHoldsTheOldPlan) {
    EXPECT_EQ(runWrite(options()), SessionOutcome::Succeeded);
    EXPECT_EQ(commands(), kRead + kWrite + kRead);
    EXPECT_EQ(prompts.transcript(),
              QStringList({"status: Writing……", "status: Write OK", "box: Write OK | Write OK"}));
    EXPECT_EQ(view.progressWhenHidden, 3 * 156);

    ASSERT_EQ(backups().size(), 1);
    EXPECT_TRUE(backups()[0].endsWith("_dev_ttyUSB0.qzv"));
    EXPECT_EQ(backupPath, QDir(dir.filePath("backups")).filePath(backups()[0]));
    EXPECT_TRUE(unreadInBackup.isEmpty());
    // What the radio held before: its factory plan, not the plan written.
    Codeplug backup = validPlan();
    ASSERT_TRUE(openCodeplugFile(backup, backupPath));
    EXPECT_EQ(backup.chtot, "16");
    for (int slot = 0; slot < kSlotCount; ++slot) {
        EXPECT_EQ(backup.plan[slot].rxfreq, formatFrequencyValue(446.00625 + slot * 0.0125))
            << slot;
    }
    EXPECT_EQ(backup.plan[1].rxctc, "67.0");
    EXPECT_EQ(backup.plan[1].band, "wide");
    // And the radio now holds the plan written.
    EXPECT_EQ(radio.settingsRecord().mid(2, 1), QByteArray(1, 22));
}

TEST_F(SafeWriteTest, EachChoiceOfBackupAndVerifyIsHonoured) {
    const struct {
        bool backup, verify;
        QString commands;
    } cases[] = {
        {true, true, kRead + kWrite + kRead},
        {false, true, kWrite + kRead},
        {true, false, kRead + kWrite},
        {false, false, kWrite},
    };
    for (const auto& c : cases) {
        SafeWriteWorld world;
        // A radio that spoils what it stores: only the verify notices.
        world.spoilStoredByte(2, 0);
        const SessionOutcome outcome = world.runWrite(world.options(c.backup, c.verify));
        EXPECT_EQ(world.commands(), c.commands) << c.backup << c.verify;
        EXPECT_EQ(world.backups().size(), c.backup ? 1 : 0) << c.backup << c.verify;
        EXPECT_EQ(outcome, c.verify ? SessionOutcome::Failed : SessionOutcome::Succeeded)
            << c.backup << c.verify;
    }
}

TEST_F(SafeWriteTest, AFailedBackupMeansNothingIsWritten) {
    const struct {
        const char* name;
        int silentRequest;  // 0: every request
        bool folderBlocked;
        QString reason;
    } cases[] = {
        {"silent radio", 0, false, "the radio did not answer the request for its settings"},
        {"silent at channel 4", 5, false, "the radio did not answer the request for channel 4"},
        {"folder cannot be made", -1, true, "Nothing was written: the backup could not be saved"},
    };
    for (const auto& c : cases) {
        SafeWriteWorld world;
        SimFaults faults;
        faults.silentAlways = c.silentRequest == 0;
        if (c.silentRequest > 0) faults.silent = {c.silentRequest};
        world.radio.setFaults(faults);
        SafeWriteOptions safety = world.options();
        if (c.folderBlocked) {
            QFile blocker(world.dir.filePath("file"));
            ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
            safety.backupFolder = world.dir.filePath("file/backups");
        }
        const SessionOutcome outcome = world.runWrite(safety);
        EXPECT_NE(outcome, SessionOutcome::Succeeded) << c.name;
        EXPECT_FALSE(world.commands().contains('X')) << c.name;
        EXPECT_FALSE(world.commands().contains('W')) << c.name;
        const QStringList shown = world.prompts.transcript();
        ASSERT_EQ(shown.size(), 3) << shown.join('\n').toStdString();
        EXPECT_TRUE(shown[2].contains(c.reason)) << shown[2].toStdString();
        EXPECT_EQ(shown[1], "status: Write ERROR") << c.name;
        EXPECT_TRUE(world.view.buttonsEnabled) << c.name;
        EXPECT_TRUE(world.backups().isEmpty()) << c.name;
    }
}

TEST_F(SafeWriteTest, ARadioThatSpoilsAStoredByteFailsTheVerifyNamingChannelAndField) {
    const struct {
        int channel, offset;
        const char* line;
    } cases[] = {
        {3, 1, "channel 3, Rx Frequency: written 440.07500, found 440.08125"},
        {10, 5, "channel 10, Tx Code: written 67.0, found OFF"},
        {25, 6, "channel 25, Rx step: written 6.25 kHz, found 5 kHz"},
        {7, 8, "channel 7, Rx custom tone or DCS: written 67.0, found 67.1"},
    };
    for (const auto& c : cases) {
        SafeWriteWorld world;
        world.spoilStoredByte(c.channel, c.offset);
        EXPECT_EQ(world.runWrite(world.options(false, true)), SessionOutcome::Failed);
        const QStringList shown = world.prompts.transcript();
        ASSERT_EQ(shown.size(), 3);
        EXPECT_EQ(shown[1], "status: Write ERROR");
        EXPECT_TRUE(shown[2].startsWith("box: Verify after write failed"))
            << shown[2].toStdString();
        EXPECT_TRUE(shown[2].contains(QLatin1String(c.line))) << shown[2].toStdString();
    }
}

TEST_F(SafeWriteTest, WhatTheRecordCannotCarryIsNoDifference) {
    // Custom DCS codes come back with an inversion flag the write could not send.
    ASSERT_TRUE(switchMode(doc, 1));
    doc.plan[2].rxctc = kCdcssText;
    doc.plan[2].rxcdc = "1234567";
    doc.plan[8].txctc = kCdcssText;
    doc.plan[8].rxctc = "I023";  // its flag is dropped beside a custom DCS code
    doc.plan[4].txctc = "I023";
    RESET_TEXT(doc);
    EXPECT_EQ(runWrite(options(false, true)), SessionOutcome::Succeeded)
        << prompts.transcript().join('\n').toStdString();
}

TEST(RecordCheck, SettingsDifferencesAreNamedByTheirSelector) {
    const Codeplug doc = SessionFixture::validPlan();
    RadioRecords written, found;
    for (int slot = 0; slot < kSlotCount; ++slot) {
        written.channels[static_cast<size_t>(slot)] = found.channels[static_cast<size_t>(slot)] =
            QByteArray(11, '\0');
    }
    written.settings = QByteArray::fromHex("530116");  // normal mode, band 1, 22 channels
    found.settings = QByteArray::fromHex("130310");    // professional, band 3, 16 channels
    const QStringList lines =
        differenceLines(compareRecords(doc, written, found), UiLanguage::English, 2);
    // Named as the settings panel labels them (some labels are Chinese in both languages).
    EXPECT_EQ(lines, QStringList({"settings, 模式选择: written 2:Professional, found 1:Normal",
                                  "settings, 频段: written 1:300--400M, found 3:100--200M",
                                  "… and 1 more differences"}));
}

}  // namespace
