#pragma once

#include "service/hardware_options.h"
#include "service/service_panel.h"

// The hardware-selection panel ("硬件选择"): the PTT pin and the P key threshold, read from
// and written to the radio.
class HardwarePanel : public ServicePanel {
    Q_OBJECT

public:
    explicit HardwarePanel(ServiceChannel& channel, QObject* parent = nullptr);

    HardwareOptions options;

    bool read();
    // Refused, naming the threshold, when its index has no item in the list.
    bool write();
};
