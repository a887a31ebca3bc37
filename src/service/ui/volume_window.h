#pragma once

#include <QWidget>

#include "service/volume_panels.h"

class LevelRows;
class QPushButton;

// "Volume": the microphone gain, the eight speaker steps and the second microphone gain, each
// on a slider with its box, read and written by the VolumePanel.
class VolumeWindow : public QWidget {
    Q_OBJECT

public:
    explicit VolumeWindow(ServiceChannel& channel, QWidget* parent = nullptr);
    ~VolumeWindow() override;

    bool isBusy() const { return panel_.isRunning(); }

private:
    VolumePanel panel_;
    LevelRows* rows_;
    QPushButton* readButton_;   // Command1
    QPushButton* writeButton_;  // Command2
};

// "Mp3 VOL": the audio player's eight volume steps, read and written by the PlayerPanel.
class PlayerWindow : public QWidget {
    Q_OBJECT

public:
    explicit PlayerWindow(ServiceChannel& channel, QWidget* parent = nullptr);
    ~PlayerWindow() override;

    bool isBusy() const { return panel_.isRunning(); }

private:
    PlayerPanel panel_;
    LevelRows* rows_;
    QPushButton* readButton_;   // Command1
    QPushButton* writeButton_;  // Command2
};
