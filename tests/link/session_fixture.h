#pragma once

#include <QStringList>
#include <vector>

#include "link/link_transport.h"
#include "link/port_control.h"
#include "link/session_view.h"
#include "model/codeplug.h"
#include "model/editing.h"
#include "sim/sim_radio.h"
#include "sim/simulated_port.h"
#include "support/fake_port.h"
#include "support/manual_clock.h"
#include "support/recording_prompts.h"

// Keeps what a session did to the window.
struct RecordingView : SessionView {
    bool buttonsEnabled = true;
    bool progressShown = false;
    QString caption;
    int progress = 0;
    int progressWhenHidden = -1;
    int statusTimerResumes = 0;

    void setSessionButtonsEnabled(bool enabled) override { buttonsEnabled = enabled; }
    void showProgress(const QString& c) override {
        progressShown = true;
        caption = c;
    }
    void setProgress(int value) override { progress = value; }
    void hideProgress() override {
        if (progressShown) progressWhenHidden = progress;
        progressShown = false;
        progress = 0;
    }
    void pauseStatusTimers() override {}
    void resumeStatusTimers() override { ++statusTimerResumes; }
};

// A session's world: the simulated radio on the in-memory port, all on the manual clock.
class SessionFixture {
public:
    SessionFixture() {
        port.open(SimulatedPort::kDefaultDevice);
        QObject::connect(&transport, &LinkTransport::portLost, [this] { control.portLost(); });
        radio.setTraceSink(
            [this](SimRadio::TraceKind kind, const QByteArray& bytes, const QString&) {
                if (kind == SimRadio::TraceKind::Request)
                    requests.push_back({clock.nowMs(), bytes});
            });
    }

    // A plan the write checks accept, unlike the one the radio starts with: slot i on
    // 440.025 + i × 0.025 MHz (transmit 5 kHz higher), the rest as a first start leaves it.
    static Codeplug validPlan() {
        StartupConfig config;
        config.language = UiLanguage::English;
        Codeplug doc = buildStartupCodeplug(config);
        for (int slot = 0; slot < kSlotCount; ++slot) {
            doc.plan[slot].rxfreq = formatFrequencyValue(440.025 + slot * 0.025);
            doc.plan[slot].txfreq = formatFrequencyValue(440.030 + slot * 0.025);
        }
        RESET_TEXT(doc);
        return doc;
    }

    // Requests the radio received, as hex, in order.
    QStringList requestHex() const {
        QStringList list;
        for (const auto& r : requests) list << QString::fromLatin1(r.second.toHex(' '));
        return list;
    }
    int requestsWithCommand(char command) const {
        int count = 0;
        for (const auto& r : requests) count += r.second.startsWith(command) ? 1 : 0;
        return count;
    }

    ManualClock clock;
    SimRadio radio{clock};
    SimulatedPort port{clock, radio};
    RecordingPrompts prompts;
    RecordingView view;
    LinkTransport transport{port, clock};
    PortControl control{port, PortCatalogue(), prompts, UiLanguage::English};
    std::vector<std::pair<qint64, QByteArray>> requests;  // time, frame
};
