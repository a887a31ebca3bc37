#include "mainwindow/port_picker_dialog.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "l10n/doctor_texts.h"
#include "l10n/window_texts.h"
#include "link/port_catalogue.h"
#include "link/port_control.h"

namespace {

QStringList systemPorts() {
    return PortCatalogue::fromSystem().entries().values();
}

}  // namespace

PortPickerDialog::PortPickerDialog(QWidget* parent, PortLister listPorts)
    : QDialog(parent),
      numbers_(new QComboBox(this)),
      findCable_(new QPushButton(this)),
      finderStatus_(new QLabel(this)),
      listPorts_(listPorts ? std::move(listPorts) : PortLister(systemPorts)) {
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
    findCable_->setObjectName(QStringLiteral("FindCable"));
    finderStatus_->setObjectName(QStringLiteral("FinderStatus"));
    finderStatus_->setWordWrap(true);
    connect(findCable_, &QPushButton::clicked, this, &PortPickerDialog::startFinder);
    rescan_.setInterval(kRescanMs);
    connect(&rescan_, &QTimer::timeout, this, &PortPickerDialog::rescan);

    auto* row = new QHBoxLayout;
    row->addWidget(new QLabel(QString::fromUtf8(l10n::fixed::kPortPickerLabel), this));
    row->addWidget(numbers_);
    row->addWidget(choose);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(row);
    layout->addWidget(findCable_);
    layout->addWidget(finderStatus_);
    setLanguage(language_);
}

void PortPickerDialog::preselect(int number) {
    numbers_->setCurrentIndex(number);
}

void PortPickerDialog::setLanguage(UiLanguage language) {
    language_ = language;
    findCable_->setText(l10n::doctorText(l10n::DoctorText::FindCable, language));
    if (finderRunning() || finder_.step() != PortFinder::Step::Waiting) showFinderStep();
}

void PortPickerDialog::hideEvent(QHideEvent* event) {
    rescan_.stop();
    QDialog::hideEvent(event);
}

void PortPickerDialog::startFinder() {
    finder_.start(listPorts_());
    showFinderStep();
    rescan_.start();
}

void PortPickerDialog::rescan() {
    const PortFinder::Step step = finder_.update(listPorts_());
    showFinderStep();
    if (step == PortFinder::Step::Found) {
        rescan_.stop();
        Q_EMIT cableFound(finder_.port());
    } else if (step == PortFinder::Step::Ambiguous) {
        rescan_.stop();
    }
}

void PortPickerDialog::showFinderStep() {
    using l10n::DoctorText;
    QString text;
    switch (finder_.step()) {
        case PortFinder::Step::Waiting:
            text = l10n::doctorText(DoctorText::FinderWaiting, language_);
            break;
        case PortFinder::Step::Unplugged:
            text = l10n::doctorText(DoctorText::FinderUnplugged, language_).arg(finder_.port());
            break;
        case PortFinder::Step::Found:
            text = l10n::doctorText(DoctorText::FinderFound, language_).arg(finder_.port());
            break;
        case PortFinder::Step::Ambiguous:
            text = l10n::doctorText(DoctorText::FinderAmbiguous, language_)
                       .arg(finder_.candidates().join(QStringLiteral(", ")));
            break;
    }
    finderStatus_->setText(text);
}
