#pragma once

#include <QFrame>
#include <QTimer>

// The start-up screen with its fixed texts. It closes itself after two seconds (Timer2), on a
// click or on any key.
class SplashScreen : public QFrame {
    Q_OBJECT

public:
    static constexpr int kShownMs = 2000;

    explicit SplashScreen(QWidget* parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QTimer closeTimer_;  // Timer2
};
