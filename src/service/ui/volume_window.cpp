#include "service/ui/volume_window.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "l10n/board_texts.h"
#include "l10n/window_texts.h"
#include "service/ui/level_rows.h"
#include "service/ui/widget_names.h"

using service_ui::fixed;
using service_ui::named;

namespace {

// A frame holding the rows of fields first..last.
QGroupBox* frameOf(const char* caption, LevelRows* rows, size_t first, size_t last) {
    auto* frame = new QGroupBox(fixed(caption));
    auto* grid = new QGridLayout(frame);
    grid->setColumnStretch(1, 1);
    for (size_t field = first; field <= last; ++field)
        rows->addRow(grid, static_cast<int>(field - first), field);
    return frame;
}

// The read and write buttons under the frames, resting while the panel's exchange runs; the
// boxes show what a read brought.
QHBoxLayout* buttonsFor(ServicePanel& panel, LevelRows* rows, QPushButton* read,
                        QPushButton* write) {
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(read);
    buttons->addWidget(write);
    QObject::connect(&panel, &ServicePanel::runningChanged, read, [read, write](bool running) {
        read->setEnabled(!running);
        write->setEnabled(!running);
    });
    QObject::connect(&panel, &ServicePanel::finished, rows, [rows](ServiceOutcome outcome) {
        if (outcome == ServiceOutcome::Succeeded) rows->showValues();
    });
    return buttons;
}

}  // namespace

VolumeWindow::VolumeWindow(ServiceChannel& channel, QWidget* parent)
    : QWidget(parent, Qt::Window), panel_(channel) {
    setObjectName(QStringLiteral("Form7"));
    setWindowTitle(fixed(l10n::fixed::kVolumeWindowTitle));
    rows_ = new LevelRows(panel_.values, this);
    readButton_ = named(new QPushButton(fixed(l10n::fixed::kVolumeRead)), "Command1");
    writeButton_ = named(new QPushButton(fixed(l10n::fixed::kVolumeWrite)), "Command2");

    // The record's order: the microphone, the eight speaker steps, the second microphone.
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(frameOf(l10n::fixed::kVolumeMicFrame, rows_, 0, 0));
    layout->addWidget(frameOf(l10n::fixed::kVolumeSpeakerFrame, rows_, 1, 8));
    layout->addWidget(frameOf(l10n::fixed::kVolumePmicFrame, rows_, 9, 9));
    layout->addWidget(new QLabel(fixed(l10n::fixed::kVolumeNote)));
    layout->addLayout(buttonsFor(panel_, rows_, readButton_, writeButton_));
    rows_->showValues();

    connect(readButton_, &QPushButton::clicked, &panel_, &VolumePanel::read);
    connect(writeButton_, &QPushButton::clicked, &panel_, &VolumePanel::write);
}

VolumeWindow::~VolumeWindow() {
    panel_.cancel();
}

PlayerWindow::PlayerWindow(ServiceChannel& channel, QWidget* parent)
    : QWidget(parent, Qt::Window), panel_(channel) {
    setObjectName(QStringLiteral("Form11"));
    setWindowTitle(fixed(l10n::fixed::kPlayerWindowTitle));
    rows_ = new LevelRows(panel_.values, this);
    readButton_ = named(new QPushButton(fixed(l10n::fixed::kServiceRead)), "Command1");
    writeButton_ = named(new QPushButton(fixed(l10n::fixed::kServiceWrite)), "Command2");

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(frameOf(l10n::fixed::kPlayerFrame, rows_, 0, panel_.values.text.size() - 1));
    layout->addLayout(buttonsFor(panel_, rows_, readButton_, writeButton_));
    rows_->showValues();

    connect(readButton_, &QPushButton::clicked, &panel_, &PlayerPanel::read);
    connect(writeButton_, &QPushButton::clicked, &panel_, &PlayerPanel::write);
}

PlayerWindow::~PlayerWindow() {
    panel_.cancel();
}
