#include "link/memory_image.h"

#include <cmath>
#include <optional>

#include "link/frame.h"
#include "link/protocol.h"
#include "model/code_tables.h"
#include "model/editing.h"

namespace {

using namespace protocol;

constexpr int kShortRecord = kShortChannelRecord, kLongRecord = kLongChannelRecord;

// Codes past the normal DCS run travel as position - 105 with a flag; byte 162 marks "CDCSS".
constexpr int kLastUnflaggedCode = 160;
constexpr int kInvertedOffset = 105;

constexpr int kMaxStepCount = 32767;

bool isSet(int value, int mask) {
    return (value & mask) != 0;
}
int bitIf(bool condition, int mask) {
    return condition ? mask : 0;
}

void putWord(QByteArray& record, int at, int value) {
    record[at] = static_cast<char>((value >> 8) & 0xFF);
    record[at + 1] = static_cast<char>(value & 0xFF);
}

// Steps of `stepKhz` above the band's lower limit, halves to even; nothing if it does not fit.
std::optional<int> stepCount(const QString& frequency, int lower, double stepKhz) {
    const double steps = std::nearbyint((numericValue(frequency) - lower) * 1000.0 / stepKhz);
    if (steps < 0 || steps > kMaxStepCount) return std::nullopt;
    return static_cast<int>(steps);
}

struct CodeByte {
    int byte;
    bool inverted;
};

CodeByte codeByteOf(const QStringList& table, const QString& code) {
    const int position = OptionIndexLookup(table, code);
    if (position > kLastUnflaggedCode) return {position - kInvertedOffset, true};
    return {position, false};
}

// The custom value of one direction: the tone in 0.1 Hz, or for "CDCSS" the 24-bit DCS word
// (its middle and low byte in the word, its high byte returned separately). Returns the field
// whose value does not fit, if one does not.
const char* putCustomValue(QByteArray& record, int wordAt, int highAt, bool cdcss,
                           const QString& tone, const QString& dcs, const char* toneField,
                           const char* dcsField) {
    if (!cdcss) {
        const double tenths = std::nearbyint(numericValue(tone) * 10.0);
        if (tenths < 0 || tenths > 0xFFFF) return toneField;
        putWord(record, wordAt, static_cast<int>(tenths));
        return nullptr;
    }
    const double value = std::trunc(numericValue(dcs));
    if (value < 0 || value > 0xFFFFFF) return dcsField;
    const int word = static_cast<int>(value);
    putWord(record, wordAt, word & 0xFFFF);
    if (highAt < record.size()) record[highAt] = static_cast<char>(word >> 16);
    return nullptr;
}

QString toneText(int tenths) {
    return QString::number(tenths / 10.0);
}

}  // namespace

QByteArray encode_settings(const Codeplug& doc) {
    const RadioSettings& s = doc.settings;
    // Band numbers outside 0..3 count as band 3 everywhere else, so they do here too.
    const int band = s[SettingKey::freqband];
    int record[2] = {kSettingsFixedBits, band >= 0 && band <= 3 ? band : 3};
    // Only an index of exactly 1 sets a bit: an out-of-range index writes 0.
    for (const SettingBit& bit : kSettingBits) record[bit.byte] += bitIf(s[bit.key] == 1, bit.mask);
    const int s2 = boundedInt(numericValue(doc.chtot), 0, 0xFF);

    QByteArray payload(6, '\0');  // block 0, sub 0, S0..S3
    payload[2] = static_cast<char>(record[0]);
    payload[3] = static_cast<char>(record[1]);
    payload[4] = static_cast<char>(s2);
    return LinkFrame{kWriteSettings, payload}.encode();
}

bool decode_settings(Codeplug& doc, const QByteArray& payload) {
    if (payload.size() < 3) return false;
    const int record[2] = {static_cast<quint8>(payload[0]), static_cast<quint8>(payload[1])};
    const int count = static_cast<quint8>(payload[2]);
    RadioSettings& s = doc.settings;

    // A mode change rebuilds the code tables, so it is taken over only when it is one.
    const SettingBit& mode = kSettingBits[0];
    static_assert(kSettingBits[0].key == SettingKey::normalmode);
    const int modeValue = isSet(record[mode.byte], mode.mask) ? 1 : 0;
    if (modeValue != s[SettingKey::normalmode]) {
        s[SettingKey::normalmode] = static_cast<qint16>(modeValue);
        rebuildCodeTables(doc);
    }
    for (const SettingBit& bit : kSettingBits) {
        if (bit.key != SettingKey::normalmode)
            s[bit.key] = isSet(record[bit.byte], bit.mask) ? 1 : 0;
    }

    // The radio's band bits are not taken over: the configured band stays.
    s[SettingKey::freqband] = static_cast<qint16>(doc.defaultBand);
    doc.chtot = QString::number(std::min(count, kSlotCount));
    return true;
}

Result<QByteArray> encode_channel(const Codeplug& doc, int slot) {
    const ChannelRecord& ch = doc.plan[slot];
    const int lower = doc.bandLimits().lower;
    const bool rxOn625 = doc.RxStepFlags[slot];
    const bool txOn625 = doc.TxStepFlags[slot];

    const std::optional<int> rxSteps = stepCount(ch.rxfreq, lower, rxOn625 ? 6.25 : 5.0);
    const std::optional<int> txSteps = stepCount(ch.txfreq, lower, txOn625 ? 6.25 : 5.0);
    const auto doesNotFit = [slot](const char* field, const QString& value) {
        return Error::inChannel(ErrorKind::ValueDoesNotFit, slot + 1, QLatin1String(field), value);
    };
    if (!rxSteps) return doesNotFit("rxfreq", ch.rxfreq);
    if (!txSteps) return doesNotFit("txfreq", ch.txfreq);
    // A code the active list lacks (an inverted code in normal mode) has no byte: sending the
    // list's size, as the radio's tool did, would give the radio some other code.
    if (!doc.codeTable.contains(ch.rxctc)) return doesNotFit("rxctc", ch.rxctc);
    if (!doc.codeTable.contains(ch.txctc)) return doesNotFit("txctc", ch.txctc);

    const CodeByte rxCode = codeByteOf(doc.codeTable, ch.rxctc);
    const CodeByte txCode = codeByteOf(doc.codeTable, ch.txctc);
    const bool rxCdcss = rxCode.byte == kCdcssMarker;
    const bool txCdcss = txCode.byte == kCdcssMarker;
    const bool longRecord = rxCdcss || txCdcss;

    QByteArray record(longRecord ? kLongRecord : kShortRecord, '\0');
    putWord(record, kRxFreq, *rxSteps);
    putWord(record, kTxFreq, *txSteps);
    record[kRxCode] = static_cast<char>(rxCode.byte);
    record[kTxCode] = static_cast<char>(txCode.byte);

    int flags = bitIf(rxOn625, kRxStep625) + bitIf(txOn625, kTxStep625) +
                bitIf(isWideWord(ch.band), kWide) + bitIf(isHighPowerWord(ch.power), kHighPower);
    // With a custom DCS code in the record the radio takes neither inversion flag.
    if (!longRecord)
        flags += bitIf(rxCode.inverted, kRxInverted) + bitIf(txCode.inverted, kTxInverted);
    record[kFlags] = static_cast<char>(flags);

    if (const char* field = putCustomValue(record, kRxCustom, kRxDcsHigh, rxCdcss, ch.rxctcfreq,
                                           ch.rxcdc, "rxctcfreq", "rxcdc")) {
        return doesNotFit(field, rxCdcss ? ch.rxcdc : ch.rxctcfreq);
    }
    if (const char* field = putCustomValue(record, kTxCustom, kTxDcsHigh, txCdcss, ch.txctcfreq,
                                           ch.txcdc, "txctcfreq", "txcdc")) {
        return doesNotFit(field, txCdcss ? ch.txcdc : ch.txctcfreq);
    }

    QByteArray payload;
    payload.append(static_cast<char>(slot));  // block
    payload.append('\0');                     // sub
    payload.append(record);
    return LinkFrame{kWriteChannel, payload}.encode();
}

bool decode_channel(Codeplug& doc, int slot, const QByteArray& payload, Notices* notices) {
    const int n = static_cast<int>(payload.size());
    auto byte = [&](int at) {
        return at < n ? static_cast<int>(static_cast<quint8>(payload[at])) : 0;
    };

    const int limit = byte(kRxCode) == kCdcssMarker ? kLongRecord : kShortRecord;
    if (n < kShortRecord || n > limit) return false;
    // Step counts are signed 16-bit on the radio: a set top bit is no frequency we can show.
    if (byte(kRxFreq) >= 0x80 || byte(kTxFreq) >= 0x80) return false;

    const int flags = byte(kFlags);
    const int rxCodePos = byte(kRxCode) + bitIf(isSet(flags, kRxInverted), kInvertedOffset);
    const int txCodePos = byte(kTxCode) + bitIf(isSet(flags, kTxInverted), kInvertedOffset);
    const double rxStep = isSet(flags, kRxStep625) ? 6.25 : 5.0;
    const double txStep = isSet(flags, kTxStep625) ? 6.25 : 5.0;
    const int lower = doc.bandLimits().lower;
    auto frequency = [&](int at, double step) {
        return formatFrequencyValue(lower + (byte(at) * 256 + byte(at + 1)) * step / 1000.0);
    };

    // The receive cell goes through the grid's entry rule (which may copy it to transmit);
    // the transmit frequency written afterwards wins.
    Notices entry = enterRxFrequency(doc, slot, frequency(kRxFreq, rxStep));
    if (notices) notices->insert(notices->end(), entry.begin(), entry.end());
    ChannelRecord& ch = doc.plan[slot];
    ch.txfreq = frequency(kTxFreq, txStep);

    ch.rxctc = codeText(doc.codeTable, rxCodePos);
    ch.txctc = codeText(doc.codeTable, txCodePos);
    ch.band = isSet(flags, kWide) ? wideWord(doc.language) : narrowWord(doc.language);
    ch.power = isSet(flags, kHighPower) ? highPowerWord(doc.language) : lowPowerWord(doc.language);

    const int rxWord = byte(kRxCustom) * 256 + byte(kRxCustom + 1);
    if (ch.rxctc == QLatin1String(kCdcssText)) {
        ch.rxcdc = QString::number(byte(kRxDcsHigh) * 65536 + rxWord);
    } else {
        ch.rxctcfreq = toneText(rxWord);
        if (isCustomToneText(ch.rxctc)) ch.rxCodeToolTip = ch.rxctcfreq;
    }
    const int txWord = byte(kTxCustom) * 256 + byte(kTxCustom + 1);
    if (ch.txctc == QLatin1String(kCdcssText)) {
        ch.txcdc = QString::number(byte(kTxDcsHigh) * 65536 + txWord);
        ch.txCodeToolTip = ch.txcdc;
    } else {
        ch.txctcfreq = toneText(txWord);
        if (isCustomToneText(ch.txctc)) ch.txCodeToolTip = ch.txctcfreq;
    }
    return true;
}
