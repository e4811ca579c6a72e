#ifndef TILL_STORAGE_RECEIPTWRITER_H
#define TILL_STORAGE_RECEIPTWRITER_H

#include "till/database/Table.h"
#include "till/receipt/ReceiptRecord.h"
#include "till/storage/Storage.h"

#include <QtCore/QMap>

namespace till {

class Database;

//! A receipt as the database holds it.
struct StoredReceipt
{
    ReceiptRecord record;
    QMap<QString, QMap<QString, QByteArray>> digests; //!< of the plugin data, by plugin and key

    // What its header has besides the record's own fields; all of it follows a change of one row
    // without a look at the others.
    RowsDigest contents;
    qint64 opened = 0;
    qint64 ended = 0;
    qint64 positions = 0; //!< that are not stornoed
    Kopecks total = 0;    //!< of these
};

// Both work within a transaction of the caller's, and return false with the fault noted.

/*!
 * Writes what \a next has and \a last has not, and takes out what only \a last has. Gives the
 * record a number when it has none, and fills in all but the record. A \a last without a number
 * stands for "not known": everything is written anew.
 */
bool writeReceipt(Database &database, StoredReceipt &next, const StoredReceipt &last);

//! Appends to the receipt's journal.
bool writeJournal(Database &database, qint64 receiptId, const QList<JournalEntry> &journal);

} // namespace till

#endif // TILL_STORAGE_RECEIPTWRITER_H
