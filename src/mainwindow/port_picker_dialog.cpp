#include "mainwindow/port_picker_dialog.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "l10n/window_texts.h"
#include "link/port_control.h"

PortPickerDialog::PortPickerDialog(QWidget* parent)
    : QDialog(parent), numbers_(new QComboBox(this)) {
    setObjectName(QStringLiteral("Form13"));
    setWindowTitle(QString::fromUtf8(l10n::fixed::kPortPickerTitle));
    numbers_->setObjectName(QStringLiteral("Combo1"));
    for (int number = 0; number < PortControl::kComxDialogItems; ++number) {
        numbers_->addItem(QString::number(number));
    }
    auto* choose = new QPushButton(QString::fromUtf8(l10n::fixed::kPortPickerChoose), this);
    choose->setObjectName(QStringLiteral("Command1"));
    connect(choose, &QPushButton::clicked, this,
            [this] { Q_EMIT chosen(numbers_->currentIndex()); });
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(new QLabel(QString::fromUtf8(l10n::fixed::kPortPickerLabel), this));
    layout->addWidget(numbers_);
    layout->addWidget(choose);
}

void PortPickerDialog::preselect(int number) { numbers_->setCurrentIndex(number); }
