#ifndef TILL_DATABASE_TABLE_H
#define TILL_DATABASE_TABLE_H

#include "till/result/Result.h"

#include <QtCore/QByteArray>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

class QSqlQuery;

namespace till {

class Database;

/*!
 * A table whose rows each carry a digest of their table and all their other values, in a last
 * column `digest`. Since the key is among them, no two rows have the same digest.
 */
class Table
{
public:
    //! The first \a keys of \a columns are the key; `digest` is not among them.
    Table(const char *name, int keys, const QStringList &columns);

    //! The digest of a row with \a values, which must be of the types that a database gives back:
    //! whole numbers, numbers, texts, bytes.
    QByteArray digest(const QVariantList &values) const;

    //! Writes a row with its \a digest, in place of the one with its key.
    Result<> write(Database &database, const QVariantList &values, const QByteArray &digest) const;

    //! The beginning of a query for whole rows: all columns, the digest last.
    QString select() const { return m_select; }

    struct Row
    {
        QVariantList values;
        QByteArray digest;    //!< as it is stored
        bool isWhole = false; //!< it is as it was written
    };
    //! The row that \a rows, a result of `select`, stands on.
    Row row(const QSqlQuery &rows) const;

private:
    QByteArray m_name;
    qsizetype m_columns;
    QString m_select;
    QString m_write;
};

/*!
 * The digest of a set of rows, which follows a change of one row at the cost of that row. A set
 * that lacks a row, or has one of before or of elsewhere, has another.
 */
class RowsDigest
{
public:
    //! Puts the row with that digest into the set, or takes it out when it is in it. An empty
    //! digest stands for no row.
    void toggle(const QByteArray &row);

    //! What can be kept.
    QByteArray bytes() const { return m_bytes; }

private:
    QByteArray m_bytes = QByteArray(20, '\0'); // as long as the digest of a row
};

//! \a text as it comes back from a database: never null, and without what cannot stand in UTF-8.
QString storable(const QString &text);
QByteArray storable(const QByteArray &bytes);

} // namespace till

#endif // TILL_DATABASE_TABLE_H
