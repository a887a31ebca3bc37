// radioprog-cli doctor --port against radiosim, and against a pseudo-terminal nobody answers.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <QProcess>
#include <QTemporaryDir>
#include <cstdlib>

#include "radiosim_process.h"

namespace {

class DoctorEndToEnd : public RadiosimTest {
protected:
    struct Run {
        int status = -1;
        QString out;
    };

    Run doctor(const QString& port) {
        QProcess process;
        process.start(QStringLiteral(CLI_PATH),
                      {"--config", dir_.path(), "--lang", "en", "doctor", "--port", port});
        EXPECT_TRUE(process.waitForFinished(30'000));
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput())};
    }

    QTemporaryDir dir_;
};

TEST_F(DoctorEndToEnd, ReportsTheRadioThatAnswers) {
    const QString device = startRadio();
    const Run run = doctor(device);
    EXPECT_EQ(run.status, 0) << qPrintable(run.out);
    EXPECT_TRUE(run.out.contains("Radio test on " + device)) << qPrintable(run.out);
    EXPECT_TRUE(run.out.contains("a radio answered; settings record")) << qPrintable(run.out);
    EXPECT_FALSE(run.out.contains("Likely causes")) << qPrintable(run.out);
    // The pseudo-terminal is named among the devices, as the one tested.
    EXPECT_TRUE(run.out.contains(QStringLiteral("\n%1\n").arg(device))) << qPrintable(run.out);
}

TEST_F(DoctorEndToEnd, ASilentLineGetsTheLikelyCauses) {
    // A pseudo-terminal held open by the test and never answered.
    const int master = posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_GE(master, 0);
    ASSERT_EQ(grantpt(master), 0);
    ASSERT_EQ(unlockpt(master), 0);
    const QString device = QString::fromLatin1(ptsname(master));
    const Run run = doctor(device);
    ::close(master);
    EXPECT_EQ(run.status, 1) << qPrintable(run.out);
    EXPECT_TRUE(run.out.contains("no answer; not a byte came back.")) << qPrintable(run.out);
    const int off = run.out.indexOf("The radio is off");
    const int plug = run.out.indexOf("The cable's plug is not all the way");
    EXPECT_TRUE(off > 0 && plug > off) << qPrintable(run.out);
}

}  // namespace
