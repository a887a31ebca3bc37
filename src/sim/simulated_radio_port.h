#pragma once

#include <memory>

#include "sim/sim_radio.h"
#include "sim/simulated_port.h"

// A simulated radio together with the cable to it, for `--port sim`: the port owns its radio.
class SimulatedRadioPort : public SimulatedPort {
public:
    explicit SimulatedRadioPort(Clock& clock, std::unique_ptr<SimRadio> radio)
        : SimulatedPort(clock, *radio), radio_(std::move(radio)) {}

    static std::unique_ptr<SimulatedRadioPort> create(Clock& clock) {
        return std::make_unique<SimulatedRadioPort>(clock, std::make_unique<SimRadio>(clock));
    }

    SimRadio& radio() { return *radio_; }

private:
    std::unique_ptr<SimRadio> radio_;
};
