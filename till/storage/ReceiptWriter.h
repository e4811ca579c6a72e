#ifndef TILL_STORAGE_RECEIPTWRITER_H
#define TILL_STORAGE_RECEIPTWRITER_H

#include "till/database/Table.h"
#include "till/receipt/ReceiptRecord.h"
#include "till/storage/ValueWriter.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

namespace till {

class Database;

//! What is to be known of a receipt that the database holds, to write what becomes of it.
struct StoredReceipt
{
    //! A row of a position, and what of it the header counts.
    struct Line
    {
        QByteArray digest;
        qint64 positions = 0;
        Kopecks total = 0;
    };

    qint64 id = 0; //!< 0: no receipt is known
    qint64 opened = 0;
    qint64 ended = 0;
    QList<Line> lines;
    QStringList softChecks;
    StoredValues values;

    // What its header has of all its rows; it follows a change of one without a look at the others.
    RowsDigest contents;
    qint64 positions = 0; //!< that are not stornoed
    Kopecks total = 0;    //!< of these
    QVariantList header;  //!< as it was written
};

/*!
 * Writes what \a update has, and brings \a stored up to date, which is what the database holds of
 * that receipt unless the update is whole. Gives the receipt a number when it has none. With a
 * fault \a stored is worth nothing. Works within a transaction of the caller's.
 */
Result<> writeReceipt(Database &database, ReceiptUpdate &update, StoredReceipt &stored);

} // namespace till

#endif // TILL_STORAGE_RECEIPTWRITER_H
