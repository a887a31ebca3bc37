#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;

// The progress window of a read or write (Form5): a picture area and one bar. Closing it by
// hand cancels the session under way; hiding it from the program does not.
class ProgressWindow : public QWidget {
    Q_OBJECT

public:
    explicit ProgressWindow(QWidget* parent = nullptr);

    QProgressBar& bar() { return *bar_; }
    // Shown over the middle of `owner`, its caption in the title and in the picture area.
    void showOver(const QWidget& owner, const QString& caption);

Q_SIGNALS:
    void closedByUser();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QProgressBar* bar_;
    QLabel* caption_;
};
