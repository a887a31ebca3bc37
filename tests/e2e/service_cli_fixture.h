#pragma once

// `radioprog-cli service` run against radiosim on a real pseudo-terminal, with radiosim's
// trace of the requests it received.

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "radiosim_process.h"

struct CliRun {
    int exitCode = -1;
    QStringList out;  // lines
    QString err;
};

class ServiceEndToEnd : public RadiosimTest {
protected:
    void SetUp() override { startTracedRadio(); }

    void startTracedRadio(const QStringList& faults = {}) {
        stopRadio();
        device_ = startRadio(QStringList{"--pace", "--trace", path("trace.txt")} + faults);
        ASSERT_TRUE(device_.startsWith("/dev/")) << device_.toStdString();
    }

    // radioprog-cli service --port <radiosim> PANEL ACTION ARGS...
    CliRun service(const QStringList& arguments) {
        QProcess process;
        process.start(QStringLiteral(CLI_PATH), QStringList{"--config", dir_.path(), "--lang", "en",
                                                            "service", "--port", device_} +
                                                    arguments);
        EXPECT_TRUE(process.waitForFinished(60'000)) << arguments.join(' ').toStdString();
        return {process.exitCode(),
                QString::fromUtf8(process.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts),
                QString::fromUtf8(process.readAllStandardError())};
    }

    // radiosim's trace, one frame a line: "SECONDS > REQUEST" or "SECONDS < REPLY  (NOTE)".
    QStringList traceLines() {
        QFile trace(path("trace.txt"));
        EXPECT_TRUE(trace.open(QIODevice::ReadOnly));
        return QString::fromLatin1(trace.readAll()).split('\n', Qt::SkipEmptyParts);
    }
    // Requests radiosim received, as hex, command byte first.
    QStringList requestsSeen() {
        QStringList requests;
        for (const QString& line : traceLines()) {
            const qsizetype mark = line.indexOf(" > ");
            if (mark > 0) requests << line.mid(mark + 3);
        }
        return requests;
    }

    QString path(const char* name) const { return dir_.filePath(QString::fromLatin1(name)); }

    QTemporaryDir dir_;
    QString device_;
};
