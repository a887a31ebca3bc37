// The production-line commands against radiosim on a pseudo-terminal: numbering a row of
// radios, and the live monitor ending with the radio stopped.

#include <QRegularExpression>
#include <QSet>
#include <QThread>

#include "service_cli_fixture.h"

namespace {

using ProductionEndToEnd = ServiceEndToEnd;

TEST_F(ProductionEndToEnd, EachWriteNumbersTheNextRadioAndTheReadReturnsIt) {
    QString next = "4294967293";
    const QStringList expected = {"next=4294967294", "next=4294967295", "next=0", "next=1",
                                  "next=2"};
    for (const QString& line : expected) {
        // What one write prints goes into the next one unchanged.
        const CliRun write = service({"id", "write", next});
        ASSERT_EQ(write.exitCode, 0) << write.err.toStdString();
        ASSERT_EQ(write.out, QStringList{line});
        next = write.out[0];
    }
    const CliRun read = service({"id", "read"});
    EXPECT_EQ(read.exitCode, 0) << read.err.toStdString();
    EXPECT_EQ(read.out, QStringList{"id=1"});
    EXPECT_EQ(requestsSeen().filter(QRegularExpression("^5a ")).size(), 5);

    // Refused before anything is sent.
    for (const char* bad : {"4294967296", "abc", ""}) {
        const CliRun refused = service({"id", "write", bad});
        EXPECT_EQ(refused.exitCode, 1) << bad;
        EXPECT_TRUE(refused.err.contains("ID error")) << refused.err.toStdString();
    }
    EXPECT_EQ(requestsSeen().filter(QRegularExpression("^5a ")).size(), 5);
}

TEST_F(ProductionEndToEnd, TheMonitorPrintsLiveLinesAndLeavesTheRadioStopped) {
    const CliRun monitor = service({"monitor", "rssi", "--seconds", "2"});
    EXPECT_EQ(monitor.exitCode, 0) << monitor.err.toStdString();
    EXPECT_GE(monitor.out.size(), 7);
    EXPECT_LE(monitor.out.size(), 12);
    const QRegularExpression line(
        R"(^time=\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3} rssi=\d+ snr=\d+ afc=\d+ audio=\d+$)");
    QSet<QString> values;
    for (const QString& printed : monitor.out) {
        EXPECT_TRUE(line.match(printed).hasMatch()) << printed.toStdString();
        values.insert(printed.section(' ', 1));
    }
    EXPECT_GT(values.size(), monitor.out.size() / 2) << "the measurements change";

    // The stop went out last, and nothing came from the radio after it.
    const QStringList trace = traceLines();
    const qsizetype stop = trace.indexOf(QRegularExpression(R"(.* > 55 01 00 56)"));
    ASSERT_GE(stop, 0);
    QThread::msleep(500);
    EXPECT_EQ(traceLines().mid(stop + 1), QStringList());
    EXPECT_EQ(requestsSeen().first(), "55 01 01 57");
}

TEST_F(ProductionEndToEnd, TheDtmfTestsAreAnswered) {
    for (const QStringList& arguments : {QStringList{"test", "start", "dtmf-tx"},
                                         {"test", "start", "dtmf-rx"},
                                         {"test", "stop"}}) {
        const CliRun run = service(arguments);
        EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
        EXPECT_TRUE(run.err.contains("测试模式 写 OK!!")) << run.err.toStdString();
    }
    EXPECT_EQ(requestsSeen(), QStringList({"66 05 00 00 01 00 00 6c", "66 05 00 00 02 00 00 6d",
                                           "66 05 00 00 00 00 00 6b"}));
}

}  // namespace
