#pragma once

#include <QObject>
#include <QString>
#include <memory>

#include "sim/paced_line.h"
#include "sim/sim_radio.h"

class QSocketNotifier;

// Puts the simulated radio on a pseudo-terminal, so that the real programs can open it as a
// serial port. The host keeps its own descriptor of the terminal side open and raw, so that
// programs can come and go (a write, then a read) without the radio losing its line.
// POSIX only.
class PtyRadioHost : public QObject {
    Q_OBJECT

public:
    PtyRadioHost(Clock& clock, SimRadio& radio, QObject* parent = nullptr);
    ~PtyRadioHost() override;

    // False, with the reason, when no pseudo-terminal could be had.
    bool open(QString* error);
    // The device the programs open ("/dev/pts/4").
    QString devicePath() const { return devicePath_; }
    void setPacing(bool on);

Q_SIGNALS:
    // The radio hung up: the line is gone.
    void hungUp();

private:
    void onReadable();
    void transmit(const QByteArray& bytes);
    void closeLine();

    SimRadio& radio_;
    PacedLine toRadio_;
    PacedLine fromRadio_;
    int master_ = -1;
    int terminal_ = -1;
    QString devicePath_;
    std::unique_ptr<QSocketNotifier> notifier_;
};
