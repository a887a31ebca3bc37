#include "service/ui/crystal_window.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>

#include "l10n/window_texts.h"
#include "service/crystal.h"
#include "service/field_value.h"
#include "service/ui/widget_names.h"

using service_ui::fixed;
using service_ui::named;

CrystalWindow::CrystalWindow(ServiceChannel& channel, QWidget* parent)
    : QWidget(parent, Qt::Window), panel_(channel) {
    setObjectName(QStringLiteral("Form14"));
    setWindowTitle(fixed(l10n::fixed::kCrystalWindowTitle));

    slider_ = named(new QScrollBar(Qt::Horizontal), "HScroll1");
    slider_->setRange(kCrystalMin, kCrystalMax);
    slider_->setMinimumWidth(260);
    valueEdit_ = named(new QLineEdit, "Text1");
    valueEdit_->setMaximumWidth(70);
    readButton_ = named(new QPushButton(fixed(l10n::fixed::kServiceRead)), "Command1");
    writeButton_ = named(new QPushButton(fixed(l10n::fixed::kServiceWrite)), "Command2");

    auto* grid = new QGridLayout;
    grid->addWidget(named(new QLabel(fixed(l10n::fixed::kCrystalLabel)), "Label1"), 0, 0);
    grid->addWidget(slider_, 0, 1);
    grid->addWidget(valueEdit_, 0, 2);
    grid->setColumnStretch(1, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(readButton_);
    buttons->addWidget(writeButton_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addLayout(buttons);

    showValue(panel_.value);

    connect(slider_, &QScrollBar::valueChanged, this,
            [this](int value) { showValue(QString::number(value)); });
    connect(valueEdit_, &QLineEdit::textEdited, this, &CrystalWindow::textEdited);
    connect(readButton_, &QPushButton::clicked, &panel_, &CrystalPanel::read);
    connect(writeButton_, &QPushButton::clicked, &panel_, &CrystalPanel::write);
    connect(&panel_, &ServicePanel::runningChanged, this, [this](bool running) {
        readButton_->setEnabled(!running);
        writeButton_->setEnabled(!running);
    });
    connect(&panel_, &ServicePanel::finished, this, [this](ServiceOutcome outcome) {
        if (outcome == ServiceOutcome::Succeeded) showValue(panel_.value);
    });
}

CrystalWindow::~CrystalWindow() {
    panel_.cancel();
}

void CrystalWindow::showValue(const QString& text) {
    panel_.value = text;
    if (valueEdit_->text() != text) valueEdit_->setText(text);
    textEdited(text);
}

void CrystalWindow::textEdited(const QString& text) {
    // The write sends the box as typed (and refuses what does not fit); the slider only
    // follows a number, clamped to its range.
    panel_.value = text;
    const std::optional<double> number = decimalValue(text);
    if (!number) return;
    const QSignalBlocker quiet(slider_);
    slider_->setValue(std::clamp(roundHalfEven(*number), kCrystalMin, kCrystalMax));
}
