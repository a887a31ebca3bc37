#include "service/identity.h"

#include "l10n/texts.h"
#include "link/frame.h"
#include "service/service_protocol.h"

QByteArray identityReadRequest() {
    return LinkFrame{service::kIdentityRead, QByteArray(3, '\0')}.encode();
}

QByteArray identityWriteRequest(quint32 identity) {
    QByteArray payload;
    for (int shift = 24; shift >= 0; shift -= 8) {
        payload.append(static_cast<char>((identity >> shift) & 0xFF));
    }
    return LinkFrame{service::kIdentityWrite, payload}.encode();
}

std::optional<quint32> decodeIdentity(const QByteArray& payload) {
    if (payload.size() < service::kIdentitySize) return std::nullopt;
    quint32 identity = 0;
    for (int i = 0; i < service::kIdentitySize; ++i) {
        identity = (identity << 8) | static_cast<quint8>(payload[i]);
    }
    return identity;
}

quint32 nextIdentity(quint32 identity) {
    return identity == kIdentityMax ? 0 : identity + 1;
}

IdentityField identityField(const QString& text, UiLanguage language) {
    const QString digits = text.trimmed();
    bool allDigits = !digits.isEmpty();
    for (QChar c : digits) allDigits = allDigits && c >= QLatin1Char('0') && c <= QLatin1Char('9');
    bool ok = false;
    const qulonglong value = allDigits ? digits.toULongLong(&ok) : 0;
    if (!ok || value > kIdentityMax) {
        return {0, l10n::message(l10n::MessageId::MsgIdError, language)};
    }
    return {static_cast<quint32>(value), {}};
}
