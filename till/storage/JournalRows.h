#ifndef TILL_STORAGE_JOURNALROWS_H
#define TILL_STORAGE_JOURNALROWS_H

#include "till/storage/Storage.h"

#include <functional>
#include <optional>

namespace till {

class Database;

//! Appends to the receipt's journal, within a transaction of the caller's.
Result<> writeJournal(Database &database, qint64 receiptId, const QList<JournalEntry> &journal);

//! A row of a journal as it was found.
struct JournalRow
{
    qint64 receipt = 0;
    Result<JournalEntry> entry; //!< or what is wrong with it
};

//! Gives \a take each row of the receipt's journal, or of all of them for no receipt, in the order
//! of writing; with a fault, as far as they could be read.
Result<> eachOfJournal(Database &database, std::optional<qint64> receiptId,
                       const std::function<void(const JournalRow &row)> &take);

} // namespace till

#endif // TILL_STORAGE_JOURNALROWS_H
