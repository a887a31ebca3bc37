#pragma once

#include <QList>
#include <QWidget>
#include <array>

#include "service/band_panel.h"

class QPushButton;
class QTableWidget;
class SliderBox;
class WindowPrompts;

// "频段信息": the band table of the BandPanel in an editable grid with its key filter, the four
// "分段调整" sliders, and the table's text file. The grid is copied into the panel when an
// operation starts and shown again when it ends; the buttons rest while an exchange runs.
class BandWindow : public QWidget {
    Q_OBJECT

public:
    BandWindow(ServiceChannel& channel, WindowPrompts& prompts, QWidget* parent = nullptr);
    ~BandWindow() override;

    bool isBusy() const { return panel_.isRunning(); }

private:
    void run(bool (BandPanel::*operation)());
    void adjust();
    void takeTable();
    void showTable();
    void loadFile();
    void saveFile();

    ServiceChannel& channel_;
    WindowPrompts& prompts_;
    BandPanel panel_;
    QTableWidget* grid_;                              // MSFlexGrid1
    std::array<SliderBox*, kBandSliders> sliders_{};  // HScroll1..4 with Text1..4
    QList<QPushButton*> buttons_;
};
