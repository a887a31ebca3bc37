#include "persistence/backup_folder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "test_support.h"

namespace {

const QDateTime kNow(QDate(2026, 11, 23), QTime(17, 40, 5));

TEST(BackupFolder, NamesTellTheTimeAndAPortNameEveryFileSystemTakes) {
    const struct {
        const char* port;
        const char* name;
    } cases[] = {
        {"COM3", "2026-11-23_17-40-05_COM3.qzv"},
        {"/dev/ttyUSB0", "2026-11-23_17-40-05_dev_ttyUSB0.qzv"},
        {"a:b*c?d\\\\e|f\"g<h>", "2026-11-23_17-40-05_a_b_c_d_e_f_g_h.qzv"},
        {"端口 7.", "2026-11-23_17-40-05_7.qzv"},
        {"", "2026-11-23_17-40-05_port.qzv"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(backupFileName(kNow, QString::fromUtf8(c.port)), QLatin1String(c.name)) << c.port;
    }
}

TEST(BackupFolder, SavesTheCodeplugWithoutOverwritingAnEarlierBackup) {
    QTemporaryDir dir;
    const QString folder = dir.filePath("data/backups");
    Codeplug doc = startupDoc(UiLanguage::English);
    doc.plan[4].rxfreq = "446.00625";
    const Result<QString> first = saveBackup(doc, folder, kNow, "COM3");
    const Result<QString> second = saveBackup(doc, folder, kNow, "COM3");
    ASSERT_TRUE(first && second);
    EXPECT_TRUE(first->endsWith("/2026-11-23_17-40-05_COM3.qzv"));
    EXPECT_TRUE(second->endsWith("/2026-11-23_17-40-05_COM3-2.qzv"));

    Codeplug loaded = startupDoc(UiLanguage::English);
    ASSERT_TRUE(openCodeplugFile(loaded, *first));
    expectSameCodeplug(doc, loaded);

    // A file where the folder should be: the reason comes back, nothing is written.
    QFile blocker(dir.filePath("blocked"));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    EXPECT_FALSE(saveBackup(doc, dir.filePath("blocked/backups"), kNow, "COM3"));
}

TEST(BackupFolder, PruningRemovesCodeplugFilesOlderThanAYear) {
    QTemporaryDir dir;
    const struct {
        const char* name;
        int ageDays;
        bool kept;
    } files[] = {
        {"fresh.qzv", 0, true},       {"eleven-months.qzv", 330, true},
        {"a-year.qzv", 364, true},    {"past-a-year.qzv", 366, false},
        {"ancient.qzv", 3000, false}, {"notes.txt", 3000, true},  // not ours
    };
    for (const auto& f : files) {
        QFile file(dir.filePath(f.name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("x");
        ASSERT_TRUE(file.flush());  // or closing it would touch it again
        ASSERT_TRUE(file.setFileTime(kNow.addDays(-f.ageDays), QFileDevice::FileModificationTime));
    }
    EXPECT_EQ(pruneBackups(dir.path(), kNow), 2);
    for (const auto& f : files) EXPECT_EQ(QFile::exists(dir.filePath(f.name)), f.kept) << f.name;
}

}  // namespace
