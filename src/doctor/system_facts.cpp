#include "doctor/system_facts.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

// One line of a colon-separated file (/etc/group, /etc/passwd) split into its fields.
QList<QStringList> records(const QByteArray& text) {
    QList<QStringList> result;
    for (const QByteArray& line : text.split('\n')) {
        if (line.trimmed().isEmpty() || line.startsWith('#')) continue;
        result << QString::fromUtf8(line).split(QLatin1Char(':'));
    }
    return result;
}

QStringList statusField(const QByteArray& status, const char* key) {
    for (const QByteArray& line : status.split('\n')) {
        if (line.startsWith(key)) {
            return QString::fromLatin1(line.mid(qstrlen(key)))
                .split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
        }
    }
    return {};
}

}  // namespace

RootedSystemFacts::RootedSystemFacts(QString root) : root_(std::move(root)) {
    const QString canonical = QFileInfo(root_).canonicalFilePath();
    if (!canonical.isEmpty()) root_ = canonical;
    while (root_.endsWith(QLatin1Char('/'))) root_.chop(1);
}

QString RootedSystemFacts::hostPath(const QString& path) const {
    return root_ + path;
}

QByteArray RootedSystemFacts::readFile(const QString& path) const {
    QFile file(hostPath(path));
    if (!file.open(QIODevice::ReadOnly)) return {};
    // sysfs and /proc files report no size: read until the end.
    return file.readAll();
}

bool RootedSystemFacts::exists(const QString& path) const {
    const QFileInfo info(hostPath(path));
    return info.exists() || info.isSymLink();
}

QStringList RootedSystemFacts::listDir(const QString& path) const {
    return QDir(hostPath(path))
        .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

QString RootedSystemFacts::readLink(const QString& path) const {
    const QByteArray host = QFile::encodeName(hostPath(path));
    char target[4096];
    const ssize_t length = ::readlink(host.constData(), target, sizeof target - 1);
    if (length <= 0) return {};
    return QFile::decodeName(QByteArray(target, static_cast<int>(length)));
}

QString RootedSystemFacts::canonicalPath(const QString& path) const {
    const QString resolved = QFileInfo(hostPath(path)).canonicalFilePath();
    if (resolved.isEmpty() || root_.isEmpty()) return resolved;
    if (!resolved.startsWith(root_ + QLatin1Char('/'))) return {};
    return resolved.mid(root_.size());
}

std::optional<SystemFacts::Node> RootedSystemFacts::node(const QString& path) const {
    struct stat info {};
    if (::stat(QFile::encodeName(hostPath(path)).constData(), &info) != 0) return std::nullopt;
    return Node{static_cast<unsigned>(info.st_mode & 07777), info.st_uid, info.st_gid};
}

bool RootedSystemFacts::canReadWrite(const QString& path) const {
    if (root_.isEmpty()) {
        return ::access(QFile::encodeName(path).constData(), R_OK | W_OK) == 0;
    }
    const std::optional<Node> found = node(path);
    return found && modeAllows(*found, currentUser(*this));
}

UserIdentity currentUser(const SystemFacts& facts) {
    const QByteArray status = facts.readFile(QStringLiteral("/proc/self/status"));
    UserIdentity user;
    const QStringList uids = statusField(status, "Uid:");
    user.uid = uids.isEmpty() ? ::getuid() : uids.first().toUInt();
    const QStringList gids = statusField(status, "Gid:");
    if (!gids.isEmpty()) user.groups << gids.first().toUInt();
    for (const QString& gid : statusField(status, "Groups:")) {
        if (!user.groups.contains(gid.toUInt())) user.groups << gid.toUInt();
    }
    user.name = QStringLiteral("uid %1").arg(user.uid);
    for (const QStringList& entry : records(facts.readFile(QStringLiteral("/etc/passwd")))) {
        if (entry.size() > 2 && entry.at(2).toUInt() == user.uid) {
            user.name = entry.at(0);
            break;
        }
    }
    return user;
}

std::optional<unsigned> groupId(const SystemFacts& facts, const QString& name) {
    for (const QStringList& entry : records(facts.readFile(QStringLiteral("/etc/group")))) {
        if (entry.size() > 2 && entry.at(0) == name) return entry.at(2).toUInt();
    }
    return std::nullopt;
}

QString groupName(const SystemFacts& facts, unsigned gid) {
    for (const QStringList& entry : records(facts.readFile(QStringLiteral("/etc/group")))) {
        if (entry.size() > 2 && entry.at(2).toUInt() == gid) return entry.at(0);
    }
    return QStringLiteral("gid %1").arg(gid);
}

bool groupListsUser(const SystemFacts& facts, const QString& group, const QString& user) {
    const std::optional<unsigned> gid = groupId(facts, group);
    for (const QStringList& entry : records(facts.readFile(QStringLiteral("/etc/group")))) {
        if (entry.size() > 3 && entry.at(0) == group &&
            entry.at(3).split(QLatin1Char(','), Qt::SkipEmptyParts).contains(user)) {
            return true;
        }
    }
    for (const QStringList& entry : records(facts.readFile(QStringLiteral("/etc/passwd")))) {
        if (entry.size() > 3 && entry.at(0) == user && gid && entry.at(3).toUInt() == *gid) {
            return true;
        }
    }
    return false;
}

bool modeAllows(const SystemFacts::Node& node, const UserIdentity& user) {
    if (user.uid == 0) return true;
    unsigned bits = node.mode & 07;
    if (node.uid == user.uid) {
        bits = (node.mode >> 6) & 07;
    } else if (user.groups.contains(node.gid)) {
        bits = (node.mode >> 3) & 07;
    }
    return (bits & 06) == 06;
}
