#ifndef TILL_SCHEMA_RECEIPTREADER_H
#define TILL_SCHEMA_RECEIPTREADER_H

#include "till/database/Table.h"
#include "till/database/VariantBytes.h"
#include "till/receipt/ReceiptRecord.h"
#include "till/result/Result.h"

#include <optional>

namespace till {

class Database;

//! A receipt as its rows have it, and whether they hold.
struct ReadReceipt
{
    ReceiptRecord record; //!< without the plugin data, and the lines that do not hold
    bool isHeaderWhole = false;

    // As its header has them.
    qint64 opened = 0;    //!< milliseconds since 1970; 0 when not known
    qint64 ended = 0;     //!< closed or cancelled; 0 before, and when not known
    qint64 positions = 0; //!< that are not stornoed
    Kopecks total = 0;    //!< of these

    //! A row of a value that a plugin stored, not looked into yet: those of one value follow one
    //! another in their order.
    struct Value
    {
        QString plugin;
        QString key;
        VariantBytes bytes;
    };
    QList<Value> values;

    // The first fault of each kind is of no place.
    Result<> recordHolds; //!< header, lines and soft-checks
    Result<> valuesHold;  //!< the rows of plugins' values

    Result<> holds() const
    {
        return recordHolds.then([this] { return valuesHold; });
    }
};

//! What the header says of a receipt. Its other rows are not read, and are not known to hold.
ReadReceipt headerOf(const Table::Row &row);

// There is nothing in the result for a receipt that is not there.

//! The receipt, which need not hold.
Result<std::optional<ReadReceipt>> readRows(Database &database, qint64 id);

//! The receipt, which must hold, with its plugin data.
Result<std::optional<ReceiptRecord>> readReceipt(Database &database, qint64 id);
//! The receipt that was read, which must hold, with its plugin data. The fault is of no place.
Result<ReceiptRecord> wholeOf(const ReadReceipt &read);

/*!
 * The newest receipt that was neither closed nor cancelled, nor set apart; it must hold. So must
 * the header of the newest of all, lest an unfinished one be taken for finished. The fault says how
 * to go on.
 */
Result<std::optional<ReceiptRecord>> readUnfinishedReceipt(Database &database);

//! The highest number that was ever given to a receipt; 0 when none was.
Result<qint64> highestNumber(Database &database);

//! The line that a row of positions has.
LineRecord lineOf(const QVariantList &values);

} // namespace till

#endif // TILL_SCHEMA_RECEIPTREADER_H
