#include "mainwindow/channel_grid_view.h"

#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpressionValidator>

#include "mainwindow/channel_grid_model.h"

namespace {

// Set on a picker once the user has chosen an entry: leaving a picker untouched changes nothing.
constexpr const char* kPickedProperty = "picked";

}  // namespace

ChannelGridDelegate::ChannelGridDelegate(ChannelGridModel& model, QObject* parent)
    : QStyledItemDelegate(parent), model_(model) {}

QWidget* ChannelGridDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                           const QModelIndex& index) const {
    const int column = index.column();
    if (ChannelGridModel::isCode(column)) {
        auto* picker = new QComboBox(parent);
        picker->setObjectName(column == ChannelGridModel::RxCode ? QStringLiteral("Combo3")
                                                                 : QStringLiteral("Combo2"));
        picker->addItems(model_.document().codeTable);
        // A scrolling list of twenty entries rather than one as tall as the screen.
        picker->setStyleSheet(QStringLiteral("combobox-popup: 0;"));
        picker->setMaxVisibleItems(20);
        connect(picker, &QComboBox::activated, this, [this, picker] {
            picker->setProperty(kPickedProperty, true);
            auto* self = const_cast<ChannelGridDelegate*>(this);
            Q_EMIT self->commitData(picker);
            Q_EMIT self->closeEditor(picker);
        });
        return picker;
    }
    if (ChannelGridModel::isFrequency(column)) {
        auto* field = new QLineEdit(parent);
        field->setObjectName(column == ChannelGridModel::RxFrequency ? QStringLiteral("Text1")
                                                                     : QStringLiteral("Text3"));
        field->setMaxLength(ChannelGridModel::kFrequencyMaxLength);
        // Digits and "." only; editing keys pass as usual.
        static const QRegularExpression frequencyChars(QStringLiteral("[0-9.]*"));
        field->setValidator(new QRegularExpressionValidator(frequencyChars, field));
        field->setAlignment(Qt::AlignCenter);
        return field;
    }
    return QStyledItemDelegate::createEditor(parent, option, index);
}

void ChannelGridDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    if (auto* picker = qobject_cast<QComboBox*>(editor)) {
        picker->setCurrentIndex(picker->findText(index.data(Qt::EditRole).toString()));
        return;
    }
    QStyledItemDelegate::setEditorData(editor, index);
}

void ChannelGridDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                       const QModelIndex& index) const {
    if (auto* picker = qobject_cast<QComboBox*>(editor)) {
        if (!picker->property(kPickedProperty).toBool() || picker->currentIndex() < 0) return;
        picker->setProperty(kPickedProperty, false);
        if (model_.codePicked(index, picker->currentIndex()) && customTone_) {
            customTone_(index.row(), ChannelGridModel::directionOf(index.column()));
        }
        return;
    }
    QStyledItemDelegate::setModelData(editor, model, index);
}

bool ChannelGridDelegate::eventFilter(QObject* editor, QEvent* event) {
    // Enter in a frequency field moves on, as Tab does.
    if (event->type() == QEvent::KeyPress && qobject_cast<QLineEdit*>(editor)) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Enter || key == Qt::Key_Return) {
            auto* widget = static_cast<QWidget*>(editor);
            Q_EMIT commitData(widget);
            Q_EMIT closeEditor(widget, QAbstractItemDelegate::EditNextItem);
            return true;
        }
    }
    return QStyledItemDelegate::eventFilter(editor, event);
}

ChannelGridView::ChannelGridView(ChannelGridModel& model, QWidget* parent)
    : QTableView(parent), model_(model), delegate_(new ChannelGridDelegate(model, this)) {
    setModel(&model);
    setItemDelegate(delegate_);
    setEditTriggers(AnyKeyPressed | EditKeyPressed | DoubleClicked);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectItems);
    setTabKeyNavigation(true);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setSectionResizeMode(ChannelGridModel::ChannelNumber,
                                             QHeaderView::ResizeToContents);
    horizontalHeader()->setHighlightSections(false);
    // A frequency never shows cut: a narrow window scrolls instead.
    horizontalHeader()->setMinimumSectionSize(
        fontMetrics().horizontalAdvance(QStringLiteral("000.000000")) + 12);
    connect(this, &QTableView::clicked, this, &ChannelGridView::onClicked);
}

void ChannelGridView::onClicked(const QModelIndex& index) {
    if (ChannelGridModel::isCode(index.column())) {
        openPicker(index);
        return;
    }
    model_.cellClicked(index);
}

void ChannelGridView::openPicker(const QModelIndex& index) {
    if (!(index.flags() & Qt::ItemIsEditable)) return;
    setCurrentIndex(index);
    edit(index);
    if (auto* picker = qobject_cast<QComboBox*>(indexWidget(index))) picker->showPopup();
}

void ChannelGridView::keyPressEvent(QKeyEvent* event) {
    const QModelIndex current = currentIndex();
    const bool editing = state() == EditingState;
    if (!editing && (event->key() == Qt::Key_Enter || event->key() == Qt::Key_Return)) {
        const QModelIndex next = moveCursor(MoveNext, event->modifiers());
        if (next.isValid()) setCurrentIndex(next);
        return;
    }
    if (!editing && event->key() == Qt::Key_Space && current.isValid()) {
        if (ChannelGridModel::isCode(current.column())) {
            openPicker(current);
        } else if (ChannelGridModel::isToggle(current.column())) {
            model_.cellClicked(current);
        }
        return;
    }
    QTableView::keyPressEvent(event);
}

void ChannelGridView::finishEditing() {
    if (state() != EditingState) return;
    if (QWidget* editor = indexWidget(currentIndex())) {
        commitData(editor);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
}
