#pragma once

#include <QWidget>

#include "bootloader/boot_session.h"

class LinkTransport;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class WindowPrompts;

// "在线编程（UART）": erase, write and read the radio's program memory. A view of one
// BootSession: the buttons start its jobs, its log lines and progress are shown as they come.
// The operation buttons rest while a job runs; Cancel stops it.
class BootLoaderWindow : public QWidget {
    Q_OBJECT

public:
    BootLoaderWindow(LinkTransport& transport, WindowPrompts& prompts, UiLanguage language,
                     QWidget* parent = nullptr);
    ~BootLoaderWindow() override;

    // From the button press until the window has taken the job's end.
    bool isBusy() const { return busy_; }

private:
    void chooseImage();
    void chooseOutput();
    void run(BootSession::Operation operation);
    void appendLog(const QString& line);
    void finished(BootSession::Outcome outcome);
    void setBusy(bool busy);

    WindowPrompts& prompts_;
    UiLanguage language_;
    BootSession session_;
    BootSession::Operation running_ = BootSession::Operation::Erase;
    bool busy_ = false;

    QPushButton* eraseButton_;  // Command5
    QPushButton* writeButton_;  // Command3
    QPushButton* readButton_;   // Command4
    QPushButton* cancelButton_;
    QLineEdit* startEdit_;       // Text1
    QLineEdit* endEdit_;         // Text2
    QComboBox* imageBox_;        // Combo1
    QPushButton* imageButton_;   // Command1
    QComboBox* outputBox_;       // Combo2
    QPushButton* outputButton_;  // Command2
    QCheckBox* verifyBox_;
    QPlainTextEdit* log_;     // Text5
    QProgressBar* progress_;  // ProgressBar1
};
