#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

// Everything the cable doctor knows about the machine comes through here: the sysfs tree,
// /proc, /etc/group and /etc/passwd, lock files, udev's rules and database, and the device
// nodes themselves. Paths are the system's own ("/sys/class/tty"); an implementation may serve
// them from somewhere else, which is how the tests describe a machine in a temporary folder.
class SystemFacts {
public:
    struct Node {
        unsigned mode = 0;  // permission bits only (0660)
        unsigned uid = 0;
        unsigned gid = 0;
    };

    virtual ~SystemFacts() = default;

    // Empty for a file that is missing or cannot be read.
    virtual QByteArray readFile(const QString& path) const = 0;
    virtual bool exists(const QString& path) const = 0;
    // Names in a folder, sorted; empty when it cannot be listed.
    virtual QStringList listDir(const QString& path) const = 0;
    // The text of a symbolic link as it stands; empty when `path` is none.
    virtual QString readLink(const QString& path) const = 0;
    // `path` with every link resolved; empty when it leads nowhere.
    virtual QString canonicalPath(const QString& path) const = 0;
    virtual std::optional<Node> node(const QString& path) const = 0;
    // Whether this process may open `path` for reading and writing.
    virtual bool canReadWrite(const QString& path) const = 0;
};

// The facts served from a folder that stands for "/": the machine itself when it is "/", a
// description of one under a temporary folder in tests. Outside the real root, whether a
// device may be opened is worked out from its mode and owner and from the identity in
// /proc/self/status, since the test process's own rights say nothing about the user described.
class RootedSystemFacts : public SystemFacts {
public:
    explicit RootedSystemFacts(QString root = QStringLiteral("/"));

    QByteArray readFile(const QString& path) const override;
    bool exists(const QString& path) const override;
    QStringList listDir(const QString& path) const override;
    QString readLink(const QString& path) const override;
    QString canonicalPath(const QString& path) const override;
    std::optional<Node> node(const QString& path) const override;
    bool canReadWrite(const QString& path) const override;

private:
    QString hostPath(const QString& path) const;

    QString root_;  // without a trailing slash; empty for the real root
};

// Who runs the program: the identity of this process as /proc/self/status gives it, with the
// names from /etc/passwd and /etc/group.
struct UserIdentity {
    unsigned uid = 0;
    QString name;            // "uid 1000" when /etc/passwd does not know it
    QList<unsigned> groups;  // the primary and supplementary groups this session holds
};

UserIdentity currentUser(const SystemFacts& facts);
// The gid of a group by name, and the name of a gid ("gid 20" when unknown).
std::optional<unsigned> groupId(const SystemFacts& facts, const QString& name);
QString groupName(const SystemFacts& facts, unsigned gid);
// Whether /etc/group lists `user` as a member of `group` (or it is the user's primary group in
// /etc/passwd): true after usermod even before the user logs in again.
bool groupListsUser(const SystemFacts& facts, const QString& group, const QString& user);
// Whether a rights check on `node` lets `user` read and write it.
bool modeAllows(const SystemFacts::Node& node, const UserIdentity& user);
