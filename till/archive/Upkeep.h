#ifndef TILL_ARCHIVE_UPKEEP_H
#define TILL_ARCHIVE_UPKEEP_H

#include "till/receipt/ReceiptRecord.h"
#include "till/result/Result.h"

#include <QtCore/QList>
#include <QtCore/QString>

namespace till {

// What is done with a database from outside, also while a till has it open. The file stays as it
// is.

//! A receipt that does not hold, or was set apart.
struct OddReceipt
{
    qint64 id = 0;
    bool isSetApart = false;
    QString reason; //!< what is wrong with it, or was when it was set apart
};

//! A row of a journal that does not hold.
struct JournalFault
{
    qint64 receipt = 0;
    QString reason;
};

//! What a check of a database found.
struct CheckReport
{
    Result<> fileHolds; //!< the file itself, by SQLite's own check
    qint64 whole = 0;   //!< receipts that hold
    QList<OddReceipt> odd;
    bool hasAll = true;                //!< else the file is so damaged that some were not found
    QList<JournalFault> journalFaults; //!< of receipts that are not set apart

    //! Nothing is damaged but what was set apart.
    bool isGood() const;
};

//! Checks the file, and every receipt in it against its digest and the till's limits. The
//! fault is that \a path cannot be opened or is not of today's format.
Result<CheckReport> checkDatabase(const QString &path);

//! Writes a whole copy of the database, with the log of a till that is on or was killed, to
//! \a target, where there must be nothing yet.
Result<> backUp(const QString &path, const QString &target);

} // namespace till

#endif // TILL_ARCHIVE_UPKEEP_H
