#include "service/ui/hardware_window.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "l10n/board_texts.h"
#include "l10n/window_texts.h"
#include "service/ui/widget_names.h"

using service_ui::fixed;
using service_ui::named;

namespace {

QGroupBox* frameOf(const char* caption, const char* label, QComboBox* box) {
    auto* frame = new QGroupBox(fixed(caption));
    auto* row = new QHBoxLayout(frame);
    row->addWidget(new QLabel(fixed(label)));
    row->addWidget(box, 1);
    return frame;
}

QComboBox* listOf(const QStringList& items, const char* name) {
    auto* box = named(new QComboBox, name);
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->addItems(items);
    return box;
}

// Puts the item of `index` into the list, or an empty text when there is none.
void showItem(QComboBox* box, int index) {
    const QSignalBlocker quiet(box);
    box->setCurrentIndex(index < box->count() ? index : -1);
    if (index >= box->count()) box->setEditText(QString());
}

}  // namespace

HardwareWindow::HardwareWindow(ServiceChannel& channel, QWidget* parent)
    : QWidget(parent, Qt::Window), panel_(channel) {
    setObjectName(QStringLiteral("Form10"));
    setWindowTitle(fixed(l10n::fixed::kHardwareWindowTitle));
    pinBox_ = listOf(pttPinItems(), "Combo1");
    thresholdBox_ = listOf(thresholdItems(), "Combo2");
    readButton_ = named(new QPushButton(fixed(l10n::fixed::kServiceRead)), "Command1");
    writeButton_ = named(new QPushButton(fixed(l10n::fixed::kServiceWrite)), "Command2");

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(readButton_);
    buttons->addWidget(writeButton_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(frameOf(l10n::fixed::kPttFrame, l10n::fixed::kPttLabel, pinBox_));
    layout->addWidget(frameOf(l10n::fixed::kPKeyFrame, l10n::fixed::kPKeyLabel, thresholdBox_));
    layout->addLayout(buttons);
    setMinimumWidth(280);
    showOptions();

    // Every change of a list, chosen or typed, is taken at once (FM10chk_Combo1/2).
    connect(pinBox_, &QComboBox::currentTextChanged, this,
            [this](const QString& text) { panel_.options.PttPinIndex = FM10chk_Combo1(text); });
    connect(thresholdBox_, &QComboBox::currentTextChanged, this,
            [this](const QString& text) { panel_.options.PKeyLevelIndex = FM10chk_Combo2(text); });
    connect(readButton_, &QPushButton::clicked, &panel_, &HardwarePanel::read);
    connect(writeButton_, &QPushButton::clicked, &panel_, &HardwarePanel::write);
    connect(&panel_, &ServicePanel::runningChanged, this, [this](bool running) {
        readButton_->setEnabled(!running);
        writeButton_->setEnabled(!running);
    });
    connect(&panel_, &ServicePanel::finished, this, [this](ServiceOutcome outcome) {
        if (outcome == ServiceOutcome::Succeeded) showOptions();
    });
}

HardwareWindow::~HardwareWindow() {
    panel_.cancel();
}

void HardwareWindow::showOptions() {
    showItem(pinBox_, panel_.options.PttPinIndex);
    showItem(thresholdBox_, panel_.options.PKeyLevelIndex);
}
