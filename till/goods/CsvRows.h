#ifndef TILL_GOODS_CSVROWS_H
#define TILL_GOODS_CSVROWS_H

#include "till/result/Result.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

#include <functional>

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

/*!
 * Reads the rows of \a text, which may end its lines with LF, CR LF or CR, and hands each to \a
 * take until that answers false; rows of which every field is empty are left out. A field that
 * holds quotes, separators or line breaks must be in double quotes, its own quotes doubled. The
 * fault, if any, lies behind the last row that was handed over. What \a take throws comes out of
 * here.
 */
Result<void, CsvFault> readCsv(const QByteArray &text, char separator,
                               const std::function<bool(const CsvRow &)> &take);

} // namespace till

#endif // TILL_GOODS_CSVROWS_H
