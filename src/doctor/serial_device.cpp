#include "doctor/serial_device.h"

#include <QRegularExpression>

namespace {

const char* const kRuleFolders[] = {"/usr/lib/udev/rules.d", "/lib/udev/rules.d"};
const char* const kLocalRules = "/etc/udev/rules.d";
const char* const kOwnRule = "60-radioprog.rules";

QString text(const SystemFacts& facts, const QString& path) {
    return QString::fromUtf8(facts.readFile(path)).trimmed();
}

QString baseName(const QString& path) {
    return path.section(QLatin1Char('/'), -1);
}

bool anyExists(const SystemFacts& facts, std::initializer_list<const char*> paths) {
    for (const char* path : paths) {
        if (facts.exists(QLatin1String(path))) return true;
    }
    return false;
}

// A rule masked by a file of the same name in /etc that is empty or leads to /dev/null.
bool masked(const SystemFacts& facts, const QString& ruleName) {
    const QString local = QStringLiteral("%1/%2").arg(QLatin1String(kLocalRules), ruleName);
    if (!facts.exists(local)) return false;
    return facts.readLink(local) == QLatin1String("/dev/null") || facts.readFile(local).isEmpty();
}

// Whether a udev rule names this vendor and product, as ENV{PRODUCT}=="1a86/7523/*" or with
// the two ATTRS on one line.
bool ruleClaims(const QByteArray& rule, const QString& vendor, const QString& product) {
    auto bare = [](const QString& hex) { return QString::number(hex.toUInt(nullptr, 16), 16); };
    const QString productKey = QStringLiteral("%1/%2/").arg(bare(vendor), bare(product));
    for (const QString& line : QString::fromUtf8(rule).toLower().split(QLatin1Char('\n'))) {
        if (line.trimmed().startsWith(QLatin1Char('#'))) continue;
        if (line.contains(productKey)) return true;
        if (line.contains(QStringLiteral("\"%1\"").arg(vendor.toLower())) &&
            line.contains(QStringLiteral("\"%1\"").arg(product.toLower()))) {
            return true;
        }
    }
    return false;
}

void readUsbFacts(const SystemFacts& facts, const QString& ttyName, SerialDeviceReport& report) {
    const QString deviceLink = QStringLiteral("/sys/class/tty/%1/device").arg(ttyName);
    report.driver = baseName(facts.readLink(deviceLink + QStringLiteral("/driver")));
    QString dir = facts.canonicalPath(deviceLink);
    while (dir.startsWith(QLatin1String("/sys/devices/"))) {
        if (facts.exists(dir + QStringLiteral("/idVendor"))) {
            report.vendorId = text(facts, dir + QStringLiteral("/idVendor"));
            report.productId = text(facts, dir + QStringLiteral("/idProduct"));
            report.manufacturer = text(facts, dir + QStringLiteral("/manufacturer"));
            report.product = text(facts, dir + QStringLiteral("/product"));
            break;
        }
        dir = dir.section(QLatin1Char('/'), 0, -2);
    }
    report.chip = identifyChip(report.vendorId, report.productId, report.driver);
}

SerialDeviceReport::Access accessOf(const SystemFacts& facts, const SerialDeviceReport& report,
                                    const UserIdentity& user) {
    using Access = SerialDeviceReport::Access;
    const std::optional<SystemFacts::Node> node = facts.node(report.path);
    if (!node) return Access::Missing;
    if (facts.canReadWrite(report.path)) return Access::Granted;
    const bool groupMayUse = ((node->mode >> 3) & 06) == 06;
    if (node->uid == user.uid || !groupMayUse || user.groups.contains(node->gid)) {
        return Access::ModeTooTight;
    }
    return groupListsUser(facts, report.group, user.name) ? Access::NeedsRelogin
                                                          : Access::NotInGroup;
}

}  // namespace

QStringList serialDevicePaths(const SystemFacts& facts) {
    QStringList paths;
    static const QRegularExpression builtIn(QStringLiteral("^ttyS\\d+$"));
    for (const QString& name : facts.listDir(QStringLiteral("/sys/class/tty"))) {
        const QString base = QStringLiteral("/sys/class/tty/") + name;
        if (!facts.exists(base + QStringLiteral("/device"))) continue;
        if (builtIn.match(name).hasMatch() && text(facts, base + QStringLiteral("/type")) == "0") {
            continue;
        }
        paths << QStringLiteral("/dev/") + name;
    }
    return paths;
}

HelperServices HelperServices::of(const SystemFacts& facts, const QList<ProcessInfo>& processes) {
    HelperServices helpers;
    helpers.brlttyInstalled =
        anyExists(facts, {"/usr/bin/brltty", "/bin/brltty", "/usr/sbin/brltty"});
    helpers.brlttyRunning = isRunning(processes, QStringLiteral("brltty"));
    helpers.modemManagerInstalled =
        anyExists(facts, {"/usr/sbin/ModemManager", "/sbin/ModemManager"});
    helpers.modemManagerRunning = isRunning(processes, QStringLiteral("ModemManager"));
    QStringList seen;
    for (const char* folder : kRuleFolders) {
        for (const QString& name : facts.listDir(QLatin1String(folder))) {
            const QString path = QStringLiteral("%1/%2").arg(QLatin1String(folder), name);
            if (name == QLatin1String(kOwnRule) && helpers.udevRule.isEmpty()) {
                helpers.udevRule = path;
            }
            if (!name.contains(QLatin1String("brltty")) || seen.contains(name)) continue;
            seen << name;  // /lib is often /usr/lib: one rule, listed once
            if (!masked(facts, name)) helpers.brlttyRules << path;
        }
    }
    const QString local =
        QStringLiteral("%1/%2").arg(QLatin1String(kLocalRules), QLatin1String(kOwnRule));
    if (facts.exists(local)) helpers.udevRule = local;
    return helpers;
}

SerialDeviceReport describeDevice(const SystemFacts& facts, const QString& path,
                                  const UserIdentity& user, const QList<ProcessInfo>& processes,
                                  const HelperServices& helpers) {
    SerialDeviceReport report;
    report.path = path;
    const QString name = baseName(path);
    const QString byIdFolder = QStringLiteral("/dev/serial/by-id");
    for (const QString& link : facts.listDir(byIdFolder)) {
        if (baseName(facts.readLink(byIdFolder + QLatin1Char('/') + link)) == name) {
            report.byId = byIdFolder + QLatin1Char('/') + link;
            break;
        }
    }
    readUsbFacts(facts, name, report);
    if (const std::optional<SystemFacts::Node> node = facts.node(path)) {
        report.group = groupName(facts, node->gid);
        report.mode = node->mode;
    }
    report.access = accessOf(facts, report, user);
    report.holders = portHolders(facts, processes, path);

    if (report.isUsb()) {
        if (helpers.brlttyInstalled || helpers.brlttyRunning) {
            for (const QString& rule : helpers.brlttyRules) {
                if (ruleClaims(facts.readFile(rule), report.vendorId, report.productId)) {
                    report.brlttyMayGrab = true;
                }
            }
        }
        const QString numbers = text(facts, QStringLiteral("/sys/class/tty/%1/dev").arg(name));
        const QByteArray udevData = facts.readFile(QStringLiteral("/run/udev/data/c") + numbers);
        report.modemManagerMayProbe =
            (helpers.modemManagerInstalled || helpers.modemManagerRunning) &&
            !udevData.contains("E:ID_MM_DEVICE_IGNORE=1");
    }
    return report;
}
