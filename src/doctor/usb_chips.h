#pragma once

#include <QString>

// The USB-serial chips programming cables are built on, told apart by their USB IDs.
struct UsbChip {
    enum Family { Unknown, Ch340, Cp210x, Ftdi, Pl2303, CdcAcm };
    Family family = Unknown;
    // The ID that cheap copies of the chip carry: such a cable often opens fine and then
    // loses or garbles bytes.
    bool counterfeitProne = false;
};

// `vendor` and `product` as four hex digits ("1a86", "7523"); `driver` the kernel driver's
// name, which names the family of chips no ID table lists.
UsbChip identifyChip(const QString& vendor, const QString& product, const QString& driver = {});
QString familyName(UsbChip::Family family);
