#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>
#include <QStringList>

// radiosim run as a separate program on a pseudo-terminal, for tests that drive the
// command line against it; stopped with the test.
class RadiosimTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        static int argc = 1;
        static char name[] = "e2e_test";
        static char* argv[] = {name, nullptr};
        if (!QCoreApplication::instance()) new QCoreApplication(argc, argv);
    }

    void TearDown() override { stopRadio(); }

    // Starts radiosim with `options` and returns the device it listens on.
    QString startRadio(const QStringList& options = {}) {
        sim_.start(QStringLiteral(RADIOSIM_PATH), options);
        EXPECT_TRUE(sim_.waitForStarted(5000));
        while (!sim_.canReadLine() && sim_.waitForReadyRead(5000)) {
        }
        return QString::fromLocal8Bit(sim_.readLine()).trimmed();
    }

    void stopRadio() {
        if (sim_.state() != QProcess::NotRunning) {
            sim_.terminate();
            sim_.waitForFinished(5000);
        }
    }

    QProcess sim_;
};
