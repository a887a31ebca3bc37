#pragma once

#include <QString>
#include <QStyledItemDelegate>

class QAbstractItemView;

// The cell editor of an engineering grid: every printable key typed into it must pass the
// panel's key rule for the cell's column. Editing and moving keys pass untouched.
class KeyFilteredDelegate : public QStyledItemDelegate {
public:
    using KeyRule = bool (*)(int column, const QString& text, QChar key);
    enum class Enter { Commits, MovesOn };

    KeyFilteredDelegate(KeyRule rule, const char* editorName, Enter enter, QObject* parent);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;

protected:
    bool eventFilter(QObject* editor, QEvent* event) override;

private:
    KeyRule rule_;
    const char* editorName_;
    Enter enter_;
};

// A cell still being edited counts with what it holds: its editor is committed and closed, and
// the same cell stays current.
void commitCellEditor(QAbstractItemView* view);
