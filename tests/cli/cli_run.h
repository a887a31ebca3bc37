#pragma once

#include <QProcess>
#include <QStringList>
#include <functional>

// The command-line program run as a user runs it, with its exit status and both outputs.
struct CliRun {
    int status = -1;
    QString out;
    QString err;
};

// `inChild`, when given, runs in the child between fork and exec (limits, signals).
inline CliRun cli(const QStringList& arguments, std::function<void()> inChild = {}) {
    QProcess process;
    if (inChild) process.setChildProcessModifier(inChild);
    process.start(QStringLiteral(RADIOPROG_CLI), arguments);
    process.waitForFinished(30000);
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}
