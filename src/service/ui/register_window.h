#pragma once

#include <QWidget>

#include "service/register_panel.h"

class QPushButton;
class QTableWidget;
class WindowPrompts;

// "RegTest": the register grid of the RegisterPanel with its five radio operations and the
// text file. The grid is copied into the panel when an operation starts and shown again when
// it ends; the buttons rest while an exchange runs.
class RegisterWindow : public QWidget {
    Q_OBJECT

public:
    RegisterWindow(ServiceChannel& channel, WindowPrompts& prompts, QWidget* parent = nullptr);
    ~RegisterWindow() override;

    bool isBusy() const { return panel_.isRunning(); }

private:
    void run(bool (RegisterPanel::*operation)());
    void takeGrid();
    void showGrid();
    void loadFile();
    void saveFile();

    ServiceChannel& channel_;
    WindowPrompts& prompts_;
    RegisterPanel panel_;
    QTableWidget* grid_;  // MSFlexGrid1
    QList<QPushButton*> buttons_;
};
