#ifndef WINDOW_ARCHIVE_KEPTRECEIPTSMODEL_H
#define WINDOW_ARCHIVE_KEPTRECEIPTSMODEL_H

#include "till/archive/Archive.h"
#include "till/language/Translator.h"

#include <QtCore/QAbstractTableModel>

namespace till {

//! The receipts that are kept in a database, a row each, the newest above.
class KeptReceiptsModel final : public QAbstractTableModel
{
public:
    enum Column { Number, Opened, Total, What };
    static constexpr int columns = What + 1;
    //! So many rows at most: the newest.
    static constexpr qsizetype most = 1000;

    explicit KeptReceiptsModel(const Translator &translator, QObject *parent = nullptr);

    //! Reads those of \a selection anew from \a archive. With a fault there are none.
    Result<> read(Archive &archive, const Selection &selection);
    void clear();
    void translate(const Translator &translator);

    //! How many there are with those that have no row.
    qint64 count() const { return m_count; }
    //! The number of the receipt in \a row, which must be there.
    qint64 numberAt(int row) const { return m_receipts[row].record.id; }
    //! The row of the receipt with that number; -1 when it has none.
    int rowOf(qint64 number) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString textAt(const KeptReceipt &receipt, int column) const;

    Translator m_translator;
    QList<KeptReceipt> m_receipts;
    qint64 m_count = 0;
};

} // namespace till

#endif // WINDOW_ARCHIVE_KEPTRECEIPTSMODEL_H
