// The command line against radiosim on a real pseudo-terminal, with real timers.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <csignal>
#include <cstring>

#include "model/code_tables.h"
#include "model/editing.h"
#include "persistence/codeplug_file.h"
#include "radiosim_process.h"

namespace {

struct CliRun {
    int exitCode = -1;
    QString out;
    QString err;
};

class LinkEndToEnd : public RadiosimTest {
protected:
    // The backups the writes take go to the test's own data folder (the command line and the
    // programs it starts inherit it).
    LinkEndToEnd() { qputenv("XDG_DATA_HOME", QFile::encodeName(path("data"))); }
    ~LinkEndToEnd() override { qunsetenv("XDG_DATA_HOME"); }

    CliRun cli(const QStringList& arguments) {
        QProcess process;
        process.start(QStringLiteral(CLI_PATH),
                      QStringList{"--config", dir_.path(), "--lang", "en"} + arguments);
        EXPECT_TRUE(process.waitForFinished(60'000)) << arguments.join(' ').toStdString();
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    QString path(const char* name) const { return dir_.filePath(QString::fromLatin1(name)); }

    // A plan unlike the one the simulated radio starts with, in professional mode.
    static Codeplug samplePlan() {
        StartupConfig config;
        config.language = UiLanguage::English;
        Codeplug doc = buildStartupCodeplug(config);
        switchMode(doc, 1);
        for (int slot = 0; slot < kSlotCount; ++slot) {
            doc.plan[slot].rxfreq = formatFrequencyValue(440.025 + slot * 0.025);
            doc.plan[slot].txfreq = formatFrequencyValue(445.0 + slot * 0.00625);
            doc.plan[slot].rxctc = codeText(doc.codeTable, slot * 10);
            doc.plan[slot].txctc = codeText(doc.codeTable, 265 - slot * 7);
        }
        doc.plan[3].rxctc = kCdcssText;
        doc.plan[3].rxcdc = "4660";
        // A record with a custom DCS code has no room for the other code's inversion flag.
        doc.plan[3].txctc = "D023";
        doc.plan[4].rxctc = "Custom";
        doc.plan[4].rxctcfreq = "123.4";
        doc.plan[5].band = "wide";
        doc.plan[6].power = "low";
        doc.chtot = "14";
        doc.settings[SettingKey::txen] = 1;
        doc.settings[SettingKey::voicebrc] = 1;
        doc.settings[SettingKey::tot] = 1;
        RESET_TEXT(doc);
        return doc;
    }

    QTemporaryDir dir_;
};

QStringList lines(const QString& text) {
    return text.split('\n', Qt::SkipEmptyParts);
}

TEST_F(LinkEndToEnd, WhatIsWrittenIsReadBack) {
    ASSERT_TRUE(WriteSaveFile(samplePlan(), path("plan.qzv")).ok());
    const QString device = startRadio();
    ASSERT_TRUE(device.startsWith("/dev/")) << device.toStdString();

    const CliRun write = cli({"write", "--port", device, path("plan.qzv")});
    EXPECT_EQ(write.exitCode, 0) << write.err.toStdString();
    QStringList said = lines(write.err).filter(QRegularExpression("^(status|message)"));
    EXPECT_EQ(said, QStringList({"status: COM " + device, "status: Writing……", "status: Write OK",
                                 "message: Write OK", "status: COM Open"}));

    const CliRun read = cli({"read", "--port", device, "-o", path("back.qzv")});
    EXPECT_EQ(read.exitCode, 0) << read.err.toStdString();
    EXPECT_TRUE(lines(read.err).contains("message: Read OK"));

    const CliRun shown = cli({"show", path("plan.qzv")});
    ASSERT_EQ(shown.exitCode, 0);
    EXPECT_EQ(lines(read.out).join('\n'), lines(shown.out).mid(1).join('\n'))
        << "the plan printed after the read";
    const CliRun shownBack = cli({"show", path("back.qzv")});
    EXPECT_EQ(shownBack.out, shown.out);
}

TEST_F(LinkEndToEnd, ASilentRadioFailsTheReadAfterThreeAttempts) {
    const QString device = startRadio({"--silent", "all"});
    const CliRun read = cli({"read", "--port", device});
    EXPECT_EQ(read.exitCode, 1);
    EXPECT_TRUE(read.out.isEmpty());
    EXPECT_TRUE(lines(read.err).contains("message [NOTE]: Transmission Error，Check Radio"));
}

TEST_F(LinkEndToEnd, AnInterruptCancelsTheReadLikeClosingTheProgressWindow) {
    const QString device = startRadio({"--silent", "all"});
    QProcess read;
    read.setReadChannel(QProcess::StandardError);
    read.start(QStringLiteral(CLI_PATH), {"--lang", "en", "read", "--port", device});
    QByteArray err;
    while (!err.contains("Reading") && read.waitForReadyRead(5000)) {
        err += read.readAllStandardError();
    }
    const qint64 pid = read.processId();
    ASSERT_GT(pid, 0) << "the read ended before it could be interrupted";
    ::kill(static_cast<pid_t>(pid), SIGINT);
    ASSERT_TRUE(read.waitForFinished(10'000));
    EXPECT_EQ(read.exitCode(), 1);
    err += read.readAllStandardError();
    EXPECT_TRUE(lines(QString::fromUtf8(err)).contains("message: Read Error")) << err.toStdString();
}

TEST_F(LinkEndToEnd, AHangUpEndsTheWriteWithThePortClosed) {
    ASSERT_TRUE(WriteSaveFile(samplePlan(), path("plan.qzv")).ok());
    const QString device = startRadio({"--hang-up", "4", "--pace"});
    const CliRun write = cli({"write", "--no-backup", "--port", device, path("plan.qzv")});
    EXPECT_EQ(write.exitCode, 1);
    const QStringList said = lines(write.err);
    EXPECT_TRUE(said.contains("message [NOTE]: Transmission Error，Check Radio"));
    EXPECT_EQ(said.last(), "status: COM Closed");
}

TEST_F(LinkEndToEnd, AWriteLeavesATraceOfEveryFrame) {
    ASSERT_TRUE(WriteSaveFile(samplePlan(), path("plan.qzv")).ok());
    const QString device = startRadio({"--garbage", "3"});
    const CliRun write =
        cli({"write", "--port", device, "--trace", path("t.log"), path("plan.qzv")});
    EXPECT_EQ(write.exitCode, 0) << write.err.toStdString();
    QFile file(path("t.log"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QStringList trace = lines(QString::fromUtf8(file.readAll()));
    EXPECT_EQ(trace.filter("not a frame").size(), 1) << "the garbage before the third reply";

    // The backup read, the write up to its closing "E", the verify read.
    const QRegularExpression request("^\\d+\\.\\d{3} > ");
    // indexOf() wants the whole line to match.
    const auto settingsWrite = trace.indexOf(QRegularExpression(".*  X settings"));
    const auto end = trace.indexOf(QRegularExpression(".* 45 00 45  E end"));
    ASSERT_GT(settingsWrite, 0);
    ASSERT_GT(end, settingsWrite);
    const QStringList backup = trace.mid(0, settingsWrite);
    const QStringList written = trace.mid(settingsWrite, end - settingsWrite);
    const QStringList verify = trace.mid(end + 1);
    for (const QStringList* read : {&backup, &verify}) {
        EXPECT_EQ(read->filter(request).size(), 26);
        EXPECT_EQ(read->filter(QRegularExpression(" > .*  R ch \\d+$")).size(), 25);
        EXPECT_EQ(
            read->filter(QRegularExpression(" < .*reply (4|11|13) bytes, checksum ok$")).size(),
            26);
    }
    EXPECT_EQ(written.filter(request).size(), 26);
    EXPECT_EQ(written.filter(QRegularExpression(" < .*reply 0 bytes, checksum ok$")).size(), 26);
    EXPECT_TRUE(verify.first().contains(" > 53 03 00 00 04 5a")) << verify.first().toStdString();
}

TEST_F(LinkEndToEnd, ABackupComesBeforeAndAVerifyAfterTheWrite) {
    ASSERT_TRUE(WriteSaveFile(samplePlan(), path("plan.qzv")).ok());
    const QString device = startRadio({"--corrupt-stored", "5:1"});
    const CliRun write = cli({"write", "--port", device, path("plan.qzv")});
    EXPECT_EQ(write.exitCode, 1) << write.err.toStdString();
    EXPECT_TRUE(write.err.contains("channel 5, Rx Frequency: written 440.12500, found"))
        << write.err.toStdString();
    // The path printed is where the radio's old plan now is.
    const QRegularExpressionMatch saved =
        QRegularExpression("backed up to (.*\\.qzv)\n").match(write.out);
    ASSERT_TRUE(saved.hasMatch()) << write.out.toStdString();
    EXPECT_TRUE(saved.captured(1).startsWith(path("data") + "/radioprog/backups/"));
    const CliRun shown = cli({"show", saved.captured(1)});
    EXPECT_EQ(shown.exitCode, 0);
    EXPECT_TRUE(shown.out.contains("446.00625"));

    // Without the verify the spoilt byte goes unnoticed; without the backup none is taken.
    const CliRun unchecked =
        cli({"write", "--no-backup", "--no-verify", "--port", device, path("plan.qzv")});
    EXPECT_EQ(unchecked.exitCode, 0) << unchecked.err.toStdString();
    EXPECT_FALSE(unchecked.out.contains("backed up"));
}

TEST_F(LinkEndToEnd, ALateReplyToTheOpeningShiftsNoChannel) {
    const QString device = startRadio({"--latency", "1100"});
    const CliRun read = cli({"read", "--port", device});
    EXPECT_EQ(read.exitCode, 0) << read.err.toStdString();
    const QStringList plan = lines(read.out);
    // The radio's first and last channels, where they belong.
    EXPECT_TRUE(plan.filter(QRegularExpression("^ *1 .*446\\.00625")).size() == 1)
        << read.out.toStdString();
    EXPECT_TRUE(plan.filter(QRegularExpression("^ *25 .*446\\.30625")).size() == 1)
        << read.out.toStdString();
}

TEST_F(LinkEndToEnd, ALineOfRandomBytesIsNeitherReadNorWritten) {
    ASSERT_TRUE(WriteSaveFile(samplePlan(), path("plan.qzv")).ok());
    const QString device = startRadio({"--noise", "--pace"});
    for (const QStringList& command :
         {QStringList{"read", "--port", device, "-o", path("read.qzv")},
          QStringList{"write", "--port", device, path("plan.qzv")}}) {
        QElapsedTimer took;
        took.start();
        const CliRun run = cli(command);
        EXPECT_EQ(run.exitCode, 1) << command.join(' ').toStdString();
        EXPECT_FALSE(run.err.contains(" OK")) << run.err.toStdString();
        // Three opening attempts, each at most its time-out and one frame longer.
        EXPECT_LT(took.elapsed(), 3 * (5000 + 200) + 2000) << command.join(' ').toStdString();
    }
    EXPECT_FALSE(QFile::exists(path("read.qzv")));
}

TEST_F(LinkEndToEnd, ARadioThatHangsUpRightAfterTheClosingFrameWasWritten) {
    ASSERT_TRUE(WriteSaveFile(samplePlan(), path("plan.qzv")).ok());
    const QString device = startRadio({"--hang-up", "27", "--pace"});
    const CliRun write =
        cli({"write", "--no-backup", "--no-verify", "--port", device, path("plan.qzv")});
    EXPECT_EQ(write.exitCode, 0) << write.err.toStdString();
    EXPECT_TRUE(lines(write.err).contains("message: Write OK")) << write.err.toStdString();
}

TEST_F(LinkEndToEnd, TerminationAndHangUpCancelAWriteAndSaySo) {
    ASSERT_TRUE(WriteSaveFile(samplePlan(), path("plan.qzv")).ok());
    for (int signalNumber : {SIGTERM, SIGHUP}) {
        const QString device = startRadio({"--silent", "all"});
        QProcess write;
        write.setReadChannel(QProcess::StandardError);
        write.start(QStringLiteral(CLI_PATH), {"--config", dir_.path(), "--lang", "en", "write",
                                               "--port", device, path("plan.qzv")});
        QByteArray err;
        while (!err.contains("Writing") && write.waitForReadyRead(5000)) {
            err += write.readAllStandardError();
        }
        ASSERT_GT(write.processId(), 0) << "the write ended before it could be stopped";
        ::kill(static_cast<pid_t>(write.processId()), signalNumber);
        ASSERT_TRUE(write.waitForFinished(10'000));
        EXPECT_EQ(write.exitStatus(), QProcess::NormalExit) << signalNumber;
        EXPECT_EQ(write.exitCode(), 1) << signalNumber;
        err += write.readAllStandardError();
        const QStringList said = lines(QString::fromUtf8(err));
        EXPECT_TRUE(said.contains(QStringLiteral("radioprog-cli: stopped by %1")
                                      .arg(QString::fromLocal8Bit(::strsignal(signalNumber)))))
            << err.toStdString();
        EXPECT_TRUE(said.contains("message [NOTE]: Write Error，Please Check"))
            << err.toStdString();
        stopRadio();
    }
}

TEST_F(LinkEndToEnd, BothProgramsTellTheirVersion) {
    const CliRun cliVersion = cli({"--version"});
    EXPECT_EQ(cliVersion.exitCode, 0);
    EXPECT_TRUE(cliVersion.out.startsWith("radioprog-cli ")) << cliVersion.out.toStdString();
    QProcess sim;
    sim.start(QStringLiteral(RADIOSIM_PATH), {"--version"});
    ASSERT_TRUE(sim.waitForFinished(5000));
    EXPECT_EQ(sim.exitCode(), 0);
    EXPECT_TRUE(sim.readAllStandardOutput().startsWith("radiosim "));
}

TEST_F(LinkEndToEnd, BadUsageAndUnreadableFilesExitWithTwo) {
    EXPECT_EQ(cli({"read", "--port", "COMX"}).exitCode, 2);
    EXPECT_EQ(cli({"read"}).exitCode, 2);
    EXPECT_EQ(cli({"write", "--port", "sim", path("missing.qzv")}).exitCode, 2);
    // A plan that fails the checks is refused before the port is used.
    ASSERT_TRUE(WriteSaveFile(buildStartupCodeplug({}), path("empty.qzv")).ok());
    const CliRun refused = cli({"write", "--port", "sim", path("empty.qzv")});
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_TRUE(refused.err.contains("Num1Channl Frequency Input error"))
        << refused.err.toStdString();
}

TEST_F(LinkEndToEnd, TheInProcessSimulatorServesTheCommandLine) {
    const CliRun read = cli({"read", "--port", "sim"});
    EXPECT_EQ(read.exitCode, 0) << read.err.toStdString();
    EXPECT_TRUE(read.out.contains("446.00625"));
}

}  // namespace
