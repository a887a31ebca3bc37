#pragma once

#include <QPointer>
#include <QWidget>
#include <array>

#include "service/calibration_panel.h"

class BandWindow;
class QGroupBox;
class QLabel;
class QPushButton;
class SliderBox;
class WindowPrompts;

// "工程模式": the calibration values on sliders with their text boxes, read and written by the
// CalibrationPanel, the radio's version text, and the band-information window it opens. The
// captions follow the language of the service channel; the radio buttons rest while an
// exchange runs.
class CalibrationWindow : public QWidget {
    Q_OBJECT

public:
    CalibrationWindow(ServiceChannel& channel, WindowPrompts& prompts, QWidget* parent = nullptr);
    ~CalibrationWindow() override;

    bool isBusy() const { return panel_.isRunning(); }

private:
    void applyCaptions();
    void run(bool (CalibrationPanel::*operation)());
    void takeValues();
    void showValues();
    void openBandWindow();

    ServiceChannel& channel_;
    WindowPrompts& prompts_;
    CalibrationPanel panel_;
    std::array<SliderBox*, kCalibrationFields> values_{};  // HScroll1..7 with Text1..7
    std::array<QLabel*, kCalibrationFields> labels_{};
    QGroupBox* rssiFrame_;
    QPushButton* readButton_;     // Command1
    QPushButton* writeButton_;    // Command2
    QPushButton* bandButton_;     // Command3
    QPushButton* versionButton_;  // Command4
    QPointer<BandWindow> bandWindow_;
};
