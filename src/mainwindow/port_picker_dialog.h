#pragma once

#include <QDialog>
#include <functional>

class QComboBox;

// The "COM X" dialog (Form13): any port number 0..64. It stays open after a choice.
class PortPickerDialog : public QDialog {
    Q_OBJECT

public:
    explicit PortPickerDialog(QWidget* parent = nullptr);

    void preselect(int number);
    QComboBox& numbers() { return *numbers_; }

Q_SIGNALS:
    void chosen(int number);

private:
    QComboBox* numbers_;
};
