#include "service/ui/register_window.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "l10n/window_texts.h"
#include "platform/window_prompts.h"
#include "service/ui/cell_key_filter.h"
#include "service/ui/panel_file_dialogs.h"
#include "service/ui/widget_names.h"

using service_ui::fixed;
using service_ui::named;

RegisterWindow::RegisterWindow(ServiceChannel& channel, WindowPrompts& prompts, QWidget* parent)
    : QWidget(parent, Qt::Window), channel_(channel), prompts_(prompts), panel_(channel) {
    setObjectName(QStringLiteral("Form9"));
    setWindowTitle(fixed(l10n::fixed::kRegisterWindowTitle));

    grid_ = named(new QTableWidget(RegisterGrid::kRows, 3), "MSFlexGrid1");
    grid_->setHorizontalHeaderLabels({fixed(l10n::fixed::kRegisterRowHeader),
                                      fixed(l10n::fixed::kRegisterAddressHeader),
                                      fixed(l10n::fixed::kRegisterDataHeader)});
    grid_->verticalHeader()->hide();
    grid_->setItemDelegate(new KeyFilteredDelegate(&registerKeyAccepted, "Text1",
                                                   KeyFilteredDelegate::Enter::Commits, grid_));
    grid_->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                           QAbstractItemView::AnyKeyPressed);
    grid_->setColumnWidth(0, 60);
    grid_->setColumnWidth(1, 110);
    grid_->setColumnWidth(2, 110);
    for (int r = 0; r < RegisterGrid::kRows; ++r) {
        auto* number = new QTableWidgetItem(QString::number(r + 1));
        number->setFlags(Qt::ItemIsEnabled);
        grid_->setItem(r, 0, number);
        grid_->setItem(r, 1, new QTableWidgetItem);
        grid_->setItem(r, 2, new QTableWidgetItem);
    }
    grid_->setMinimumSize(300, 330);

    auto* frame = new QGroupBox(fixed(l10n::fixed::kRegisterFrame));
    auto* frameLayout = new QVBoxLayout(frame);
    frameLayout->addWidget(grid_);

    struct Button {
        const char* name;
        const char* caption;
    };
    const Button buttons[] = {
        {"Command1", l10n::fixed::kRegisterClear},
        {"Command2", l10n::fixed::kRegisterReadEeprom},
        {"Command3", l10n::fixed::kRegisterSaveEeprom},
        {"Command4", l10n::fixed::kRegisterReadRfic},
        {"Command5", l10n::fixed::kRegisterWriteRfic},
        {"Command6", l10n::fixed::kPanelLoadFile},
        {"Command7", l10n::fixed::kPanelSaveFile},
    };
    auto* column = new QVBoxLayout;
    for (const Button& b : buttons) {
        buttons_.append(named(new QPushButton(fixed(b.caption)), b.name));
        column->addWidget(buttons_.last());
    }
    column->addStretch(1);

    auto* layout = new QHBoxLayout(this);
    layout->addWidget(frame, 1);
    layout->addLayout(column);

    connect(buttons_[0], &QPushButton::clicked, this, [this] { run(&RegisterPanel::clear); });
    connect(buttons_[1], &QPushButton::clicked, this, [this] { run(&RegisterPanel::readEeprom); });
    connect(buttons_[2], &QPushButton::clicked, this, [this] { run(&RegisterPanel::saveEeprom); });
    connect(buttons_[3], &QPushButton::clicked, this, [this] { run(&RegisterPanel::readRfic); });
    connect(buttons_[4], &QPushButton::clicked, this, [this] { run(&RegisterPanel::writeRfic); });
    connect(buttons_[5], &QPushButton::clicked, this, &RegisterWindow::loadFile);
    connect(buttons_[6], &QPushButton::clicked, this, &RegisterWindow::saveFile);
    connect(&panel_, &ServicePanel::runningChanged, this, [this](bool running) {
        for (QPushButton* button : buttons_) button->setEnabled(!running);
    });
    connect(&panel_, &ServicePanel::finished, this, &RegisterWindow::showGrid);
}

RegisterWindow::~RegisterWindow() {
    panel_.cancel();
}

void RegisterWindow::run(bool (RegisterPanel::*operation)()) {
    takeGrid();
    (panel_.*operation)();
}

void RegisterWindow::takeGrid() {
    commitCellEditor(grid_);
    for (int r = 1; r <= RegisterGrid::kRows; ++r) {
        panel_.grid.row(r) = {grid_->item(r - 1, 1)->text(), grid_->item(r - 1, 2)->text()};
    }
}

void RegisterWindow::showGrid() {
    for (int r = 1; r <= RegisterGrid::kRows; ++r) {
        grid_->item(r - 1, 1)->setText(panel_.grid.row(r).address);
        grid_->item(r - 1, 2)->setText(panel_.grid.row(r).value);
    }
}

void RegisterWindow::loadFile() {
    const UiLanguage language = channel_.language();
    const std::optional<QByteArray> bytes = openPanelFile(prompts_, language);
    if (!bytes) return;
    QString dropped;
    panel_.grid = registerGridFromFile(*bytes, language, &dropped);
    showGrid();
    if (!dropped.isEmpty()) {
        prompts_.showMessage({dropped, l10n::serviceText(l10n::ServiceText::TitleRfReg, language)});
    }
}

void RegisterWindow::saveFile() {
    takeGrid();
    savePanelFile(prompts_, channel_.language(), registerFileBytes(panel_.grid));
}
