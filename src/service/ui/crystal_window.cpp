#include "service/ui/crystal_window.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include "l10n/window_texts.h"
#include "service/crystal.h"
#include "service/ui/slider_box.h"
#include "service/ui/widget_names.h"

using service_ui::fixed;
using service_ui::named;

CrystalWindow::CrystalWindow(ServiceChannel& channel, QWidget* parent)
    : QWidget(parent, Qt::Window), panel_(channel) {
    setObjectName(QStringLiteral("Form14"));
    setWindowTitle(fixed(l10n::fixed::kCrystalWindowTitle));

    auto* slider = named(new QScrollBar(Qt::Horizontal), "HScroll1");
    slider->setMinimumWidth(260);
    auto* valueEdit = named(new QLineEdit, "Text1");
    valueEdit->setMaximumWidth(70);
    value_ = new SliderBox(slider, valueEdit, {kCrystalMin, kCrystalMax}, this);
    readButton_ = named(new QPushButton(fixed(l10n::fixed::kServiceRead)), "Command1");
    writeButton_ = named(new QPushButton(fixed(l10n::fixed::kServiceWrite)), "Command2");

    auto* grid = new QGridLayout;
    grid->addWidget(named(new QLabel(fixed(l10n::fixed::kCrystalLabel)), "Label1"), 0, 0);
    grid->addWidget(slider, 0, 1);
    grid->addWidget(valueEdit, 0, 2);
    grid->setColumnStretch(1, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(readButton_);
    buttons->addWidget(writeButton_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addLayout(buttons);

    value_->show(panel_.value);

    connect(readButton_, &QPushButton::clicked, &panel_, &CrystalPanel::read);
    connect(writeButton_, &QPushButton::clicked, this, [this] {
        panel_.value = value_->text();
        panel_.write();
    });
    connect(&panel_, &ServicePanel::runningChanged, this, [this](bool running) {
        readButton_->setEnabled(!running);
        writeButton_->setEnabled(!running);
    });
    connect(&panel_, &ServicePanel::finished, this, [this](ServiceOutcome outcome) {
        if (outcome == ServiceOutcome::Succeeded) value_->show(panel_.value);
    });
}

CrystalWindow::~CrystalWindow() {
    panel_.cancel();
}
