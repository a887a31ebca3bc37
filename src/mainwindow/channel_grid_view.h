#pragma once

#include <QStyledItemDelegate>
#include <QTableView>
#include <functional>

#include "model/editing.h"

class ChannelGridModel;

// Editors of the grid's cells: a frequency field that takes digits and "." up to nine
// characters, and the code picker (Combo3 for receive, Combo2 for transmit) holding the active
// code list. A pick is taken over at once.
class ChannelGridDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using CustomToneHandler = std::function<void(int slot, CodeDirection direction)>;

    ChannelGridDelegate(ChannelGridModel& model, QObject* parent = nullptr);
    void setCustomToneHandler(CustomToneHandler handler) { customTone_ = std::move(handler); }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

protected:
    bool eventFilter(QObject* editor, QEvent* event) override;

private:
    ChannelGridModel& model_;
    CustomToneHandler customTone_;
};

// The grid: a click toggles bandwidth and power, reformats frequencies and opens a code picker;
// Tab, Enter and the arrows move between cells, and typing into a frequency cell edits it.
class ChannelGridView : public QTableView {
    Q_OBJECT

public:
    ChannelGridView(ChannelGridModel& model, QWidget* parent = nullptr);
    ChannelGridDelegate& delegate() { return *delegate_; }
    // An open editor hands its text over and closes, before the document is used elsewhere.
    void finishEditing();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void onClicked(const QModelIndex& index);
    void openPicker(const QModelIndex& index);

    ChannelGridModel& model_;
    ChannelGridDelegate* delegate_;
};
