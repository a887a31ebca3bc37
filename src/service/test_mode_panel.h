#pragma once

#include <optional>

#include "service/monitor.h"
#include "service/service_panel.h"

// The test-mode panel ("Test mode"): starts and stops the radio's DTMF tests, and switches the
// radio into a monitor mode in which it streams RSSI or battery measurements. A monitor start
// or stop is an operation that ends once its request is on the line; the measurements then
// arrive by themselves until the stop, or until another operation on the channel ends the
// monitor (the panel then says it is no longer live).
class TestModePanel : public ServicePanel {
    Q_OBJECT

public:
    explicit TestModePanel(ServiceChannel& channel, QObject* parent = nullptr);
    ~TestModePanel() override;

    // The last measurements shown.
    RssiReading rssi;
    std::optional<BatteryReading> battery;  // nothing before the first battery frame

    bool startMonitor(MonitorMode mode);
    bool stopMonitor();
    // Which monitor runs, or Stop.
    MonitorMode monitor() const { return live_; }

    // DTMF test type by the selector's index: 0 transmit, anything else receive.
    bool startTest(int typeIndex);
    bool stopTest();

Q_SIGNALS:
    void measured(const MonitorFrame& frame);
    // The monitor started or ended; `byOther` when another operation on the channel, or the
    // port going away, ended it.
    void liveChanged(MonitorMode mode, bool byOther);

private:
    bool sendMonitor(MonitorMode mode);
    bool sendTest(DtmfTest test);
    void showFrame(const QByteArray& payload);
    void monitorChanged(bool active);

    MonitorMode live_ = MonitorMode::Stop;
    bool changing_ = false;  // the panel itself is switching the monitor
};
