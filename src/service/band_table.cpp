#include "service/band_table.h"

#include <cmath>

#include "l10n/service_texts.h"
#include "link/frame.h"
#include "service/field_value.h"
#include "service/panel_file.h"
#include "service/service_protocol.h"

using l10n::ServiceText;

namespace {

constexpr int kCells = BandTable::kRows * BandTable::kColumns;
constexpr int kAdjustSplitRow = 8;

// Hundredths of a volt, up to the 3.3 V full scale.
constexpr SliderScale kTxScale{0, 330, 2};
constexpr SliderScale kRssiScale{10, 254, 0};
const std::array<BandSliderInfo, kBandSliders> kSliders = {{
    {BandSlider::TxLow, kTxScale, 170},
    {BandSlider::TxHigh, kTxScale, 165},
    {BandSlider::RssiLow, kRssiScale, 21},
    {BandSlider::RssiHigh, kRssiScale, 21},
}};

int at(const QByteArray& bytes, int i) {
    return i < bytes.size() ? static_cast<quint8>(bytes[i]) : 0;
}

QString columnName(int column, UiLanguage language) {
    const ServiceText names[] = {ServiceText::BandTxVoltage, ServiceText::BandRxVoltage,
                                 ServiceText::BandRssi};
    return l10n::serviceText(names[column - 1], language);
}

FieldResult cellByte(const BandTable& table, int row, int column, UiLanguage language) {
    const QString& text = table.cell(row, column);
    const QString field = fieldOfRow(columnName(column, language), row, language);
    if (column == BandTable::Rssi) {
        return integerField(text, 0, BandTable::kRssiMax, field, language, 0);
    }
    if (text.trimmed().isEmpty()) return {0, {}};
    const std::optional<double> volts = decimalValue(text);
    if (volts && *volts >= 0 && *volts <= BandTable::kFullScaleVolts) {
        return {voltageToByte(*volts), {}};
    }
    return {0, outOfRangeMessage(field, text, QStringLiteral("0"),
                                 QString::number(BandTable::kFullScaleVolts), language)};
}

}  // namespace

QString bandFrequencyLabel(int row) {
    if (row < 1 || row > BandTable::kLabelledRows) return {};
    return QString::number(400.025 + 5 * (row - 1), 'f', 3);
}

bool bandKeyAccepted(int column, const QString& text, QChar key) {
    constexpr int kBackspace = 8, kDelete = 127;
    const int code = key.unicode();
    if (code == kBackspace || code == kDelete) return true;
    const int limit = column == BandTable::Rssi ? 3 : 4;
    if (text.size() >= limit) return false;
    if (column != BandTable::Rssi && text.isEmpty() && code > '3' && code <= '9') return false;
    return (code >= '0' && code <= '9') || code == '.';
}

int voltageToByte(double volts) {
    return roundHalfEven(volts * 100 * 255 / 330);
}

QString byteToVoltageText(int byte) {
    const double volts = byte / 255.0 * BandTable::kFullScaleVolts;
    return QString::number(std::nearbyint(volts * 100) / 100);
}

int bandSegmentColumn(int segment) {
    return segment <= 1 ? BandTable::TxVoltage : segment;
}

BandSegment bandSegmentData(const BandTable& table, int segment, UiLanguage language) {
    const int column = bandSegmentColumn(segment);
    BandSegment result;
    for (int row = 1; row <= BandTable::kRows; ++row) {
        const FieldResult byte = cellByte(table, row, column, language);
        if (!byte.ok()) return {{}, byte.error};
        result.data.append(static_cast<char>(byte.value));
    }
    return result;
}

QByteArray bandWriteRequest(const RequestSelectors& selectors, const QByteArray& data) {
    QByteArray payload;
    payload.append(static_cast<char>(selectors.RequestBlock))
        .append(static_cast<char>(selectors.RequestSub))
        .append(data);
    return LinkFrame{service::kBandWrite, payload}.encode();
}

void applyBandSegment(BandTable* table, int segment, const QByteArray& payload) {
    if (segment == 1) return;
    const int column = bandSegmentColumn(segment);
    for (int row = 1; row <= BandTable::kLabelledRows; ++row) {
        const int byte = at(payload, row - 1);
        table->cell(row, column) =
            column == BandTable::Rssi ? QString::number(byte) : byteToVoltageText(byte);
    }
}

const std::array<BandSliderInfo, kBandSliders>& bandSliders() {
    return kSliders;
}

void adjustBand(BandTable* table, const QString& txLow, const QString& txHigh,
                const QString& rssiLow, const QString& rssiHigh) {
    for (int row = 1; row <= BandTable::kLabelledRows; ++row) {
        const bool low = row <= kAdjustSplitRow;
        table->cell(row, BandTable::TxVoltage) = low ? txLow : txHigh;
        table->cell(row, BandTable::Rssi) = low ? rssiLow : rssiHigh;
    }
}

QByteArray bandFileBytes(const BandTable& table) {
    QStringList lines;
    for (int column = 1; column <= BandTable::kColumns; ++column) {
        for (int row = 1; row <= BandTable::kRows; ++row) lines << table.cell(row, column);
    }
    return panelFileBytes(lines);
}

BandTable bandTableFromFile(const QByteArray& bytes, UiLanguage language, QString* dropped) {
    const QStringList lines = panelFileLines(bytes);
    BandTable table;
    for (int i = 0; i < std::min<int>(static_cast<int>(lines.size()), kCells); ++i) {
        table.cell(i % BandTable::kRows + 1, i / BandTable::kRows + 1) = lines[i];
    }
    if (dropped) *dropped = droppedLinesMessage(lines, kCells, 0, language);
    return table;
}
