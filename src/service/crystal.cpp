#include "service/crystal.h"

#include "l10n/service_texts.h"
#include "link/frame.h"
#include "service/field_value.h"
#include "service/service_protocol.h"

QByteArray crystalReadRequest(const RequestSelectors& selectors) {
    return pack_pc_cmd(service::kCrystalRead, selectors);
}

int decodeCrystal(const QByteArray& payload) {
    if (payload.size() <= service::kCrystalReplyByte) return 0;
    const int trim = static_cast<qint8>(payload[service::kCrystalReplyByte]);
    return trim < kCrystalMin ? 0 : trim;
}

CrystalWrite crystalWriteRequest(const QString& text, const RequestSelectors& selectors,
                                 UiLanguage language) {
    const FieldResult trim =
        integerField(text, kCrystalMin, kCrystalMax,
                     l10n::serviceText(l10n::ServiceText::CrystalValue, language), language);
    if (!trim.ok()) return {{}, trim.error};
    QByteArray payload;
    payload.append(static_cast<char>(selectors.RequestBlock))
        .append(static_cast<char>(selectors.RequestSub))
        .append('\0')
        .append(static_cast<char>(trim.value & 0xFF));
    return {LinkFrame{service::kCrystalWrite, payload}.encode(), {}};
}
