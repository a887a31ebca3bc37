#pragma once

#include "service/service_panel.h"

// The crystal-correction panel ("RF 晶体修正"): one signed trim, read and written.
class CrystalPanel : public ServicePanel {
    Q_OBJECT

public:
    explicit CrystalPanel(ServiceChannel& channel, QObject* parent = nullptr);

    // The text box, which the write sends; the slider follows it within −127..127.
    QString value = QStringLiteral("0");

    bool read();
    bool write();
};
