#include "mainwindow/channel_grid_model.h"

#include <QBrush>
#include <QColor>

#include "l10n/texts.h"
#include "mainwindow/document_history.h"

namespace {

constexpr int kFirstHeaderCaption = 40;  // "信道" … "发射功率", in column order

}  // namespace

ChannelGridModel::ChannelGridModel(Codeplug& doc, DocumentHistory& history, QObject* parent)
    : QAbstractTableModel(parent), doc_(doc), history_(history) {}

int ChannelGridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kSlotCount;
}

int ChannelGridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kColumnCount;
}

QString ChannelGridModel::cellText(int slot, int column) const {
    const ChannelRecord& ch = doc_.plan[slot];
    switch (column) {
        case ChannelNumber: return QString::number(slot + 1);
        case RxFrequency: return ch.rxfreq;
        case RxCode: return ch.rxctc;
        case TxFrequency: return ch.txfreq;
        case TxCode: return ch.txctc;
        case Bandwidth: return ch.band;
        case Power: return ch.power;
    }
    return {};
}

bool ChannelGridModel::isSlotEnabled(int slot) const {
    return RESET_Ch_Sel(doc_)[slot];
}

QVariant ChannelGridModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const int slot = index.row();
    const int column = index.column();
    switch (role) {
        case Qt::DisplayRole:
        case Qt::EditRole:
            return cellText(slot, column);
        case Qt::ToolTipRole:
            if (column == RxCode) return doc_.plan[slot].rxCodeToolTip;
            if (column == TxCode) return doc_.plan[slot].txCodeToolTip;
            return {};
        case Qt::TextAlignmentRole:
            return int(Qt::AlignCenter);
        case Qt::ForegroundRole:
            // The channel numbers are never cells, but they show which rows are active.
            if (column == ChannelNumber && isSlotEnabled(slot)) return QBrush(Qt::black);
            if (column == Power && isSlotEnabled(slot) &&
                powerColour(doc_.plan[slot].power) == kPowerColourHigh) {
                return QBrush(Qt::red);
            }
            return {};
        case Qt::BackgroundRole:
            // The channel numbers read as row labels, not as cells.
            if (column == ChannelNumber) return QBrush(QColor(0xf0, 0xf0, 0xf0));
            return {};
    }
    return {};
}

QVariant ChannelGridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole) return {};
    if (orientation == Qt::Vertical) return section + 1;
    return l10n::caption(kFirstHeaderCaption + section, doc_.language);
}

Qt::ItemFlags ChannelGridModel::flags(const QModelIndex& index) const {
    if (!index.isValid() || index.column() == ChannelNumber) return Qt::NoItemFlags;
    if (!isSlotEnabled(index.row())) return Qt::NoItemFlags;  // shown, but disabled
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    // The fixed-channel flag locks frequencies, bandwidth and power and disables the pickers.
    if (!doc_.channelsFixed && (isFrequency(index.column()) || isCode(index.column()))) {
        flags |= Qt::ItemIsEditable;
    }
    return flags;
}

bool ChannelGridModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable)) return false;
    if (!isFrequency(index.column())) return false;
    const QString text = value.toString();
    Notices notices;
    history_.record([&] {
        notices = index.column() == RxFrequency ? enterRxFrequency(doc_, index.row(), text)
                                                : enterTxFrequency(doc_, index.row(), text);
    });
    // The receive cell may have changed the transmit cell too.
    Q_EMIT dataChanged(this->index(index.row(), RxFrequency), this->index(index.row(), Power));
    if (!notices.empty() && noticeHandler_) noticeHandler_(notices);
    return true;
}

void ChannelGridModel::cellClicked(const QModelIndex& index) {
    if (!index.isValid() || !(flags(index) & Qt::ItemIsEnabled)) return;
    const int slot = index.row();
    switch (index.column()) {
        case Bandwidth:
            history_.record([&] { toggleBandwidth(doc_, slot); });
            Q_EMIT dataChanged(index, index);
            return;
        case Power:
            history_.record([&] { togglePower(doc_, slot); });
            Q_EMIT dataChanged(index, index);
            return;
        case RxFrequency:
        case TxFrequency: {
            bool reformatted = false;
            history_.record([&] {
                reformatted = frequencyCellClicked(doc_, slot, directionOf(index.column()));
            });
            if (reformatted) refresh();
            return;
        }
        default:
            return;
    }
}

bool ChannelGridModel::codePicked(const QModelIndex& index, int position) {
    if (!isCode(index.column()) || !(flags(index) & Qt::ItemIsEditable)) return false;
    bool customTone = false;
    history_.record([&] {
        customTone = pickCode(doc_, index.row(), directionOf(index.column()), position);
    });
    refresh();
    return customTone;
}

void ChannelGridModel::refresh() {
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, kColumnCount - 1);
    Q_EMIT dataChanged(index(0, 0), index(kSlotCount - 1, kColumnCount - 1));
}
