#pragma once

#include <QAbstractTableModel>
#include <functional>

#include "model/codeplug.h"
#include "model/editing.h"
#include "model/notice.h"

class DocumentHistory;

// The channel grid as a view of the document: one row per slot, the channel number and the
// six cells of a ChannelRecord. Edits go through the document's operations; the model only
// shows the outcome and hands their notices on.
class ChannelGridModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { ChannelNumber, RxFrequency, RxCode, TxFrequency, TxCode, Bandwidth, Power };
    static constexpr int kColumnCount = 7;
    static constexpr int kFrequencyMaxLength = 9;

    ChannelGridModel(Codeplug& doc, DocumentHistory& history, QObject* parent = nullptr);

    // Where notices of an edit go (warning boxes), in order.
    void setNoticeHandler(std::function<void(const Notices&)> handler) {
        noticeHandler_ = std::move(handler);
    }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

    static bool isFrequency(int column) { return column == RxFrequency || column == TxFrequency; }
    static bool isCode(int column) { return column == RxCode || column == TxCode; }
    static bool isToggle(int column) { return column == Bandwidth || column == Power; }
    static CodeDirection directionOf(int column) {
        return column == RxFrequency || column == RxCode ? CodeDirection::Rx : CodeDirection::Tx;
    }

    bool isSlotEnabled(int slot) const;
    // A click on a cell: toggles, and the reformatting of frequency cells. Code cells open their
    // picker in the view.
    void cellClicked(const QModelIndex& index);
    // The picker of a code cell chose `position` of the active list; true when the custom tone
    // dialog must open.
    bool codePicked(const QModelIndex& index, int position);

    Codeplug& document() { return doc_; }
    // The document changed behind the model's back (a read, a file, a mode or language switch).
    void refresh();

private:
    QString cellText(int slot, int column) const;

    Codeplug& doc_;
    DocumentHistory& history_;
    std::function<void(const Notices&)> noticeHandler_;
};
