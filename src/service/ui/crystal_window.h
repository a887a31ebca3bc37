#pragma once

#include <QWidget>

#include "service/crystal_panel.h"

class QPushButton;
class SliderBox;

// "RF 晶体修正": the crystal trim on a slider with its text box, read and written by the
// CrystalPanel; the buttons rest while its exchange runs.
class CrystalWindow : public QWidget {
    Q_OBJECT

public:
    explicit CrystalWindow(ServiceChannel& channel, QWidget* parent = nullptr);
    ~CrystalWindow() override;

    bool isBusy() const { return panel_.isRunning(); }

private:
    CrystalPanel panel_;
    SliderBox* value_;          // HScroll1 with Text1
    QPushButton* readButton_;   // Command1
    QPushButton* writeButton_;  // Command2
};
