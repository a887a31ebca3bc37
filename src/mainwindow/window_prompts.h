#pragma once

#include <QString>

#include "platform/window_prompts.h"

class QWidget;

// The program's prompts: Qt message boxes and file dialogs over `parent`. Status texts are
// shown by the main window's status bar, which sees them first.
class WidgetPrompts : public WindowPrompts {
public:
    explicit WidgetPrompts(QWidget* parent = nullptr) : parent_(parent) {}
    void setParent(QWidget* parent) { parent_ = parent; }

    void showStatus(const StatusText&) override {}
    void showMessage(const MessageBox& box) override;
    bool askYesNo(const Question& question) override;
    QString chooseOpenFile(const QString& filter) override;
    QString chooseSaveFile(const QString& filter) override;

private:
    QWidget* parent_;
};
