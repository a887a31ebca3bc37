#include "doctor/processes.h"

#include <QCoreApplication>
#include <algorithm>

namespace {

const char* const kLockFolders[] = {"/var/lock", "/run/lock"};

}  // namespace

QList<ProcessInfo> runningProcesses(const SystemFacts& facts) {
    const qint64 self = QCoreApplication::applicationPid();
    QList<ProcessInfo> result;
    for (const QString& entry : facts.listDir(QStringLiteral("/proc"))) {
        bool numeric = false;
        const int pid = entry.toInt(&numeric);
        if (!numeric || pid == self) continue;
        ProcessInfo process;
        process.pid = pid;
        const QString base = QStringLiteral("/proc/") + entry;
        process.command =
            QString::fromUtf8(facts.readFile(base + QStringLiteral("/comm"))).trimmed();
        for (const QString& fd : facts.listDir(base + QStringLiteral("/fd"))) {
            const QString target = facts.readLink(base + QStringLiteral("/fd/") + fd);
            if (target.startsWith(QLatin1String("/dev/"))) process.files << target;
        }
        result << process;
    }
    return result;
}

bool isRunning(const QList<ProcessInfo>& processes, const QString& command) {
    for (const ProcessInfo& process : processes) {
        if (process.command == command) return true;
    }
    return false;
}

QList<PortHolder> portHolders(const SystemFacts& facts, const QList<ProcessInfo>& processes,
                              const QString& device) {
    QList<PortHolder> holders;
    auto commandOf = [&](int pid) {
        for (const ProcessInfo& process : processes) {
            if (process.pid == pid)
                return process.command.isEmpty() ? QStringLiteral("?") : process.command;
        }
        return QString();
    };
    const QString name = device.section(QLatin1Char('/'), -1);
    for (const char* folder : kLockFolders) {
        const QString lock = QStringLiteral("%1/LCK..%2").arg(QLatin1String(folder), name);
        if (!facts.exists(lock)) continue;
        const int pid = QString::fromLatin1(facts.readFile(lock)).trimmed().toInt();
        holders << PortHolder{pid, commandOf(pid), lock};
        break;  // /var/lock is usually a link to /run/lock: one lock file, found once
    }
    for (const ProcessInfo& process : processes) {
        if (!process.files.contains(device)) continue;
        const bool known = std::any_of(holders.cbegin(), holders.cend(),
                                       [&](const PortHolder& h) { return h.pid == process.pid; });
        if (!known) holders << PortHolder{process.pid, commandOf(process.pid), {}};
    }
    return holders;
}
