#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "l10n/language.h"
#include "service/service_request.h"

// The RF crystal trim: a signed byte, −127..127, in two's complement on the line.
constexpr int kCrystalMin = -127;
constexpr int kCrystalMax = 127;

// The read request: 6D 03 00 00 05 75 with both selectors 0.
QByteArray crystalReadRequest(const RequestSelectors& selectors);
// The trim from a read reply's byte 4; 0x80, which the slider cannot show, reads as 0.
int decodeCrystal(const QByteArray& payload);

// The write request [0x6E, 4, block, sub, 0, trim byte, checksum], or the refusal naming the
// field when the text is not a number in −127..127.
struct CrystalWrite {
    QByteArray frame;
    QString error;
    bool ok() const { return error.isEmpty(); }
};
CrystalWrite crystalWriteRequest(const QString& text, const RequestSelectors& selectors,
                                 UiLanguage language);
