#pragma once

#include <QList>
#include <QString>

#include "doctor/system_facts.h"

// The running processes as /proc shows them: their command names and the devices they hold.
struct ProcessInfo {
    int pid = 0;
    QString command;    // /proc/PID/comm
    QStringList files;  // the targets of /proc/PID/fd/*, as far as this user may see them
};

// Every process but this one.
QList<ProcessInfo> runningProcesses(const SystemFacts& facts);
bool isRunning(const QList<ProcessInfo>& processes, const QString& command);

// Who holds a device: a process with it open, or the lock file of one. A lock file whose
// process is gone is stale: it keeps every program that honours it away from the port.
struct PortHolder {
    int pid = 0;
    QString command;   // empty for a stale lock
    QString lockFile;  // empty when found through /proc
    bool stale() const { return command.isEmpty(); }
};

QList<PortHolder> portHolders(const SystemFacts& facts, const QList<ProcessInfo>& processes,
                              const QString& device);
