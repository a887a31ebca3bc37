#pragma once

#include <QWidget>

#include "service/hardware_panel.h"

class QComboBox;
class QPushButton;

// "硬件选择": the PTT pin and the P key threshold in two lists, read and written by the
// HardwarePanel. The lists take typed text too: a text not in a list counts as no item.
class HardwareWindow : public QWidget {
    Q_OBJECT

public:
    explicit HardwareWindow(ServiceChannel& channel, QWidget* parent = nullptr);
    ~HardwareWindow() override;

    bool isBusy() const { return panel_.isRunning(); }

private:
    void showOptions();

    HardwarePanel panel_;
    QComboBox* pinBox_;         // Combo1
    QComboBox* thresholdBox_;   // Combo2
    QPushButton* readButton_;   // Command1
    QPushButton* writeButton_;  // Command2
};
