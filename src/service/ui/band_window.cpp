#include "service/ui/band_window.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QVBoxLayout>

#include "l10n/window_texts.h"
#include "platform/window_prompts.h"
#include "service/ui/cell_key_filter.h"
#include "service/ui/panel_file_dialogs.h"
#include "service/ui/slider_box.h"
#include "service/ui/widget_names.h"

using service_ui::fixed;
using service_ui::named;

namespace {

constexpr int kFrequencyWidth = 60;
constexpr int kValueWidth = 100;
constexpr int kRowHeight = 20;

// A "分段调整" frame: the lower and the upper half of the band, a slider and a box each.
QGroupBox* halvesFrame(const char* title, QScrollBar* low, QLineEdit* lowBox, QScrollBar* high,
                       QLineEdit* highBox) {
    auto* frame = new QGroupBox(fixed(title));
    auto* rows = new QGridLayout(frame);
    rows->addWidget(new QLabel(fixed(l10n::fixed::kBandLowHalf)), 0, 0);
    rows->addWidget(low, 0, 1);
    rows->addWidget(lowBox, 0, 2);
    rows->addWidget(new QLabel(fixed(l10n::fixed::kBandHighHalf)), 1, 0);
    rows->addWidget(high, 1, 1);
    rows->addWidget(highBox, 1, 2);
    rows->setColumnStretch(1, 1);
    return frame;
}

}  // namespace

BandWindow::BandWindow(ServiceChannel& channel, WindowPrompts& prompts, QWidget* parent)
    : QWidget(parent, Qt::Window), channel_(channel), prompts_(prompts), panel_(channel) {
    setObjectName(QStringLiteral("Form12"));
    setWindowTitle(fixed(l10n::fixed::kBandWindowTitle));

    grid_ = named(new QTableWidget(BandTable::kRows, 1 + BandTable::kColumns), "MSFlexGrid1");
    QStringList headers;
    for (const char* header : l10n::fixed::kBandHeaders) headers << fixed(header);
    grid_->setHorizontalHeaderLabels(headers);
    grid_->verticalHeader()->hide();
    grid_->horizontalHeader()->setStretchLastSection(true);
    grid_->verticalHeader()->setDefaultSectionSize(kRowHeight);
    grid_->setItemDelegate(new KeyFilteredDelegate(&bandKeyAccepted, "GridEditor",
                                                   KeyFilteredDelegate::Enter::MovesOn, grid_));
    // One click on a cell opens its editor.
    grid_->setEditTriggers(QAbstractItemView::AllEditTriggers);
    grid_->setColumnWidth(0, kFrequencyWidth);
    for (int c = 1; c <= BandTable::kColumns; ++c) grid_->setColumnWidth(c, kValueWidth);
    for (int r = 1; r <= BandTable::kRows; ++r) {
        auto* frequency = new QTableWidgetItem(bandFrequencyLabel(r));
        frequency->setFlags(Qt::ItemIsEnabled);
        grid_->setItem(r - 1, 0, frequency);
        for (int c = 1; c <= BandTable::kColumns; ++c)
            grid_->setItem(r - 1, c, new QTableWidgetItem);
    }
    grid_->setMinimumSize(kFrequencyWidth + BandTable::kColumns * kValueWidth + 24,
                          (BandTable::kRows + 1) * kRowHeight + 8);

    auto* left = new QVBoxLayout;
    left->addWidget(grid_, 1);
    left->addWidget(named(new QLabel(fixed(l10n::fixed::kBandSupply)), "Label1"));

    struct Button {
        const char* name;
        const char* caption;
    };
    const Button buttons[] = {
        {"Command1", l10n::fixed::kServiceRead},         {"Command2", l10n::fixed::kServiceWrite},
        {"Command4", l10n::fixed::kBandRestoreDefaults}, {"Command5", l10n::fixed::kPanelSaveFile},
        {"Command6", l10n::fixed::kPanelLoadFile},       {"Command7", l10n::fixed::kBandAdjust},
    };
    for (const Button& b : buttons)
        buttons_.append(named(new QPushButton(fixed(b.caption)), b.name));
    // Read and write, the file, then the radio's own table.
    auto* operations = new QGridLayout;
    operations->addWidget(buttons_[0], 0, 0);
    operations->addWidget(buttons_[1], 0, 1);
    operations->addWidget(buttons_[4], 1, 0);
    operations->addWidget(buttons_[3], 1, 1);
    operations->addWidget(buttons_[2], 2, 0, 1, 2);

    std::array<QScrollBar*, kBandSliders> bars{};
    std::array<QLineEdit*, kBandSliders> boxes{};
    for (const BandSliderInfo& info : bandSliders()) {
        const auto n = static_cast<size_t>(info.slider);
        const QByteArray number = QByteArray::number(static_cast<int>(n) + 1);
        bars[n] = named(new QScrollBar(Qt::Horizontal), ("HScroll" + number).constData());
        bars[n]->setMinimumWidth(160);
        boxes[n] = named(new QLineEdit, ("Text" + number).constData());
        boxes[n]->setMaximumWidth(60);
        sliders_[n] = new SliderBox(bars[n], boxes[n], info.scale, this);
        bars[n]->setValue(info.initial);
    }
    auto* adjustFrame = new QGroupBox(fixed(l10n::fixed::kBandAdjustFrame));
    auto* adjustLayout = new QVBoxLayout(adjustFrame);
    adjustLayout->addWidget(
        halvesFrame(l10n::fixed::kBandTxFrame, bars[0], boxes[0], bars[1], boxes[1]));
    adjustLayout->addWidget(
        halvesFrame(l10n::fixed::kBandRssiFrame, bars[2], boxes[2], bars[3], boxes[3]));
    auto* adjustRow = new QHBoxLayout;
    adjustRow->addStretch(1);
    adjustRow->addWidget(buttons_[5]);
    adjustLayout->addLayout(adjustRow);

    auto* right = new QVBoxLayout;
    right->addLayout(operations);
    right->addWidget(adjustFrame);
    right->addStretch(1);
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(left, 1);
    layout->addLayout(right);

    connect(buttons_[0], &QPushButton::clicked, this, [this] { run(&BandPanel::read); });
    connect(buttons_[1], &QPushButton::clicked, this, [this] { run(&BandPanel::write); });
    connect(buttons_[2], &QPushButton::clicked, this, [this] { run(&BandPanel::restoreDefaults); });
    connect(buttons_[3], &QPushButton::clicked, this, &BandWindow::saveFile);
    connect(buttons_[4], &QPushButton::clicked, this, &BandWindow::loadFile);
    connect(buttons_[5], &QPushButton::clicked, this, &BandWindow::adjust);
    connect(&panel_, &ServicePanel::runningChanged, this, [this](bool running) {
        for (QPushButton* button : buttons_) button->setEnabled(!running);
    });
    connect(&panel_, &ServicePanel::finished, this, &BandWindow::showTable);
}

BandWindow::~BandWindow() {
    panel_.cancel();
}

void BandWindow::run(bool (BandPanel::*operation)()) {
    takeTable();
    (panel_.*operation)();
}

void BandWindow::adjust() {
    takeTable();
    QStringList texts;
    for (const SliderBox* slider : sliders_) texts << slider->text();
    panel_.adjust(texts[0], texts[1], texts[2], texts[3]);
    // The fill stays in the grid even when its write is refused.
    showTable();
}

void BandWindow::takeTable() {
    commitCellEditor(grid_);
    for (int r = 1; r <= BandTable::kRows; ++r) {
        for (int c = 1; c <= BandTable::kColumns; ++c) {
            panel_.table.cell(r, c) = grid_->item(r - 1, c)->text();
        }
    }
}

void BandWindow::showTable() {
    // An editor left open would put its old text back over what is shown.
    commitCellEditor(grid_);
    for (int r = 1; r <= BandTable::kRows; ++r) {
        for (int c = 1; c <= BandTable::kColumns; ++c) {
            grid_->item(r - 1, c)->setText(panel_.table.cell(r, c));
        }
    }
}

void BandWindow::loadFile() {
    const UiLanguage language = channel_.language();
    const std::optional<QByteArray> bytes = openPanelFile(prompts_, language);
    if (!bytes) return;
    QString dropped;
    panel_.table = bandTableFromFile(*bytes, language, &dropped);
    showTable();
    grid_->setCurrentCell(0, BandTable::TxVoltage);
    if (!dropped.isEmpty()) {
        prompts_.showMessage(
            {dropped, l10n::serviceText(l10n::ServiceText::TitleBandInfo, language)});
    }
}

void BandWindow::saveFile() {
    takeTable();
    savePanelFile(prompts_, channel_.language(), bandFileBytes(panel_.table));
}
