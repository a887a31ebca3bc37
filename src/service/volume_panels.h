#pragma once

#include "service/service_panel.h"
#include "service/volume_tables.h"

// The volume panel ("Volume"): the ten-value record of microphone and speaker levels, read and
// written through the inline exchange, with the message table's words.
class VolumePanel : public ServicePanel {
    Q_OBJECT

public:
    explicit VolumePanel(ServiceChannel& channel, QObject* parent = nullptr);

    LevelValues values{LevelTable::Volume};

    // Refused while the port is closed.
    bool read();
    // Refused, naming the box, when a box does not hold a number 0..255.
    bool write();
};

// The audio-player panel ("Mp3 VOL"): the player's eight volume steps.
class PlayerPanel : public ServicePanel {
    Q_OBJECT

public:
    explicit PlayerPanel(ServiceChannel& channel, QObject* parent = nullptr);

    LevelValues values{LevelTable::Player};

    bool read();
    // Sends the selectors the previous request left; refused like the volume write.
    bool write();
};
