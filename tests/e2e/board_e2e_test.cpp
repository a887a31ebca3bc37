// `radioprog-cli service` hardware, volume and player against radiosim on a real
// pseudo-terminal: what a write sends is what a later read returns, and the read's lines go
// back into a write as they are.

#include "service_cli_fixture.h"

namespace {

TEST_F(ServiceEndToEnd, HardwareOptionsWrittenAreReadBack) {
    const CliRun write = service({"hardware", "write", "ptt=P2.1", "pkey=2.00"});
    EXPECT_EQ(write.exitCode, 0) << write.err.toStdString();
    EXPECT_TRUE(write.err.contains("message [硬件选择]: 硬件选择 写 OK!!"))
        << write.err.toStdString();
    EXPECT_EQ(requestsSeen(), QStringList{"64 06 00 00 ff 04 02 6d dc"});

    const CliRun read = service({"hardware", "read"});
    EXPECT_EQ(read.exitCode, 0) << read.err.toStdString();
    EXPECT_EQ(read.out, QStringList({"ptt=P2.1", "pkey=2.00"}));

    // One option named: the other is kept as the radio holds it.
    EXPECT_EQ(service({"hardware", "write", "pkey=1.20"}).exitCode, 0);
    EXPECT_EQ(service({"hardware", "read"}).out, QStringList({"ptt=P2.1", "pkey=1.20"}));
    EXPECT_EQ(service(QStringList{"hardware", "write"} + read.out).exitCode, 0);
    EXPECT_EQ(service({"hardware", "read"}).out, read.out);
}

TEST_F(ServiceEndToEnd, TheVolumeTablesWrittenAreReadBack) {
    const CliRun before = service({"volume", "read"});
    ASSERT_EQ(before.exitCode, 0) << before.err.toStdString();
    ASSERT_EQ(before.out.size(), 10);
    EXPECT_EQ(before.out.first(), "mic=12");

    const CliRun write = service({"volume", "write", "mic=31", "vol8=40", "pmic=1"});
    EXPECT_EQ(write.exitCode, 0) << write.err.toStdString();
    EXPECT_TRUE(write.err.contains("message [Adjust]: OK")) << write.err.toStdString();
    QStringList expected = before.out;
    expected[0] = "mic=31";
    expected[8] = "vol8=40";
    expected[9] = "pmic=1";
    EXPECT_EQ(service({"volume", "read"}).out, expected);
    EXPECT_EQ(service(QStringList{"volume", "write"} + before.out).exitCode, 0);
    EXPECT_EQ(service({"volume", "read"}).out, before.out);

    const CliRun player = service({"player", "write", "vol1=3", "vol2=7", "vol3=11", "vol4=15",
                                   "vol5=19", "vol6=23", "vol7=27", "vol8=31"});
    EXPECT_EQ(player.exitCode, 0) << player.err.toStdString();
    EXPECT_TRUE(player.err.contains("message [Mp3]: Mp3 写 OK!!")) << player.err.toStdString();
    EXPECT_TRUE(requestsSeen().last().endsWith("1b 1f fd")) << requestsSeen().last().toStdString();
    EXPECT_EQ(service({"player", "read"}).out,
              QStringList({"vol1=3", "vol2=7", "vol3=11", "vol4=15", "vol5=19", "vol6=23",
                           "vol7=27", "vol8=31"}));
}

TEST_F(ServiceEndToEnd, BoardValuesThatDoNotFitAreRefusedBeforeAnythingIsSent) {
    const struct {
        QStringList arguments;
        int exitCode;
        const char* message;
    } cases[] = {
        {{"volume", "write", "vol3=256"}, 1, "Vol03: \"256\" is not a number from 0 to 255"},
        {{"player", "write", "vol1=-1"}, 1, "Vol1: \"-1\" is not a number from 0 to 255"},
        {{"hardware", "write", "ptt=P2.2"}, 1, "PTT PIN: \"P2.2\" is not one of P2.4, P2.1"},
        {{"hardware", "write", "pkey=2.05"}, 1, "Pkey ad door: \"2.05\" is not one of 2.40"},
        {{"player", "write", "mic=3"}, 2, "unknown name: mic"},
        {{"volume", "write", "mic"}, 2, "expected NAME=VALUE, got: mic"},
    };
    for (const auto& c : cases) {
        const CliRun run = service(c.arguments);
        EXPECT_EQ(run.exitCode, c.exitCode) << c.message;
        EXPECT_TRUE(run.err.contains(QString::fromUtf8(c.message))) << run.err.toStdString();
    }
    EXPECT_TRUE(requestsSeen().isEmpty());
}

}  // namespace
