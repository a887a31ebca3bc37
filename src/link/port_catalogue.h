#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <optional>

// The program speaks of ports by number (COM1, COM2, …). On Windows COMn is the device COMn.
// Elsewhere the serial devices found on the machine become COM1, COM2, … in a stable order
// (ttyS before ttyUSB, ttyUSB2 before ttyUSB10), and the [ports] section of config.ini can pin
// a number to a device (com3=/dev/ttyUSB0); a pinned device takes no other number.
class PortCatalogue {
public:
    PortCatalogue() = default;
    PortCatalogue(const QStringList& devices, const QMap<int, QString>& pinned = {});

    // The catalogue of this machine's serial devices.
    static PortCatalogue fromSystem(const QMap<int, QString>& pinned = {});
    // Orders device paths the way the catalogue numbers them.
    static QStringList stableOrder(QStringList devices);

    // A device that turned up after the catalogue was made (a cable plugged in): the number it
    // has, or the lowest free one. The numbers of the other devices stay as they were.
    int add(const QString& device);

    // Empty when no device has that number.
    QString deviceFor(int number) const;
    std::optional<int> numberOf(const QString& device) const;
    const QMap<int, QString>& entries() const { return byNumber_; }

private:
    QMap<int, QString> byNumber_;
    bool windowsNames_ = false;
};

// What the user typed for a port: "COM5" (any case), the word "sim", or a device path.
struct PortArgument {
    enum Kind { Number, Simulator, Device } kind = Device;
    int number = 0;
    QString device;

    static std::optional<PortArgument> parse(const QString& text);
};
