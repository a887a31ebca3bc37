#include "link/record_check.h"

#include "l10n/safe_write_texts.h"
#include "l10n/texts.h"
#include "link/memory_image.h"
#include "link/protocol.h"
#include "model/code_tables.h"
#include "model/frequency.h"

namespace {

using namespace protocol;
using l10n::SafeWriteText;

constexpr int kInvertedOffset = 105;
constexpr int kInversionFlags = kRxInverted | kTxInverted;
constexpr int kUnusedFlags = 0xC0;

int byteAt(const QByteArray& record, int at) {
    return at < record.size() ? static_cast<quint8>(record[at]) : 0;
}
bool isLong(const QByteArray& record) {
    return record.size() == kLongChannelRecord;
}

// The record as far as the protocol carries it: a 13-byte record without its inversion flags.
QByteArray comparable(QByteArray record) {
    if (isLong(record))
        record[kFlags] = static_cast<char>(byteAt(record, kFlags) & ~kInversionFlags);
    return record;
}

struct Direction {
    int freq, code, step, inverted, custom, dcsHigh;
};
constexpr Direction kRx{kRxFreq, kRxCode, kRxStep625, kRxInverted, kRxCustom, kRxDcsHigh};
constexpr Direction kTx{kTxFreq, kTxCode, kTxStep625, kTxInverted, kTxCustom, kTxDcsHigh};

// How a channel record reads, field by field, for the document it was written from.
class ChannelReading {
public:
    ChannelReading(const Codeplug& doc, const QByteArray& record) : doc_(doc), r_(record) {}

    QString step(const Direction& d) const {
        return isSet(d.step) ? QStringLiteral("6.25 kHz") : QStringLiteral("5 kHz");
    }
    QString frequency(const Direction& d) const {
        const double step = isSet(d.step) ? 6.25 : 5.0;
        return formatFrequencyValue(doc_.bandLimits().lower + word(d.freq) * step / 1000.0);
    }
    QString code(const Direction& d) const {
        if (cdcss(d)) return QString::fromLatin1(kCdcssText);
        const int position =
            byteAt(r_, d.code) + (isSet(d.inverted) && !isLong(r_) ? kInvertedOffset : 0);
        const QString text = codeText(doc_.codeTable, position);
        return text.isEmpty() ? QStringLiteral("#%1").arg(position) : text;
    }
    QString custom(const Direction& d) const {
        if (cdcss(d)) return QString::number(byteAt(r_, d.dcsHigh) * 65536 + word(d.custom));
        return QString::number(word(d.custom) / 10.0, 'f', 1);
    }
    QString bandwidth() const {
        return isSet(kWide) ? wideWord(doc_.language) : narrowWord(doc_.language);
    }
    QString power() const {
        return isSet(kHighPower) ? highPowerWord(doc_.language) : lowPowerWord(doc_.language);
    }
    QString unusedFlags() const { return hex(byteAt(r_, kFlags) & kUnusedFlags); }
    QString length() const { return QString::number(r_.size()); }
    QString whole() const { return QString::fromLatin1(r_.toHex(' ')); }

    static QString hex(int value) {
        return QStringLiteral("0x%1").arg(value, 2, 16, QLatin1Char('0'));
    }

private:
    bool isSet(int mask) const { return (byteAt(r_, kFlags) & mask) != 0; }
    int word(int at) const { return byteAt(r_, at) * 256 + byteAt(r_, at + 1); }
    bool cdcss(const Direction& d) const {
        return isLong(r_) && byteAt(r_, d.code) == kCdcssMarker;
    }

    const Codeplug& doc_;
    const QByteArray& r_;
};

struct ChannelField {
    QString (*name)(UiLanguage);
    QString (*value)(const ChannelReading&);
};

QString captionText(int index, UiLanguage language) {
    return l10n::caption(index, language);
}
QString text(SafeWriteText id, UiLanguage language) {
    return l10n::safeWriteText(id, language);
}

const std::vector<ChannelField>& channelFields() {
    using R = const ChannelReading&;
    using L = UiLanguage;
    static const std::vector<ChannelField> fields = {
        {[](L l) { return text(SafeWriteText::RecordLength, l); }, [](R r) { return r.length(); }},
        {[](L l) { return captionText(l10n::CapRxFrequency, l); },
         [](R r) { return r.frequency(kRx); }},
        {[](L l) { return text(SafeWriteText::RxStep, l); }, [](R r) { return r.step(kRx); }},
        {[](L l) { return captionText(l10n::CapTxFrequency, l); },
         [](R r) { return r.frequency(kTx); }},
        {[](L l) { return text(SafeWriteText::TxStep, l); }, [](R r) { return r.step(kTx); }},
        {[](L l) { return captionText(l10n::CapRxCode, l); }, [](R r) { return r.code(kRx); }},
        {[](L l) { return captionText(l10n::CapTxCode, l); }, [](R r) { return r.code(kTx); }},
        {[](L l) { return captionText(l10n::CapBandwidth, l); }, [](R r) { return r.bandwidth(); }},
        {[](L l) { return captionText(l10n::CapPower, l); }, [](R r) { return r.power(); }},
        {[](L l) { return text(SafeWriteText::RxCustomValue, l); },
         [](R r) { return r.custom(kRx); }},
        {[](L l) { return text(SafeWriteText::TxCustomValue, l); },
         [](R r) { return r.custom(kTx); }},
        {[](L l) { return text(SafeWriteText::UnusedFlagBits, l); },
         [](R r) { return r.unusedFlags(); }},
    };
    return fields;
}

void compareChannel(const Codeplug& doc, int channel, const QByteArray& written,
                    const QByteArray& found, std::vector<RecordDifference>& out) {
    if (comparable(written) == comparable(found)) return;
    const ChannelReading a(doc, written), b(doc, found);
    const size_t before = out.size();
    for (const ChannelField& field : channelFields()) {
        const QString expected = field.value(a), actual = field.value(b);
        if (expected != actual)
            out.push_back({channel, field.name(doc.language), expected, actual});
    }
    // Every bit belongs to some field, but should two encodings read alike, the bytes say it.
    if (out.size() == before) {
        out.push_back(
            {channel, text(SafeWriteText::WholeRecord, doc.language), a.whole(), b.whole()});
    }
}

void compareSettings(const Codeplug& doc, const QByteArray& written, const QByteArray& found,
                     std::vector<RecordDifference>& out) {
    const UiLanguage language = doc.language;
    auto differ = [&](const QString& field, const QString& expected, const QString& actual) {
        if (expected != actual) out.push_back({0, field, expected, actual});
    };
    auto option = [&](SettingKey key, int index) {
        const QStringList options = settingOptions(key, language);
        return index < options.size() ? options[index] : QString::number(index);
    };
    for (const SettingBit& bit : kSettingBits) {
        auto value = [&](const QByteArray& r) {
            return option(bit.key, (byteAt(r, bit.byte) & bit.mask) != 0 ? 1 : 0);
        };
        differ(settingLabel(bit.key, language), value(written), value(found));
    }
    const auto band = [&](const QByteArray& r) {
        return option(SettingKey::freqband, byteAt(r, 1) & kSettingsBandMask);
    };
    differ(settingLabel(SettingKey::freqband, language), band(written), band(found));
    const auto fixed = [](const QByteArray& r) {
        return ChannelReading::hex(byteAt(r, 0) & kSettingsFixedBits);
    };
    differ(text(SafeWriteText::FixedSettingBits, language), fixed(written), fixed(found));
    differ(captionText(l10n::CapChannelCount, language), QString::number(byteAt(written, 2)),
           QString::number(byteAt(found, 2)));
}

}  // namespace

std::vector<RecordDifference> compareRecords(const Codeplug& doc, const RadioRecords& written,
                                             const RadioRecords& found) {
    std::vector<RecordDifference> differences;
    compareSettings(doc, written.settings, found.settings, differences);
    for (int slot = 0; slot < kSlotCount; ++slot) {
        const auto i = static_cast<size_t>(slot);
        compareChannel(doc, slot + 1, written.channels[i], found.channels[i], differences);
    }
    return differences;
}

QStringList differenceLines(const std::vector<RecordDifference>& differences, UiLanguage language,
                            int limit) {
    QStringList lines;
    for (const RecordDifference& d : differences) {
        if (lines.size() == limit) {
            lines << text(SafeWriteText::MoreDifferences, language)
                         .arg(static_cast<int>(differences.size()) - limit);
            break;
        }
        if (d.channel == 0) {
            lines << text(SafeWriteText::SettingsDifference, language)
                         .arg(d.field, d.written, d.found);
        } else {
            lines << text(SafeWriteText::ChannelDifference, language)
                         .arg(QString::number(d.channel), d.field, d.written, d.found);
        }
    }
    return lines;
}
