#include "doctor/usb_chips.h"

#include <iterator>

namespace {

struct KnownId {
    const char* vendor;
    const char* product;
    UsbChip::Family family;
    bool counterfeitProne;
};

const KnownId kKnownIds[] = {
    {"1a86", "7523", UsbChip::Ch340, false},
    {"1a86", "5523", UsbChip::Ch340, false},
    {"1a86", "7522", UsbChip::Ch340, false},
    {"1a86", "55d4", UsbChip::Ch340, false},
    {"10c4", "ea60", UsbChip::Cp210x, false},
    {"10c4", "ea70", UsbChip::Cp210x, false},
    {"10c4", "ea71", UsbChip::Cp210x, false},
    {"0403", "6001", UsbChip::Ftdi, false},
    {"0403", "6010", UsbChip::Ftdi, false},
    {"0403", "6011", UsbChip::Ftdi, false},
    {"0403", "6014", UsbChip::Ftdi, false},
    {"0403", "6015", UsbChip::Ftdi, false},
    // The original PL2303 ID: nearly every copy of the chip answers to it.
    {"067b", "2303", UsbChip::Pl2303, true},
    {"067b", "23a3", UsbChip::Pl2303, false},
    {"067b", "23b3", UsbChip::Pl2303, false},
    {"067b", "23c3", UsbChip::Pl2303, false},
    {"067b", "23d3", UsbChip::Pl2303, false},
    {"067b", "23e3", UsbChip::Pl2303, false},
    {"067b", "23f3", UsbChip::Pl2303, false},
};

struct KnownDriver {
    const char* name;
    UsbChip::Family family;
};

const KnownDriver kKnownDrivers[] = {
    {"ch341", UsbChip::Ch340},   {"ch341-uart", UsbChip::Ch340}, {"cp210x", UsbChip::Cp210x},
    {"ftdi_sio", UsbChip::Ftdi}, {"pl2303", UsbChip::Pl2303},    {"cdc_acm", UsbChip::CdcAcm},
};

}  // namespace

UsbChip identifyChip(const QString& vendor, const QString& product, const QString& driver) {
    for (const KnownId& id : kKnownIds) {
        if (vendor.compare(QLatin1String(id.vendor), Qt::CaseInsensitive) == 0 &&
            product.compare(QLatin1String(id.product), Qt::CaseInsensitive) == 0) {
            return UsbChip{id.family, id.counterfeitProne};
        }
    }
    for (const KnownDriver& known : kKnownDrivers) {
        if (driver == QLatin1String(known.name)) return UsbChip{known.family, false};
    }
    return {};
}

QString familyName(UsbChip::Family family) {
    static const char* const kNames[] = {"", "CH340", "CP210x", "FTDI", "PL2303", "CDC ACM"};
    return QString::fromLatin1(kNames[family]);
}
