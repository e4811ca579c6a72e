#ifndef TILL_STORAGE_JOURNALROWS_H
#define TILL_STORAGE_JOURNALROWS_H

#include "till/storage/Storage.h"

namespace till {

class Database;

//! Appends to the receipt's journal, within a transaction of the caller's. False with the fault
//! noted.
bool writeJournal(Database &database, qint64 receiptId, const QList<JournalEntry> &journal);

//! What was done to the receipt, oldest first; with a fault noted, as far as it could be read.
QList<JournalEntry> readJournal(Database &database, qint64 receiptId);

} // namespace till

#endif // TILL_STORAGE_JOURNALROWS_H
