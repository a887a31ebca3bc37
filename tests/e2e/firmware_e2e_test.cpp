// The firmware command against radiosim's boot loader on a real pseudo-terminal.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include "radiosim_process.h"

namespace {

struct FirmwareRun {
    int exitCode = -1;
    QStringList err;
};

class FirmwareEndToEnd : public RadiosimTest {
protected:
    QString startRadio(const QStringList& options = {}) {
        return RadiosimTest::startRadio(QStringList{"--erase-ms", "50", "--latency", "1"} +
                                        options);
    }

    FirmwareRun firmware(const QStringList& arguments) {
        QProcess process;
        process.start(QStringLiteral(CLI_PATH),
                      QStringList{"--config", dir_.path(), "--lang", "en", "firmware"} + arguments);
        EXPECT_TRUE(process.waitForFinished(120'000));
        return {process.exitCode(),
                QString::fromUtf8(process.readAllStandardError()).split('\n', Qt::SkipEmptyParts)};
    }

    QString path(const char* name) const { return dir_.filePath(QString::fromLatin1(name)); }

    QByteArray writeImage(int size) {
        QByteArray image(size, '\0');
        QRandomGenerator generator(11);
        for (char& byte : image) byte = static_cast<char>(generator.bounded(256));
        QFile file(path("image.bin"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(image);
        return image;
    }

    QTemporaryDir dir_;
};

TEST_F(FirmwareEndToEnd, AWrittenImageReadsBackTheSame) {
    const QByteArray image = writeImage(28672);
    const QString device = startRadio();
    const FirmwareRun write = firmware({"--port", device, "write", path("image.bin")});
    EXPECT_EQ(write.exitCode, 0) << write.err.join('\n').toStdString();
    EXPECT_TRUE(write.err.last().startsWith("Verify OK!!!!")) << write.err.join('\n').toStdString();

    const FirmwareRun read =
        firmware({"--port", device, "read", path("back.bin"), "--end", "7FFF"});
    EXPECT_EQ(read.exitCode, 0) << read.err.join('\n').toStdString();
    EXPECT_EQ(read.err.last(), "Read OK!!!!");
    QFile back(path("back.bin"));
    ASSERT_TRUE(back.open(QIODevice::ReadOnly));
    EXPECT_EQ(back.readAll(), image);
}

TEST_F(FirmwareEndToEnd, AVerifyThatDiffersNamesTheAddressAndFails) {
    const QByteArray image = writeImage(1024);
    const QString device = startRadio({"--corrupt-read-block", "2"});
    const FirmwareRun write = firmware({"--port", device, "write", path("image.bin")});
    EXPECT_EQ(write.exitCode, 1);
    ASSERT_FALSE(write.err.isEmpty());
    EXPECT_TRUE(write.err.last().startsWith("Verify ERROR!!!!  address 0x1085: expected"))
        << write.err.join('\n').toStdString();
}

TEST_F(FirmwareEndToEnd, AFailedReadLeavesTheOldFileAlone) {
    QFile old(path("keep.bin"));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old contents");
    old.close();
    const QString device = startRadio({"--silent", "3"});
    const FirmwareRun read =
        firmware({"--port", device, "read", path("keep.bin"), "--end", "10FF"});
    EXPECT_EQ(read.exitCode, 1);
    EXPECT_EQ(read.err.last(), "No Ack!!!!");
    ASSERT_TRUE(old.open(QIODevice::ReadOnly));
    EXPECT_EQ(old.readAll(), "old contents");
}

}  // namespace
