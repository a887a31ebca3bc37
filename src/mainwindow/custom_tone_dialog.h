#pragma once

#include <QDialog>

#include "model/custom_tone.h"

class DocumentHistory;
class QLineEdit;
class WindowPrompts;

// CustomToneDialog: edits one slot's custom CTCSS tone for one direction. It does not block the
// grid; OK writes the tone into the slot's memory, or warns and stays open.
class CustomToneDialog : public QDialog {
    Q_OBJECT

public:
    CustomToneDialog(Codeplug& doc, DocumentHistory& history, int slot, CodeDirection direction,
                     WindowPrompts& prompts, QWidget* parent = nullptr);

Q_SIGNALS:
    // The tone was taken over; the grid redraws its code cells.
    void toneAccepted();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void confirm();

    Codeplug& doc_;
    DocumentHistory& history_;
    int slot_;
    CodeDirection direction_;
    WindowPrompts& prompts_;
    QLineEdit* field_;
};
