#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "l10n/language.h"

// The radio's identity: an unsigned 32-bit number, typed and shown in decimal and sent most
// significant byte first.
constexpr quint32 kIdentityMax = 4294967295u;

// 5B 03 00 00 00 5E
QByteArray identityReadRequest();
// [0x5A, 4, b3, b2, b1, b0, checksum]
QByteArray identityWriteRequest(quint32 identity);
// The identity from the first four bytes of a read reply; nothing when fewer came.
std::optional<quint32> decodeIdentity(const QByteArray& payload);
// The number the next radio gets: one more, 0 after the largest.
quint32 nextIdentity(quint32 identity);

// The number in a typed text, or the refusal (empty, not a number, too large) that names
// the field.
struct IdentityField {
    quint32 value = 0;
    QString error;
    bool ok() const { return error.isEmpty(); }
};
IdentityField identityField(const QString& text, UiLanguage language);
