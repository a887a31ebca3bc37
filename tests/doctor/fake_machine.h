#pragma once

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "doctor/system_facts.h"

// A machine described under a temporary folder: sysfs, /dev, /proc, /etc and udev's files, as
// the cable doctor reads them. The user is "alice", whose rights come from the mode bits of the
// device nodes; the group "dialout" is the group the test's files get.
class FakeMachine {
public:
    static constexpr unsigned kUid = 4321;

    FakeMachine() : dialoutGid_(getegid()) { setUser(true, true); }

    QString root() const { return dir_.path(); }
    RootedSystemFacts facts() const { return RootedSystemFacts(root()); }

    void write(const QString& path, const QByteArray& content) {
        QDir().mkpath(QFileInfo(root() + path).path());
        QFile file(root() + path);
        file.open(QIODevice::WriteOnly | QIODevice::Truncate);
        file.write(content);
    }
    void link(const QString& path, const QString& target) {
        QDir().mkpath(QFileInfo(root() + path).path());
        QFile::link(target, root() + path);
    }
    void mkdir(const QString& path) { QDir().mkpath(root() + path); }

    // `inGroupFile`: /etc/group lists alice in dialout; `inSession`: this login has the group.
    void setUser(bool inGroupFile, bool inSession) {
        const QByteArray uid = QByteArray::number(kUid);
        const QByteArray gid = QByteArray::number(dialoutGid_);
        write("/proc/self/status", "Name:\tdoctor\nUid:\t" + uid + "\t" + uid + "\t" + uid + "\t" +
                                       uid + "\nGid:\t" + uid + "\t" + uid + "\t" + uid + "\t" +
                                       uid + "\nGroups:\t" + (inSession ? gid + " " : "") + "27\n");
        write("/etc/passwd", "root:x:0:0::/root:/bin/sh\nalice:x:" + uid + ":" + uid +
                                 "::/home/alice:/bin/bash\n");
        write("/etc/group", "dialout:x:" + gid + ":" + (inGroupFile ? "bob,alice" : "bob") +
                                "\nsudo:x:27:alice\nalice:x:" + uid + ":\n");
    }

    // A USB serial adapter as ttyUSB<n>, its node in /dev with `mode`, and its by-id name.
    void addUsbSerial(const QString& name, const char* vendor, const char* product,
                      const char* driver, unsigned mode = 0660, int minor = 0) {
        const QString usb = QStringLiteral("/sys/devices/pci0000:00/usb1/1-%1").arg(minor + 1);
        write(usb + "/idVendor", QByteArray(vendor) + "\n");
        write(usb + "/idProduct", QByteArray(product) + "\n");
        write(usb + "/manufacturer", "Maker\n");
        write(usb + "/product", "USB Serial\n");
        const QString port = usb + QStringLiteral("/1-%1:1.0/%2").arg(minor + 1).arg(name);
        mkdir(port);
        link(port + "/driver",
             QStringLiteral("../../../../../../bus/usb-serial/drivers/") + driver);
        link("/sys/class/tty/" + name + "/device", root() + port);
        write("/sys/class/tty/" + name + "/dev", QByteArray("188:") + QByteArray::number(minor));
        addNode(name, mode);
        link("/dev/serial/by-id/usb-Maker_USB_Serial_" + name + "-if00-port0", "../../" + name);
    }
    void addNode(const QString& name, unsigned mode) {
        write("/dev/" + name, {});
        QFile(root() + "/dev/" + name).setPermissions(permissionsOf(mode));
    }
    void addProcess(int pid, const QByteArray& command, const QString& openDevice = {}) {
        write(QStringLiteral("/proc/%1/comm").arg(pid), command + "\n");
        mkdir(QStringLiteral("/proc/%1/fd").arg(pid));
        if (!openDevice.isEmpty()) link(QStringLiteral("/proc/%1/fd/3").arg(pid), openDevice);
    }

private:
    static QFile::Permissions permissionsOf(unsigned mode) {
        QFile::Permissions permissions;
        const QFile::Permission bits[] = {QFile::ExeOther, QFile::WriteOther, QFile::ReadOther,
                                          QFile::ExeGroup, QFile::WriteGroup, QFile::ReadGroup,
                                          QFile::ExeOwner, QFile::WriteOwner, QFile::ReadOwner};
        for (int bit = 0; bit < 9; ++bit) {
            if (mode & (1u << bit)) permissions |= bits[bit];
        }
        return permissions;
    }

    QTemporaryDir dir_;
    unsigned dialoutGid_;
};
