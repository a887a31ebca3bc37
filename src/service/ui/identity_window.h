#pragma once

#include <QWidget>

#include "service/identity_panel.h"

class QLabel;
class QGroupBox;
class QLineEdit;
class QPushButton;

// "输入ID": numbers radios on the production line. The number's colour tells the last
// result, the counter counts the radios numbered, and the focus goes back to "写ID" after each
// write so that the next radio is one key press.
class IdentityWindow : public QWidget {
    Q_OBJECT

public:
    explicit IdentityWindow(ServiceChannel& channel, QWidget* parent = nullptr);
    ~IdentityWindow() override;

    bool isBusy() const { return panel_.isRunning(); }

private:
    // The captions in the channel's language, which they follow.
    void retranslate();

    void showMark(IdentityPanel::Mark mark);
    void showValues();

    ServiceChannel& channel_;
    IdentityPanel panel_;
    QGroupBox* frame_;
    QLabel* idLabel_;           // Label1
    QLabel* decimalLabel_;      // Label3
    QLabel* successLabel_;      // Label2
    QLineEdit* idEdit_;         // Text1
    QLineEdit* countEdit_;      // Text2
    QPushButton* writeButton_;  // Command1
    QPushButton* readButton_;   // Command2
};
