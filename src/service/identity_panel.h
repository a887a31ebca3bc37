#pragma once

#include "service/service_panel.h"

// The identity panel ("输入ID") of the production line: writes the number in its box into the
// radio and, when the radio answers, moves the box on to the next number and counts the radio,
// so that a row of radios is numbered with one press each. Reads the number back.
class IdentityPanel : public ServicePanel {
    Q_OBJECT

public:
    // How the number's box is marked: the last operation's result.
    enum class Mark { Plain, Preparing, Refused, Accepted };

    explicit IdentityPanel(ServiceChannel& channel, QObject* parent = nullptr);

    QString identity = QStringLiteral("0");  // the box, in decimal
    int successes = 0;                       // radios numbered since the panel was made
    Mark mark = Mark::Plain;

    // Refused (message, nothing sent) when the box is not a number 0..4294967295 or the port
    // is closed.
    bool write();
    bool read();

Q_SIGNALS:
    void markChanged(Mark mark);

private:
    void setMark(Mark mark);
};
