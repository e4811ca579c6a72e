#ifndef TILL_STORAGE_RECEIPTWRITER_H
#define TILL_STORAGE_RECEIPTWRITER_H

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
};

// Both work within a transaction of the caller's, and return false with the error noted.

/*!
 * Writes what \a next has and \a last has not, and takes out what only \a last has. Gives the
 * record a number when it has none, and fills in the digests. A \a last without a number stands for
 * "not known": everything is written anew.
 */
bool writeReceipt(Database &database, StoredReceipt &next, const StoredReceipt &last);

//! Appends to the receipt's journal.
bool writeJournal(Database &database, qint64 receiptId, const QList<JournalEntry> &journal);

} // namespace till

#endif // TILL_STORAGE_RECEIPTWRITER_H
