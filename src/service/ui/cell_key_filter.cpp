#include "service/ui/cell_key_filter.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

class CellKeyFilter : public QObject {
public:
    CellKeyFilter(QLineEdit* editor, int column, KeyFilteredDelegate::KeyRule rule)
        : QObject(editor), editor_(editor), column_(column), rule_(rule) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
        const QString typed = static_cast<QKeyEvent*>(event)->text();
        if (typed.size() != 1 || !typed[0].isPrint()) return false;
        QString text = editor_->text();
        if (editor_->hasSelectedText())
            text.remove(editor_->selectionStart(), editor_->selectedText().size());
        return !rule_(column_, text, typed[0]);
    }

private:
    QLineEdit* editor_;
    int column_;
    KeyFilteredDelegate::KeyRule rule_;
};

}  // namespace

KeyFilteredDelegate::KeyFilteredDelegate(KeyRule rule, const char* editorName, Enter enter,
                                         QObject* parent)
    : QStyledItemDelegate(parent), rule_(rule), editorName_(editorName), enter_(enter) {}

QWidget* KeyFilteredDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                           const QModelIndex& index) const {
    QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
    if (auto* line = qobject_cast<QLineEdit*>(editor)) {
        line->setObjectName(QString::fromLatin1(editorName_));
        line->installEventFilter(new CellKeyFilter(line, index.column(), rule_));
    }
    return editor;
}

bool KeyFilteredDelegate::eventFilter(QObject* editor, QEvent* event) {
    if (enter_ == Enter::MovesOn && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            // Enter takes the technician to the next cell, as Tab does.
            QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
            return QStyledItemDelegate::eventFilter(editor, &tab);
        }
    }
    return QStyledItemDelegate::eventFilter(editor, event);
}

void commitCellEditor(QAbstractItemView* view) {
    // Leaving the current cell commits its editor; coming back must not open a new one.
    const QModelIndex current = view->currentIndex();
    const QAbstractItemView::EditTriggers triggers = view->editTriggers();
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setCurrentIndex({});
    view->setCurrentIndex(current);
    view->setEditTriggers(triggers);
}
