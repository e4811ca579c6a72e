#include "window/archive/KeptReceiptsModel.h"

#include "till/language/TillMessages.h"
#include "till/reports/ReceiptRows.h"

#include <algorithm>

namespace till {

KeptReceiptsModel::KeptReceiptsModel(const Translator &translator, QObject *parent)
    : QAbstractTableModel(parent)
    , m_translator(translator)
{
}

Result<> KeptReceiptsModel::read(Archive &archive, const Selection &selection)
{
    QList<KeptReceipt> receipts; // the oldest first; twice as many at most, and then the later half
    qint64 count = 0;
    const Result<> listed = archive.list(selection, [&](const KeptReceipt &receipt) -> Result<> {
        if (receipts.size() == 2 * most)
            receipts.remove(0, most);
        receipts.append(receipt);
        ++count;
        return {};
    });
    if (!listed) {
        clear();
        return listed;
    }
    receipts.remove(0, std::max<qsizetype>(receipts.size() - most, 0));
    std::reverse(receipts.begin(), receipts.end());
    beginResetModel();
    m_receipts = receipts;
    m_count = count;
    endResetModel();
    return {};
}

void KeptReceiptsModel::clear()
{
    beginResetModel();
    m_receipts.clear();
    m_count = 0;
    endResetModel();
}

void KeptReceiptsModel::translate(const Translator &translator)
{
    m_translator = translator;
    if (!m_receipts.isEmpty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, What));
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, What);
}

int KeptReceiptsModel::rowOf(qint64 number) const
{
    const auto found =
        std::find_if(m_receipts.cbegin(), m_receipts.cend(),
                     [number](const KeptReceipt &receipt) { return receipt.record.id == number; });
    return found == m_receipts.cend() ? -1 : static_cast<int>(found - m_receipts.cbegin());
}

int KeptReceiptsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_receipts.size());
}

int KeptReceiptsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : columns;
}

QVariant KeptReceiptsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return textAt(m_receipts[index.row()], index.column());
    if (role == Qt::TextAlignmentRole && (index.column() == Number || index.column() == Total))
        return QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignVCenter));
    return {};
}

QString KeptReceiptsModel::textAt(const KeptReceipt &receipt, int column) const
{
    if (column == Number)
        return QString::number(receipt.record.id);
    if (column == What)
        return wordsOf(receipt, m_translator);
    if (!receipt.recordHolds)
        return {};
    return column == Opened ? receipt.opened.toString(QStringLiteral("yyyy-MM-dd hh:mm"))
                            : toText(receipt.total);
}

QVariant KeptReceiptsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Number:
        return m_translator.text(messages::tillNumber());
    case Opened:
        return m_translator.text(told("till", "Opened"));
    case Total:
        return m_translator.text(messages::tillSum());
    default:
        return m_translator.text(messages::tillSale());
    }
}

} // namespace till
