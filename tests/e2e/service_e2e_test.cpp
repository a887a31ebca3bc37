// `radioprog-cli service` against radiosim on a real pseudo-terminal: for each panel, what a
// write sends is what a later read returns, and the read's lines go back into a write as they
// are.

#include "service_cli_fixture.h"

namespace {

TEST_F(ServiceEndToEnd, RegistersWrittenAreReadBack) {
    const CliRun write =
        service({"registers", "write-rfic", "addr1=3a", "data1=1f00", "addr2=5", "data2=FFFF"});
    EXPECT_EQ(write.exitCode, 0) << write.err.toStdString();
    EXPECT_TRUE(write.err.contains("message [RF Reg]: REG 写 OK!!")) << write.err.toStdString();
    EXPECT_TRUE(requestsSeen().contains("63 05 00 02 3a 1f 00 c3"));

    const CliRun read =
        service({"registers", "read-rfic", "addr1=5", "addr2=3A", "-o", path("regs.txt")});
    EXPECT_EQ(read.exitCode, 0) << read.err.toStdString();
    EXPECT_EQ(read.out, QStringList({"addr1=5", "data1=FFFF", "addr2=3A", "data2=1F00"}));

    // The file saved goes into the EEPROM table and comes back from it.
    EXPECT_EQ(service({"registers", "save-eeprom", path("regs.txt")}).exitCode, 0);
    const CliRun eeprom = service({"registers", "read-eeprom"});
    EXPECT_EQ(eeprom.exitCode, 0) << eeprom.err.toStdString();
    EXPECT_EQ(eeprom.out.mid(0, 6), QStringList({"addr1=5", "data1=FFFF", "addr2=3A", "data2=1F00",
                                                 "addr3=0", "data3=0"}));
}

TEST_F(ServiceEndToEnd, CalibrationWrittenIsReadBackAndReadLinesGoBackUnchanged) {
    const CliRun write =
        service({"calibration", "write", "rssi-narrow=100", "power-high=128", "noise-wide=0"});
    EXPECT_EQ(write.exitCode, 0) << write.err.toStdString();
    EXPECT_TRUE(write.err.contains("message [Adjust]: OK")) << write.err.toStdString();

    const CliRun read = service({"calibration", "read"});
    EXPECT_EQ(read.exitCode, 0) << read.err.toStdString();
    EXPECT_EQ(read.out, QStringList({"rssi-narrow=100", "rssi-wide=40", "power-high=128",
                                     "power-low=35", "noise-narrow=53", "noise-wide=0"}));
    EXPECT_EQ(service(QStringList{"calibration", "write"} + read.out).exitCode, 0);

    const CliRun version = service({"calibration", "version"});
    EXPECT_EQ(version.out, QStringList({"SIM RADIO V1.0", "FW 19.0.13"}));
}

TEST_F(ServiceEndToEnd, TheBandTableWrittenIsReadBack) {
    const CliRun before = service({"band", "read", "-o", path("band.txt")});
    ASSERT_EQ(before.exitCode, 0) << before.err.toStdString();
    ASSERT_EQ(before.out.size(), 45);
    EXPECT_EQ(before.out[0], "tx1=1.7");

    QStringList edited = before.out;
    edited[2] = "tx3=2.5";
    edited[44] = "rssi15=200";
    const CliRun write = service(QStringList{"band", "write"} + edited);
    EXPECT_EQ(write.exitCode, 0) << write.err.toStdString();
    EXPECT_TRUE(write.err.contains("message [Band info]: write ok!!")) << write.err.toStdString();
    EXPECT_EQ(service({"band", "read"}).out, edited);

    // The file saved before the change puts the table back.
    EXPECT_EQ(service({"band", "write", path("band.txt")}).exitCode, 0);
    EXPECT_EQ(service({"band", "read"}).out, before.out);
}

TEST_F(ServiceEndToEnd, TheCrystalTrimWrittenIsReadBack) {
    const CliRun write = service({"crystal", "write", "-3"});
    EXPECT_EQ(write.exitCode, 0) << write.err.toStdString();
    const CliRun read = service({"crystal", "read"});
    EXPECT_EQ(read.out, QStringList{"crystal=-3"});
    EXPECT_EQ(service(QStringList{"crystal", "write"} + read.out).exitCode, 0);
    EXPECT_TRUE(requestsSeen().contains("6e 04 00 00 00 fd 6f"));
}

TEST_F(ServiceEndToEnd, AValueThatDoesNotFitIsRefusedBeforeAnythingIsSent) {
    const CliRun refused = service({"crystal", "write", "200"});
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_TRUE(
        refused.err.contains("crystal correction: \"200\" is not a number from -127 to 127"))
        << refused.err.toStdString();
    const CliRun voltage = service({"band", "write", "tx1=1.7", "rx20=3.4"});
    EXPECT_EQ(voltage.exitCode, 1);
    EXPECT_TRUE(voltage.err.contains("RX voltage of row 20: \"3.4\" is not a number from 0 to 3.3"))
        << voltage.err.toStdString();
    const CliRun unknown = service({"band", "write", "tx21=1"});
    EXPECT_EQ(unknown.exitCode, 2);
    EXPECT_TRUE(unknown.err.contains("unknown name: tx21")) << unknown.err.toStdString();
    EXPECT_TRUE(requestsSeen().isEmpty());
}

TEST_F(ServiceEndToEnd, ASilentRadioGetsThreeAttemptsAndOneMessage) {
    startTracedRadio({"--silent", "all"});
    const CliRun read = service({"crystal", "read"});
    EXPECT_EQ(read.exitCode, 1);
    EXPECT_TRUE(read.out.isEmpty());
    EXPECT_EQ(read.err.count("message"), 1) << read.err.toStdString();
    EXPECT_TRUE(read.err.contains("message [晶体修正]: 晶体修正 读 出错!!"))
        << read.err.toStdString();
    EXPECT_EQ(requestsSeen(), QStringList(3, "6d 03 00 00 05 75"));
}

}  // namespace
