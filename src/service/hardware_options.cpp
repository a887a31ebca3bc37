#include "service/hardware_options.h"

#include "l10n/board_texts.h"
#include "service/field_value.h"
#include "service/service_protocol.h"

using l10n::BoardText;

namespace {

constexpr int kCountsPerVolt100 = 10240;  // 1024 counts per 3.3 V, times ten
constexpr int kVoltDivisor = 33;
constexpr quint8 kPinP24 = 0;
constexpr quint8 kPinOther = 255;

int at(const QByteArray& bytes, int i) {
    return i < bytes.size() ? static_cast<quint8>(bytes[i]) : 0;
}

QString notAnItem(const char* field, const QString& text, const QStringList& items,
                  UiLanguage language) {
    return l10n::boardText(BoardText::NotAnItem, language)
        .arg(QString::fromUtf8(field), text, items.join(QStringLiteral(", ")));
}

}  // namespace

const QStringList& pttPinItems() {
    static const QStringList kItems = {QStringLiteral("P2.4"), QStringLiteral("P2.1")};
    return kItems;
}

const QStringList& thresholdItems() {
    static const QStringList kItems = {"2.40", "2.30", "2.20", "2.10", "2.00", "1.90",
                                       "1.80", "1.70", "1.60", "1.50", "1.20"};
    return kItems;
}

int FM10chk_Combo1(const QString& text) {
    const qsizetype index = pttPinItems().indexOf(text);
    return static_cast<int>(index < 0 ? pttPinItems().size() : index);
}

int FM10chk_Combo2(const QString& text) {
    const qsizetype index = thresholdItems().indexOf(text);
    return static_cast<int>(index < 0 ? thresholdItems().size() : index);
}

int thresholdCount(double volts) {
    const int hundredths = roundHalfEven(volts * 100);
    return roundHalfEven(double(kCountsPerVolt100) / kVoltDivisor * hundredths / 100);
}

int thresholdCount(int index) {
    if (index < 0 || index >= thresholdItems().size()) return 0;
    return thresholdCount(thresholdItems()[index].toDouble());
}

AdValue Get_adVal(int count) {
    return {static_cast<quint8>(count / 256), static_cast<quint8>(count % 256)};
}

QByteArray hardwareReadRequest(const RequestSelectors& selectors) {
    return pack_pc_cmd(service::kHardwareRead, selectors);
}

HardwareOptions decodeHardware(const QByteArray& payload) {
    return {at(payload, 0) == kPinP24 ? 0 : 1, at(payload, 1)};
}

QString pttPinText(int index) {
    return index >= 0 && index < pttPinItems().size() ? pttPinItems()[index] : QString();
}

QString thresholdText(int index) {
    return index >= 0 && index < thresholdItems().size() ? thresholdItems()[index] : QString();
}

HardwareWrite hardwareWriteRequest(const HardwareOptions& options,
                                   const RequestSelectors& selectors, UiLanguage language) {
    // An index beyond the list (the radio's own, or a typed text) would go back with a
    // count of nothing.
    if (thresholdText(options.PKeyLevelIndex).isEmpty()) {
        return {{},
                l10n::boardText(BoardText::NoThreshold, language)
                    .arg(QString::fromUtf8(l10n::fixed::kPKeyLabel),
                         thresholdItems().join(QStringLiteral(", ")))};
    }
    const AdValue count = Get_adVal(thresholdCount(options.PKeyLevelIndex));
    const quint8 pin = options.PttPinIndex == 0 ? kPinP24 : kPinOther;
    return {pack_Data_Cmd(service::kHardwareWrite,
                          {pin, static_cast<quint8>(options.PKeyLevelIndex), count.high, count.low},
                          selectors),
            {}};
}

QStringList hardwareValueLines(const HardwareOptions& options) {
    return {QStringLiteral("%1=%2").arg(QLatin1String(kPttName), pttPinText(options.PttPinIndex)),
            QStringLiteral("%1=%2").arg(QLatin1String(kPKeyName),
                                        thresholdText(options.PKeyLevelIndex))};
}

bool applyHardwareValues(const std::vector<Assignment>& values, HardwareOptions* options,
                         QString* error, bool* refused, UiLanguage language) {
    HardwareOptions changed = *options;
    *refused = false;
    for (const auto& [name, value] : values) {
        const bool pin = name == QLatin1String(kPttName);
        if (!pin && name != QLatin1String(kPKeyName)) {
            *error = name;
            return false;
        }
        // Typed into the window a pin not in the list still sends 255; from a script it is a
        // typo. An empty threshold is what a read printed for one the list lacks.
        const QString text = value.trimmed();
        const QStringList& items = pin ? pttPinItems() : thresholdItems();
        if (!items.contains(text)) {
            *error = notAnItem(pin ? l10n::fixed::kPttLabel : l10n::fixed::kPKeyLabel, text, items,
                               language);
            *refused = true;
            return false;
        }
        (pin ? changed.PttPinIndex : changed.PKeyLevelIndex) =
            pin ? FM10chk_Combo1(text) : FM10chk_Combo2(text);
    }
    *options = changed;
    return true;
}
