#pragma once

#include <QByteArray>
#include <QString>
#include <array>

#include "l10n/language.h"
#include "service/field_value.h"
#include "service/service_request.h"

// The band-information table: for each frequency point of the 400–470 MHz band, the transmit
// power control voltage, the receive tuning voltage (volts, on a 3.3 V full scale of 8 bits)
// and the RSSI threshold. Cells hold the text shown; rows 16..20 have no frequency but travel
// with the others.
struct BandTable {
    static constexpr int kRows = 20;
    static constexpr int kLabelledRows = 15;
    enum Column { TxVoltage = 1, RxVoltage = 2, Rssi = 3 };
    static constexpr int kColumns = 3;
    static constexpr double kFullScaleVolts = 3.3;
    static constexpr int kRssiMax = 255;

    std::array<std::array<QString, kColumns>, kRows> cells;

    // Row 1..20, column 1..3, as the grid counts them.
    QString& cell(int row, int column) {
        return cells.at(static_cast<size_t>(row - 1)).at(static_cast<size_t>(column - 1));
    }
    const QString& cell(int row, int column) const {
        return cells.at(static_cast<size_t>(row - 1)).at(static_cast<size_t>(column - 1));
    }
    bool operator==(const BandTable& o) const { return cells == o.cells; }
};

// "400.025", "405.025", … "470.025" for rows 1..15; empty for the rest.
QString bandFrequencyLabel(int row);

// The cell editor's key filter: whether `key` may be typed into a cell of `column` holding
// `text`: digits and "." (at most 3 characters in the RSSI column, 4 in the voltage columns,
// where no voltage starts above 3), Backspace and Delete. Enter moves on instead.
bool bandKeyAccepted(int column, const QString& text, QChar key);

// round(V × 100 × 255 / 330), halves to even.
int voltageToByte(double volts);
// b / 255 × 3.3, rounded to two decimals, without trailing zeros ("1.7").
QString byteToVoltageText(int byte);

// The grid column a segment carries: 0 and 1 the transmit voltage, 2 the receive voltage,
// 3 the RSSI.
int bandSegmentColumn(int segment);

// A segment's 20 data bytes from the table, or the refusal naming the first cell that does
// not fit (a voltage above 3.3, an RSSI above 255, anything that is not a number). An empty
// cell gives 0.
struct BandSegment {
    QByteArray data;
    QString error;
    bool ok() const { return error.isEmpty(); }
};
BandSegment bandSegmentData(const BandTable& table, int segment, UiLanguage language);
// [0x69, 22, segment, sub, 20 bytes, checksum].
QByteArray bandWriteRequest(const RequestSelectors& selectors, const QByteArray& data);
// A read reply into rows 1..15 of the segment's column; segment 1 changes nothing.
void applyBandSegment(BandTable* table, int segment, const QByteArray& payload);

// The "分段调整" sliders: the transmit voltage (its box in volts) and the RSSI, each for the
// lower (400–435 MHz) and the upper (440–470 MHz) half of the band.
enum class BandSlider { TxLow, TxHigh, RssiLow, RssiHigh };
constexpr int kBandSliders = 4;
struct BandSliderInfo {
    BandSlider slider;
    SliderScale scale;
    int initial;
};
const std::array<BandSliderInfo, kBandSliders>& bandSliders();

// The "分段调整" fill: the transmit voltage of rows 1..8 (400–435 MHz) and rows 9..15
// (440–470 MHz), and the RSSI of the same halves. The receive voltage stays.
void adjustBand(BandTable* table, const QString& txLow, const QString& txHigh,
                const QString& rssiLow, const QString& rssiHigh);

// The text file: 60 lines, column 1 of rows 1..20, then column 2, then column 3.
QByteArray bandFileBytes(const BandTable& table);
// Fills the cells in file order; lines beyond the 60th are named in `dropped`.
BandTable bandTableFromFile(const QByteArray& bytes, UiLanguage language, QString* dropped);
