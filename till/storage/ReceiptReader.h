#ifndef TILL_STORAGE_RECEIPTREADER_H
#define TILL_STORAGE_RECEIPTREADER_H

#include "till/receipt/ReceiptRecord.h"
#include "till/storage/Storage.h"

#include <optional>

namespace till {

class Database;

// Nothing is returned for what is not there, and, with the error noted, for what cannot be read.

std::optional<ReceiptRecord> readReceipt(Database &database, qint64 id);

//! The newest receipt that was neither closed nor cancelled.
std::optional<ReceiptRecord> readUnfinishedReceipt(Database &database);

//! The receipt's journal, oldest first.
QList<JournalEntry> readJournal(Database &database, qint64 receiptId);

} // namespace till

#endif // TILL_STORAGE_RECEIPTREADER_H
