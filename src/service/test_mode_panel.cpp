#include "service/test_mode_panel.h"

#include "l10n/production_texts.h"

using l10n::ProductionText;

TestModePanel::TestModePanel(ServiceChannel& channel, QObject* parent)
    : ServicePanel(channel, parent) {
    connect(&channel_, &ServiceChannel::monitorChanged, this, &TestModePanel::monitorChanged);
}

TestModePanel::~TestModePanel() {
    cancel();
    // The channel must not call into a panel that is gone.
    if (live_ == MonitorMode::Stop) return;
    live_ = MonitorMode::Stop;
    channel_.setMonitor(nullptr);
}

bool TestModePanel::startMonitor(MonitorMode mode) {
    return sendMonitor(mode);
}

bool TestModePanel::stopMonitor() {
    return sendMonitor(MonitorMode::Stop);
}

bool TestModePanel::sendMonitor(MonitorMode mode) {
    changing_ = true;
    const bool began = begin();  // ends the monitor under way, if any
    changing_ = false;
    if (!began) return false;
    if (mode != MonitorMode::Stop) {
        changing_ = true;
        channel_.setMonitor([this](const QByteArray& payload) { showFrame(payload); });
        changing_ = false;
    }
    const MonitorMode was = live_;
    live_ = mode;
    if (live_ != was) Q_EMIT liveChanged(live_, false);
    channel_.send_uart(monitorRequest(mode), [this] {
        if (channel_.portOpen()) {
            finish(ServiceOutcome::Succeeded);
            return;
        }
        // Nothing went out: no measurements will come.
        changing_ = true;
        channel_.setMonitor(nullptr);
        changing_ = false;
        if (live_ != MonitorMode::Stop) {
            live_ = MonitorMode::Stop;
            Q_EMIT liveChanged(live_, false);
        }
        finish(ServiceOutcome::Failed);
    });
    return true;
}

void TestModePanel::monitorChanged(bool active) {
    if (active || changing_ || live_ == MonitorMode::Stop) return;
    live_ = MonitorMode::Stop;
    Q_EMIT liveChanged(live_, true);
}

void TestModePanel::showFrame(const QByteArray& payload) {
    const std::optional<MonitorFrame> frame = decodeMonitorFrame(payload);
    if (!frame) return;
    if (frame->kind == MonitorMode::Rssi) rssi = frame->rssi;
    if (frame->kind == MonitorMode::Battery) battery = frame->battery;
    Q_EMIT measured(*frame);
}

bool TestModePanel::startTest(int typeIndex) {
    return sendTest(typeIndex == 0 ? DtmfTest::Transmit : DtmfTest::Receive);
}

bool TestModePanel::stopTest() {
    return sendTest(DtmfTest::Stop);
}

bool TestModePanel::sendTest(DtmfTest test) {
    if (!begin()) return false;
    channel_.selectors = {};
    send(testModeRequest(test, channel_.selectors), AttemptCount::Inherited, ReplyLengths::any(),
         [this](const ServiceChannel::Reply& reply) {
             box(l10n::productionText(
                     reply ? ProductionText::TestWriteOk : ProductionText::TestWriteFailed,
                     language()),
                 l10n::productionText(ProductionText::TitleTestMode, language()));
             finish(reply ? ServiceOutcome::Succeeded : ServiceOutcome::Failed);
         });
    return true;
}
