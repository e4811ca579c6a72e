#ifndef TILL_ARCHIVE_ARCHIVE_H
#define TILL_ARCHIVE_ARCHIVE_H

#include "till/receipt/ReceiptRecord.h"
#include "till/result/Result.h"
#include "till/storage/Storage.h"

#include <QtCore/QDate>
#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>

#include <functional>
#include <memory>
#include <optional>

namespace till {

class Database;
struct ReadReceipt;

//! Which receipts are looked up.
struct Selection
{
    QDate from;                 //!< opened on that day of the local calendar or later
    QDate to;                   //!< opened on that day or earlier
    QList<ReceiptState> states; //!< in one of these; empty: in any

    //! The same as the rest of a query for rows of `receipts`, oldest first. An index has them in
    //! that order, so that days are found, and read as they come, at the cost of these days alone.
    QString sql() const;
    //! Its conditions alone.
    QString conditions() const;
};

//! A receipt as it is kept, for whoever looks it up.
struct KeptReceipt
{
    ReceiptRecord record;
    QDateTime opened;     //!< of the local time; invalid when not known
    QDateTime ended;      //!< closed or cancelled; invalid before, and when not known
    qint64 positions = 0; //!< that are not stornoed
    Kopecks total = 0;    //!< of these
    QString setApart;     //!< why it was set apart; empty when it was not

    // Faults are of no place.
    Result<> recordHolds; //!< where it does not, nothing counts but its number
    Result<> dataHold;    //!< what plugins stored; where one of these does not, there are none

    Result<> holds() const
    {
        return recordHolds.then([this] { return dataHold; });
    }
};

//! What was done to a receipt, as it is kept.
struct KeptJournal
{
    QList<JournalEntry> entries; //!< that hold
    QStringList faults;          //!< of the others
};

/*!
 * The receipts of a database, to be looked up while a till has it open or without one. Everything
 * is as of one moment, the first look, however long the looks go on; a till is not held up by them.
 *
 * The place of a fault is the path as it was given.
 */
class Archive
{
public:
    //! The fault of a database that is not there, cannot be read, is none of the till's or not of
    //! today's format.
    static Result<std::unique_ptr<Archive>> open(const QString &path);
    ~Archive();
    Q_DISABLE_COPY_MOVE(Archive)

    //! Gives \a take the selected receipts one by one, as their headers have them, without
    //! soft-checks, lines and plugin data; until it returns a fault, which is that of the list
    //! then. It may look up others meanwhile.
    Result<> list(const Selection &selection,
                  const std::function<Result<>(const KeptReceipt &receipt)> &take);

    //! How many `list` would give.
    Result<qint64> count(const Selection &selection);

    //! All of the receipt, with the data of \a plugin alone; nothing when there never was one.
    //! Without these where what plugins stored does not hold.
    Result<std::optional<KeptReceipt>> receipt(qint64 id, const QString &plugin);

    //! What was done to that receipt, oldest first; empty for an unknown number.
    Result<KeptJournal> journal(qint64 id);

private:
    explicit Archive(std::unique_ptr<Database> database);

    KeptReceipt kept(const ReadReceipt &read) const;

    std::unique_ptr<Database> m_database;
    QMap<qint64, QString> m_setApart;
};

} // namespace till

#endif // TILL_ARCHIVE_ARCHIVE_H
