#pragma once

#include <gtest/gtest.h>

#include "link/session_fixture.h"
#include "service/service_panel.h"
#include "sim/sim_service.h"

constexpr qint64 kLongEnough = 60'000;

// A panel's world: the simulated radio on the manual clock, with the service channel on it.
class ServicePanelFixture : public ::testing::Test, protected SessionFixture {
protected:
    ServicePanelFixture() { channel.setLanguage(UiLanguage::English); }

    // Runs one operation to its end and returns what it showed; clears the record.
    QStringList run(ServicePanel& panel, const std::function<bool()>& start) {
        prompts.clear();
        if (start()) clock.advanceUntil([&] { return !panel.isRunning(); }, kLongEnough);
        EXPECT_FALSE(panel.isRunning());
        EXPECT_FALSE(transport.isBusy());
        return prompts.transcript();
    }
    void silence(QSet<int> requestNumbers) {
        SimFaults faults;
        faults.silent = requestNumbers;
        radio.setFaults(faults);
    }
    SimService& sim() { return radio.service(); }

    ServiceChannel channel{transport, prompts};
};
