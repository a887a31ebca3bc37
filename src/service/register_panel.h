#pragma once

#include "service/register_grid.h"
#include "service/service_panel.h"

// The register table ("RegTest"): its grid and its five radio operations. Reads fill the grid
// row by row as the replies come; a read that stops keeps the rows it has read.
class RegisterPanel : public ServicePanel {
    Q_OBJECT

public:
    explicit RegisterPanel(ServiceChannel& channel, QObject* parent = nullptr);

    RegisterGrid grid;

    // Each returns false when nothing was started (the reason has been shown).
    bool clear();       // "CLEAR": empties the radio's EEPROM table, then the grid
    bool readEeprom();  // "Read EEP": all ten rows of the EEPROM table
    bool readRfic();    // "Read RFIC": the registers listed in the grid
    bool saveEeprom();  // "Save To EEP": the listed rows into the EEPROM table
    bool writeRfic();   // "Write RFIC": the listed rows into the RF chip

private:
    void readRow();
    void rowRead(const ServiceChannel::Reply& reply);
    bool startWrite(quint8 command);
    void writeRow();

    quint8 readCommand_ = 0;
    int row_ = 0;
    int rowCount_ = 0;
    quint8 writeCommand_ = 0;
    std::array<RegisterBytes, RegisterGrid::kRows> toSend_;
};
