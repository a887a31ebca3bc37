#pragma once

#include <QStringList>

#include "l10n/texts.h"
#include "service/calibration.h"
#include "service/service_panel.h"

// The engineering-mode panel ("工程模式"): reads and writes the calibration record and shows
// the radio's version text.
class CalibrationPanel : public ServicePanel {
    Q_OBJECT

public:
    explicit CalibrationPanel(ServiceChannel& channel, QObject* parent = nullptr);

    CalibrationValues values;
    // The lines of the last version text read.
    QStringList version;

    bool read();
    // Refused, naming the box, when a box does not hold a number 0..255.
    bool write();
    bool readVersion();

private:
    void messageBox(l10n::MessageId text, const QString& title = {});
};
