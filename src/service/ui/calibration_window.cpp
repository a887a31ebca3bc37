#include "service/ui/calibration_window.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "l10n/texts.h"
#include "l10n/window_texts.h"
#include "service/ui/band_window.h"
#include "service/ui/show_once.h"
#include "service/ui/slider_box.h"
#include "service/ui/widget_names.h"

using service_ui::fixed;
using service_ui::named;

namespace {

// The captions of the buttons and the RSSI frame that change with the language.
constexpr int kRssiFrameCaption = 1;
constexpr int kReadCaption = 4;
constexpr int kWriteCaption = 5;

// The frames: RSSI, then the PWM values ("Power DA"), then the noise thresholds.
int frameOf(CalibrationField field) {
    switch (field) {
        case CalibrationField::RssiNarrow:
        case CalibrationField::RssiWide:
            return 0;
        case CalibrationField::NoiseNarrow:
        case CalibrationField::NoiseWide:
            return 2;
        default:
            return 1;
    }
}

}  // namespace

CalibrationWindow::CalibrationWindow(ServiceChannel& channel, WindowPrompts& prompts,
                                     QWidget* parent)
    : QWidget(parent, Qt::Window), channel_(channel), prompts_(prompts), panel_(channel) {
    setObjectName(QStringLiteral("Form3"));
    setWindowTitle(fixed(l10n::fixed::kCalibrationWindowTitle));

    rssiFrame_ = new QGroupBox;
    const std::array<QGroupBox*, 3> frames = {
        rssiFrame_, new QGroupBox(fixed(l10n::fixed::kCalibrationPowerFrame)),
        new QGroupBox(fixed(l10n::fixed::kCalibrationNoiseFrame))};
    std::array<QGridLayout*, 3> rows{};
    std::array<int, 3> used{};
    for (size_t i = 0; i < frames.size(); ++i) {
        rows[i] = new QGridLayout(frames[i]);
        rows[i]->setColumnStretch(1, 1);
    }
    // The controls are numbered in the order of the fields: HScroll1/Text1 is the first.
    for (const CalibrationFieldInfo& info : calibrationFields()) {
        const int n = static_cast<int>(info.field);
        const QByteArray number = QByteArray::number(n + 1);
        auto* slider = named(new QScrollBar(Qt::Horizontal), ("HScroll" + number).constData());
        slider->setMinimumWidth(220);
        auto* box = named(new QLineEdit, ("Text" + number).constData());
        box->setMaximumWidth(60);
        values_[static_cast<size_t>(n)] =
            new SliderBox(slider, box, calibrationSlider(info.field), this);
        slider->setValue(info.initial);
        labels_[static_cast<size_t>(n)] = new QLabel;

        const auto f = static_cast<size_t>(frameOf(info.field));
        QGridLayout* frame = rows[f];
        const int row = used[f]++;
        frame->addWidget(labels_[static_cast<size_t>(n)], row, 0);
        frame->addWidget(slider, row, 1);
        frame->addWidget(box, row, 2);
    }

    readButton_ = named(new QPushButton, "Command1");
    writeButton_ = named(new QPushButton, "Command2");
    bandButton_ = named(new QPushButton(fixed(l10n::fixed::kBandWindowTitle)), "Command3");
    versionButton_ = named(new QPushButton(fixed(l10n::fixed::kCalibrationVersion)), "Command4");
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {readButton_, writeButton_, bandButton_, versionButton_}) {
        buttons->addWidget(button);
    }

    auto* layout = new QVBoxLayout(this);
    for (QGroupBox* frame : frames) layout->addWidget(frame);
    layout->addLayout(buttons);
    applyCaptions();

    connect(readButton_, &QPushButton::clicked, this, [this] { run(&CalibrationPanel::read); });
    connect(writeButton_, &QPushButton::clicked, this, [this] { run(&CalibrationPanel::write); });
    connect(bandButton_, &QPushButton::clicked, this, &CalibrationWindow::openBandWindow);
    connect(versionButton_, &QPushButton::clicked, this,
            [this] { run(&CalibrationPanel::readVersion); });
    connect(&panel_, &ServicePanel::runningChanged, this, [this](bool running) {
        for (QPushButton* button : {readButton_, writeButton_, versionButton_}) {
            button->setEnabled(!running);
        }
    });
    connect(&panel_, &ServicePanel::finished, this, [this](ServiceOutcome outcome) {
        if (outcome == ServiceOutcome::Succeeded) showValues();
    });
    connect(&channel_, &ServiceChannel::languageChanged, this, &CalibrationWindow::applyCaptions);
}

CalibrationWindow::~CalibrationWindow() {
    panel_.cancel();
}

void CalibrationWindow::applyCaptions() {
    const UiLanguage language = channel_.language();
    rssiFrame_->setTitle(l10n::serviceCaption(kRssiFrameCaption, language));
    readButton_->setText(l10n::serviceCaption(kReadCaption, language));
    writeButton_->setText(l10n::serviceCaption(kWriteCaption, language));
    for (const CalibrationFieldInfo& info : calibrationFields()) {
        QString caption;
        if (info.field == CalibrationField::NoiseNarrow) {
            caption = fixed(l10n::fixed::kCalibrationNoiseNarrow);
        } else if (info.field == CalibrationField::NoiseWide) {
            caption = fixed(l10n::fixed::kCalibrationNoiseWide);
        } else {
            caption = calibrationFieldLabel(info.field, language);
        }
        labels_[static_cast<size_t>(info.field)]->setText(caption);
    }
    // One label width for the three frames, so that their sliders line up.
    int width = 0;
    for (QLabel* label : labels_) {
        label->setMinimumWidth(0);
        width = std::max(width, label->sizeHint().width());
    }
    for (QLabel* label : labels_) label->setMinimumWidth(width);
}

void CalibrationWindow::run(bool (CalibrationPanel::*operation)()) {
    // The panel starts from the boxes: a read leaves the receive PWM as the box shows it.
    takeValues();
    (panel_.*operation)();
}

void CalibrationWindow::takeValues() {
    for (size_t f = 0; f < values_.size(); ++f) panel_.values.text[f] = values_[f]->text();
}

void CalibrationWindow::showValues() {
    for (size_t f = 0; f < values_.size(); ++f) values_[f]->show(panel_.values.text[f]);
}

void CalibrationWindow::openBandWindow() {
    service_ui::showOnce(bandWindow_, this, channel_, prompts_);
}
