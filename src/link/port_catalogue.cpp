#include "link/port_catalogue.h"

#include <QRegularExpression>
#include <QSerialPortInfo>
#include <algorithm>

namespace {

// "/dev/ttyUSB10" -> ("/dev/ttyUSB", 10); a path without trailing digits gets -1.
std::pair<QString, int> splitTrailingNumber(const QString& path) {
    int digits = 0;
    while (digits < path.size() && path.at(path.size() - 1 - digits).isDigit()) ++digits;
    if (digits == 0) return {path, -1};
    return {path.left(path.size() - digits), path.right(digits).toInt()};
}

}  // namespace

PortCatalogue::PortCatalogue(const QStringList& devices, const QMap<int, QString>& pinned)
    : byNumber_(pinned) {
    const QStringList pinnedDevices = pinned.values();
    int next = 1;
    for (const QString& device : devices) {
        if (pinnedDevices.contains(device)) continue;
        while (byNumber_.contains(next)) ++next;
        byNumber_.insert(next++, device);
    }
}

PortCatalogue PortCatalogue::fromSystem(const QMap<int, QString>& pinned) {
#ifdef Q_OS_WIN
    PortCatalogue catalogue({}, pinned);
    catalogue.windowsNames_ = true;
    return catalogue;
#else
    QStringList devices;
    for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts()) {
        devices << info.systemLocation();
    }
    return PortCatalogue(stableOrder(devices), pinned);
#endif
}

QStringList PortCatalogue::stableOrder(QStringList devices) {
    std::sort(devices.begin(), devices.end(), [](const QString& a, const QString& b) {
        const auto [stemA, numberA] = splitTrailingNumber(a);
        const auto [stemB, numberB] = splitTrailingNumber(b);
        if (stemA != stemB) return stemA < stemB;
        return numberA < numberB;
    });
    return devices;
}

int PortCatalogue::add(const QString& device) {
    if (const std::optional<int> known = numberOf(device)) return *known;
    int number = 1;
    while (byNumber_.contains(number)) ++number;
    byNumber_.insert(number, device);
    return number;
}

QString PortCatalogue::deviceFor(int number) const {
    if (byNumber_.contains(number)) return byNumber_.value(number);
    if (windowsNames_ && number > 0) return QStringLiteral("COM%1").arg(number);
    return {};
}

std::optional<int> PortCatalogue::numberOf(const QString& device) const {
    for (auto it = byNumber_.cbegin(); it != byNumber_.cend(); ++it) {
        if (it.value() == device) return it.key();
    }
    static const QRegularExpression comName(QStringLiteral("^COM(\\d+)$"));
    const QRegularExpressionMatch match = comName.match(device);
    if (windowsNames_ && match.hasMatch()) return match.captured(1).toInt();
    return std::nullopt;
}

std::optional<PortArgument> PortArgument::parse(const QString& text) {
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty()) return std::nullopt;
    if (trimmed.compare(QLatin1String("sim"), Qt::CaseInsensitive) == 0) {
        return PortArgument{Simulator, 0, {}};
    }
    static const QRegularExpression comName(QStringLiteral("^COM(\\d{1,5})$"),
                                            QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = comName.match(trimmed);
    if (match.hasMatch()) return PortArgument{Number, match.captured(1).toInt(), {}};
    // Bare words that are neither are more likely typing errors than device names.
    if (!trimmed.contains(QLatin1Char('/')) && !trimmed.contains(QLatin1Char('\\'))) {
        return std::nullopt;
    }
    return PortArgument{Device, 0, trimmed};
}
