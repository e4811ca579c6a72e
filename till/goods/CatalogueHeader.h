#ifndef TILL_GOODS_CATALOGUEHEADER_H
#define TILL_GOODS_CATALOGUEHEADER_H

#include "till/goods/CsvRows.h"

#include <QtCore/QMap>

#include <optional>

namespace till {

//! Thrown while a catalogue is read, and turned into the fault that `Catalogue::load` returns.
struct CatalogueRefusal
{
    QString reason;
    int line = 0; //!< 0 when it is no line's
};

//! Throws the refusal of the row at \a line.
[[noreturn]] void refuseRow(int line, const QString &reason);

//! \a text in quotes, cut where it is long.
QString quoted(const QString &text);

//! The first row of a catalogue: which field of a row is what.
class CatalogueHeader
{
public:
    enum Column { Code, Name, Price, TaraMode, TaraCapacity, Pack, Unit };

    //! The column that a header calls so; nothing for one that is none of ours.
    static std::optional<Column> columnCalled(const QByteArray &name);

    //! Refuses a row in which a column is missing or named twice.
    explicit CatalogueHeader(const CsvRow &row);

    //! How many fields a row has.
    qsizetype size() const { return m_names.size(); }
    qsizetype indexOf(Column column) const { return m_indexes[column]; }

    //! Refuses the row at \a line for its field at \a index, which may lie behind the last column.
    [[noreturn]] void refuseField(int line, qsizetype index, const QString &reason) const;

    //! Refuses a row that is not UTF-8.
    void checkUtf8(const CsvRow &row) const;

private:
    QString nameOf(qsizetype index) const;
    void place(Column column, qsizetype index, int line);
    void checkComplete(int line) const;

    QList<QByteArray> m_names;
    QMap<Column, qsizetype> m_indexes;
};

} // namespace till

#endif // TILL_GOODS_CATALOGUEHEADER_H
