#pragma once

#include "service/band_table.h"
#include "service/service_panel.h"

// The band-information panel ("频段信息"): the table travels in four segments, read and
// written one request each, in the order 0, 1, 2, 3.
class BandPanel : public ServicePanel {
    Q_OBJECT

public:
    // The "分段调整" sliders' initial values, as their boxes show them.
    static constexpr const char* kInitialTxLow = "1.7";
    static constexpr const char* kInitialTxHigh = "1.65";
    static constexpr const char* kInitialRssi = "21";

    explicit BandPanel(ServiceChannel& channel, QObject* parent = nullptr);

    BandTable table;

    bool read();
    // Every segment is checked before the first goes out; a cell that does not fit is named.
    bool write();
    // The "调整" fill of both halves of the band, then the write.
    bool adjust(const QString& txLow, const QString& txHigh, const QString& rssiLow,
                const QString& rssiHigh);
    // "恢复默认值": the radio goes back to its own table; the grid stays.
    bool restoreDefaults();

private:
    void readSegment();
    void writeSegment();

    int segment_ = 0;
    std::array<QByteArray, 4> toSend_;
};
