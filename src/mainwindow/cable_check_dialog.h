#pragma once

#include <QDialog>
#include <QStringList>

#include "l10n/language.h"

class QPlainTextEdit;

// "Cable check": the doctor's report on the serial devices, shown as the terminal shows it so
// that the commands can be copied as they stand.
class CableCheckDialog : public QDialog {
    Q_OBJECT

public:
    CableCheckDialog(const QStringList& report, UiLanguage language, QWidget* parent = nullptr);

    QString reportText() const;

private:
    QPlainTextEdit* report_;
};
