#ifndef WINDOW_RECEIPT_RECEIPTDELEGATE_H
#define WINDOW_RECEIPT_RECEIPTDELEGATE_H

#include <QtWidgets/QStyledItemDelegate>

class QTableView;

namespace till {

/*!
 * Draws the rows of a `ReceiptModel`: above, the cells; below, what is noted of the position,
 * across all columns. A tara has a bar of what is in it there, goods the sample of their look.
 */
class ReceiptDelegate final : public QStyledItemDelegate
{
public:
    //! Of the rows of \a table, which owns it.
    explicit ReceiptDelegate(QTableView &table);

    //! The height of every row.
    int rowHeight() const;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    //! The row as wide as the table, for what is drawn across the columns.
    QRect wholeRow(const QStyleOptionViewItem &option) const;

    QTableView &m_table;
};

} // namespace till

#endif // WINDOW_RECEIPT_RECEIPTDELEGATE_H
