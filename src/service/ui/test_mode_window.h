#pragma once

#include <QWidget>

#include "service/test_mode_panel.h"

class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;

// "Test mode": the radio's live RSSI and battery measurements, with the charging indicator
// red while the charger is on and green otherwise, and its DTMF tests. Closing the window
// while a monitor runs tells the radio to stop.
class TestModeWindow : public QWidget {
    Q_OBJECT

public:
    explicit TestModeWindow(ServiceChannel& channel, QWidget* parent = nullptr);
    ~TestModeWindow() override;

    bool isBusy() const { return panel_.isRunning(); }
    MonitorMode monitor() const { return panel_.monitor(); }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void showFrame(const MonitorFrame& frame);
    void showLive(bool byOther);
    void setIndicator(const QColor& colour);

    ServiceChannel& channel_;
    TestModePanel panel_;
    QLineEdit* rssiEdit_;     // Text1
    QLineEdit* snrEdit_;      // Text2
    QLineEdit* afcEdit_;      // Text3
    QLineEdit* audioEdit_;    // Text4
    QLineEdit* batteryEdit_;  // Text5
    QFrame* indicator_;       // Shape1
    QComboBox* testType_;     // Combo1
    QLabel* liveState_;
    QList<QPushButton*> buttons_;
};
