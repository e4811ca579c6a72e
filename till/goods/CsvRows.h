#ifndef TILL_GOODS_CSVROWS_H
#define TILL_GOODS_CSVROWS_H

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

#include <limits>
#include <optional>

namespace till {

//! A row of a CSV text, its fields as bytes without surrounding white space.
struct CsvRow
{
    int line = 0; //!< where the row starts, from 1; quoted line breaks count
    QList<QByteArray> fields;
};

//! Why reading stopped before the end of the text.
struct CsvFault
{
    CsvRow row; //!< the broken row, up to the field that is wrong
    QString reason;
};

//! The rows of a CSV text, up to the first fault.
struct CsvRows
{
    QList<CsvRow> rows; //!< rows of which every field is empty are left out
    std::optional<CsvFault> fault;
};

/*!
 * Reads at most \a maxRows rows of \a text, which may end its lines with LF, CR LF or CR. A field
 * that holds quotes, separators or line breaks must be in double quotes, its own quotes doubled.
 */
CsvRows readCsv(const QByteArray &text, char separator,
                qsizetype maxRows = std::numeric_limits<qsizetype>::max());

} // namespace till

#endif // TILL_GOODS_CSVROWS_H
