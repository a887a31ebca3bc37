#include "model/custom_tone.h"

#include "model/editing.h"
#include "model/frequency.h"

namespace {
constexpr int kMaxToneLength = 5;
}

KeyAction customToneKey(const QString& current, int key) {
    if (key == kKeyEnter) return KeyAction::FocusNext;
    if (current.size() >= kMaxToneLength) {
        return key == kKeyBackspace ? KeyAction::Accept : KeyAction::Discard;
    }
    const bool accepted = (key >= '0' && key <= '9') || key == '.' || key == kKeyBackspace ||
                          key == kKeyDelete;
    return accepted ? KeyAction::Accept : KeyAction::Discard;
}

QString formatCustomTone(const QString& text) {
    const std::optional<double> value = strictNumber(text);
    if (!value) return text;
    // "00.0": at least two integer digits and one decimal.
    const QString digits = QString::asprintf("%04.1f", std::abs(*value));
    return *value < 0 ? QLatin1Char('-') + digits : digits;
}

bool ChkCtcOk_Int(const QString& text) {
    if (text.isEmpty()) return false;
    const double tone = numericValue(text);
    return tone >= 67.0 && tone < 255.0;
}

CustomToneResult confirmCustomTone(Codeplug& doc, int slot, CodeDirection direction,
                                   const QString& text) {
    CustomToneResult result;
    result.fieldText = formatCustomTone(text);
    if (!ChkCtcOk_Int(result.fieldText)) {
        result.notices.push_back({l10n::MessageId::MsgCtcssError});
        return result;
    }
    ChannelRecord& ch = doc.plan[slot];
    (direction == CodeDirection::Rx ? ch.rxctcfreq : ch.txctcfreq) = result.fieldText;
    RESET_TEXT(doc);
    result.accepted = true;
    return result;
}
