#ifndef TILL_STORAGE_VALUEWRITER_H
#define TILL_STORAGE_VALUEWRITER_H

#include "till/database/Table.h"
#include "till/receipt/ValueChange.h"
#include "till/result/Result.h"

#include <QtCore/QMap>

#include <vector>

namespace till {

class Database;

/*!
 * A row of a value that a plugin stored. A list has a row for itself, empty, and one for each of
 * its elements, in the order of their places, which need not follow one another; any other value is
 * one row.
 */
struct StoredElement
{
    qint64 place = 0;
    QByteArray digest; //!< empty as long as it was not written
};

//! The rows of all values of a receipt, by plugin and key.
using StoredValues = QMap<QString, QMap<QString, std::vector<StoredElement>>>;

//! Writes what became of one value.
class ValueWriter
{
public:
    //! \a rows are those of the value; \a contents has their digests.
    ValueWriter(Database &database, qint64 receipt, const QString &plugin, const QString &key,
                std::vector<StoredElement> &rows, RowsDigest &contents);

    //! Notes a change, and takes out the rows of what it removes.
    Result<> apply(const ValueChange &change);
    //! Writes what is left of all changes.
    Result<> write();

private:
    Result<> replace(const QVariant &value);
    Result<> replace(const ListChange &part);
    Result<> cut(qsizetype from, qsizetype count);
    void appendAll(const QVariantList &elements);
    void append(const QVariant &value);
    Result<> remove(const StoredElement &row);
    Result<> write(StoredElement &row, const QVariant &value);

    Database &m_database;
    qint64 m_receipt;
    QString m_plugin;
    QString m_key;
    std::vector<StoredElement> &m_rows;
    RowsDigest &m_contents;
    QMap<qint64, QVariant> m_pending; //!< what is to be written, by place
};

} // namespace till

#endif // TILL_STORAGE_VALUEWRITER_H
