// What the commands do when the output cannot be written as asked, or the configuration cannot
// be read: they say so, leave what was there, and end with a status that is not 0.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <csignal>

#include "cli_run.h"
#include "persistence/file_access.h"
#include "test_support.h"

namespace {

const QByteArray kOldContent = "[Dealer]\r\nname=East\r\n";

void writeFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    ASSERT_EQ(file.write(bytes), bytes.size());
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

// A disk that is full. As root, a 12 KB tmpfs filled up; otherwise (or when mounting is not
// allowed) a file-size limit on the child, which fails writes the same way a full disk does.
class FullDisk {
public:
    explicit FullDisk(const QString& folder) : folder_(folder) {
        QDir().mkpath(folder);
        if (geteuid() == 0 &&
            QProcess::execute("mount", {"-t", "tmpfs", "-o", "size=12k", "tmpfs", folder}) == 0) {
            mounted_ = true;
        }
    }
    ~FullDisk() {
        if (mounted_) QProcess::execute("umount", {folder_});
    }
    bool mounted() const { return mounted_; }

    // Called once the old file is in place: the rest of the space is taken.
    void fill() {
        if (!mounted_) return;
        QFile filler(folder_ + "/filler");
        if (!filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) return;
        const QByteArray block(512, 'x');
        while (filler.write(block) == block.size()) {
        }
    }

    // What the child needs: nothing on the tmpfs; else writes beyond 1 KB fail (with EFBIG
    // instead of a signal).
    std::function<void()> childSetup() const {
        if (mounted_) return {};
        return [] {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{1024, 1024};
            setrlimit(RLIMIT_FSIZE, &limit);
        };
    }

private:
    QString folder_;
    bool mounted_ = false;
};

class SafeSaveTest : public ::testing::Test {
protected:
    QTemporaryDir dir_;
    QStringList config_{QStringLiteral("--config"), dir_.path(), QStringLiteral("--lang"),
                        QStringLiteral("en")};
};

TEST_F(SafeSaveTest, AFullDiskLeavesTheOldFileAndFails) {
    const struct {
        const char* name;
        QStringList arguments;  // the output path is appended
    } commands[] = {
        {"convert", {"convert", samplePath("v18.qzv")}},
        {"read -o", {"read", "--port", "sim", "-o"}},
    };
    for (const auto& c : commands) {
        SCOPED_TRACE(c.name);
        FullDisk disk(dir_.filePath(QStringLiteral("disk-") + QString::number(c.name[0])));
        const QString out = dir_.filePath(QStringLiteral("disk-") + QString::number(c.name[0])) +
                            QStringLiteral("/plan.qzv");
        writeFile(out, kOldContent);
        disk.fill();
        const CliRun run = cli(config_ + c.arguments + QStringList{out}, disk.childSetup());
        EXPECT_EQ(run.status, 3) << run.err.toStdString();
        EXPECT_TRUE(run.err.contains(QStringLiteral("cannot write ") + out + QStringLiteral(": ")))
            << run.err.toStdString();
        EXPECT_EQ(contentOf(out), kOldContent);
        EXPECT_EQ(QDir(QFileInfo(out).path()).entryList(QDir::Files).size(),
                  disk.mounted() ? 2 : 1);  // no temporary file left behind
    }
}

TEST_F(SafeSaveTest, WhatIsNotARegularFileIsRefusedAndLeftAlone) {
    const QString fifo = dir_.filePath("fifo");
    ASSERT_EQ(mkfifo(fifo.toLocal8Bit().constData(), 0600), 0);
    QStringList targets{fifo};
    const QString device = dir_.filePath("null");
    if (geteuid() == 0 &&
        mknod(device.toLocal8Bit().constData(), S_IFCHR | 0666, makedev(1, 3)) == 0) {
        targets << device;
    }
    for (const QString& target : targets) {
        for (const QStringList& command : {QStringList{"convert", samplePath("v18.qzv"), target},
                                           QStringList{"read", "--port", "sim", "-o", target}}) {
            SCOPED_TRACE((command.first() + " " + target).toStdString());
            const CliRun run = cli(config_ + command);
            EXPECT_EQ(run.status, 3);
            EXPECT_TRUE(run.err.contains(target + QStringLiteral(": not a regular file")))
                << run.err.toStdString();
            const QFileInfo after(target);
            EXPECT_TRUE(after.exists() && !after.isFile());
        }
    }
}

TEST_F(SafeSaveTest, ReadKeepsNoLinesOfAFileItCouldNotOpenAgain) {
    // One file too large to read at all, one that the plan would push over the limit.
    const QString tooLarge = dir_.filePath("large.qzv");
    const QString nearlyFull = dir_.filePath("nearly.qzv");
    const QByteArray note = "; a long note kept by a dealer's tool\r\n";
    writeFile(tooLarge, note.repeated(kMaxFileSize / note.size() + 1));
    writeFile(nearlyFull, note.repeated(kMaxFileSize / note.size() - 10));
    for (const QString& path : {tooLarge, nearlyFull}) {
        SCOPED_TRACE(path.toStdString());
        const QByteArray before = contentOf(path);
        const CliRun run = cli(config_ + QStringList{"read", "--port", "sim", "-o", path});
        EXPECT_EQ(run.status, 3);
        EXPECT_TRUE(run.err.contains(path + QStringLiteral(": too large to keep its other lines")))
            << run.err.toStdString();
        EXPECT_TRUE(contentOf(path) == before);
    }
}

TEST_F(SafeSaveTest, AnUnreadableConfigurationIsNamedOnceAndTheDefaultsApply) {
    ASSERT_TRUE(QDir(dir_.path()).mkdir("config.ini"));  // a folder where the file should be
    const CliRun run = cli(config_ + QStringList{"show"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err.count(QLatin1Char('\n')), 1) << run.err.toStdString();
    EXPECT_TRUE(run.err.contains(QStringLiteral("configuration not read, the defaults apply: ") +
                                 dir_.filePath("config.ini")))
        << run.err.toStdString();
    EXPECT_TRUE(run.out.contains(QLatin1String("Total number of channels: 22")));
}

TEST_F(SafeSaveTest, AChannelCountBelowOneIsHeldToOne) {
    const QString file = dir_.filePath("count.qzv");
    for (const char* count : {"-5", "-1e300"}) {
        writeFile(file, QByteArray("[Config]\r\nchtot=") + count + "\r\n");
        const CliRun run = cli(config_ + QStringList{"show", file});
        EXPECT_EQ(run.status, 0) << count;
        EXPECT_TRUE(run.out.contains(QLatin1String("Total number of channels: 1\n"))) << count;
        EXPECT_TRUE(run.out.contains(QLatin1String(" 2 -    "))) << count;
    }
}

}  // namespace
