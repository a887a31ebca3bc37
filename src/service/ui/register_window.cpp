#include "service/ui/register_window.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QVBoxLayout>

#include "l10n/error_texts.h"
#include "l10n/window_texts.h"
#include "persistence/file_access.h"
#include "platform/window_prompts.h"
#include "service/ui/widget_names.h"

using service_ui::fixed;
using service_ui::named;

namespace {

// Text1, the cell editor: typed characters pass the register key filter of its column.
class RegisterKeyFilter : public QObject {
public:
    RegisterKeyFilter(QLineEdit* editor, int column)
        : QObject(editor), editor_(editor), column_(column) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
        const auto* key = static_cast<QKeyEvent*>(event);
        const QString typed = key->text();
        if (typed.size() != 1 || !typed[0].isPrint()) return false;  // editing and moving keys
        QString text = editor_->text();
        if (editor_->hasSelectedText())
            text.remove(editor_->selectionStart(), editor_->selectedText().size());
        return !registerKeyAccepted(column_, text, typed[0]);
    }

private:
    QLineEdit* editor_;
    int column_;
};

class RegisterCellDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override {
        QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
        if (auto* line = qobject_cast<QLineEdit*>(editor)) {
            line->setObjectName(QStringLiteral("Text1"));
            line->installEventFilter(new RegisterKeyFilter(line, index.column()));
        }
        return editor;
    }
};

}  // namespace

RegisterWindow::RegisterWindow(ServiceChannel& channel, WindowPrompts& prompts, QWidget* parent)
    : QWidget(parent, Qt::Window), channel_(channel), prompts_(prompts), panel_(channel) {
    setObjectName(QStringLiteral("Form9"));
    setWindowTitle(fixed(l10n::fixed::kRegisterWindowTitle));

    grid_ = named(new QTableWidget(RegisterGrid::kRows, 3), "MSFlexGrid1");
    grid_->setHorizontalHeaderLabels({fixed(l10n::fixed::kRegisterRowHeader),
                                      fixed(l10n::fixed::kRegisterAddressHeader),
                                      fixed(l10n::fixed::kRegisterDataHeader)});
    grid_->verticalHeader()->hide();
    grid_->setItemDelegate(new RegisterCellDelegate(grid_));
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
    // A cell still being edited counts with what it holds.
    // (leaving the current cell commits its editor).
    const QModelIndex current = grid_->currentIndex();
    grid_->setCurrentIndex({});
    grid_->setCurrentIndex(current);
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
    const QString path = prompts_.chooseOpenFile(fixed(l10n::fixed::kTextFilter));
    if (path.isEmpty()) return;
    const Result<QByteArray> bytes = readWholeFile(path);
    const UiLanguage language = channel_.language();
    if (!bytes) {
        prompts_.showMessage({l10n::describeError(bytes.error(), language), {}});
        return;
    }
    QString dropped;
    panel_.grid = registerGridFromFile(bytes.value(), language, &dropped);
    showGrid();
    if (!dropped.isEmpty()) {
        prompts_.showMessage({dropped, l10n::serviceText(l10n::ServiceText::TitleRfReg, language)});
    }
}

void RegisterWindow::saveFile() {
    takeGrid();
    const QString path = prompts_.chooseSaveFile(fixed(l10n::fixed::kTextFilter));
    if (path.isEmpty()) return;
    if (const Result<void> saved = saveWholeFile(path, registerFileBytes(panel_.grid)); !saved) {
        prompts_.showMessage({l10n::describeError(saved.error(), channel_.language()), {}});
    }
}
