#pragma once

#include <QDialog>
#include <QStringList>

#include "l10n/language.h"

class QPlainTextEdit;
class QPushButton;

// "Cable check": the doctor's report on the serial devices, shown as the terminal shows it so
// that the commands can be copied as they stand.
class CableCheckDialog : public QDialog {
    Q_OBJECT

public:
    CableCheckDialog(const QStringList& report, UiLanguage language, QWidget* parent = nullptr);

    QString reportText() const;
    // The radio test's findings, below the report.
    void appendLines(const QStringList& lines);
    void setProbeEnabled(bool enabled);

Q_SIGNALS:
    // "Test the radio": one request on the port the main window has open.
    void probeRequested();

private:
    QPlainTextEdit* report_;
    QPushButton* probe_;
};
