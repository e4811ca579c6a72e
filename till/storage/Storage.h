#ifndef TILL_STORAGE_STORAGE_H
#define TILL_STORAGE_STORAGE_H

#include "till/receipt/ReceiptRecord.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

#include <memory>
#include <optional>

namespace till {

class Database;
struct StoredReceipt;

//! One action of a receipt's journal.
struct JournalEntry
{
    int depth = 0; //!< 0 for the cashier's own, 1 for what that one asked for, and so on
    QString kind;
    QByteArray json;

    bool operator==(const JournalEntry &other) const = default;
};

/*!
 * The register's database: receipts with their positions and plugin data, and the journal of what
 * was done to them. While it lives, no other till can open the file; others may read it. It must
 * stay on one thread, and a QCoreApplication must exist.
 *
 * Each receipt is stored with a digest over all that belongs to it, and nothing of one that does
 * not hold is ever given out as if it did.
 *
 * Errors come as one line of text that starts with the path.
 */
class Storage
{
public:
    /*!
     * Opens the database at \a path, or makes it when there is no file; ":memory:" is one that goes
     * with the object. Null, and the reason in \a error, when that cannot be done: the file is in
     * use, damaged, another program's or another version's, or cannot be written. Such a file is
     * left as it was. One of the format before is brought to today's: see `copyBefore`. A file that
     * was left by a killed till is checked as a whole.
     */
    static std::unique_ptr<Storage> open(const QString &path, QString *error);
    ~Storage();
    Q_DISABLE_COPY_MOVE(Storage)

    //! The copy that was made of the file before it was brought to today's format; empty when it
    //! had that.
    QString copyBefore() const { return m_copyBefore; }

    /*!
     * The newest receipt that was neither closed nor cancelled, nor set apart. Nothing when there
     * is none, with \a error empty, or when it cannot be read or does not hold, with \a error
     * saying why and how to go on. Plugin data of types that a plugin brought along can be read
     * once it has registered them.
     */
    std::optional<ReceiptRecord> unfinishedReceipt(QString *error) const;

    /*!
     * Stores \a record in place of what was stored under its number, and appends \a journal to the
     * receipt's journal, all or nothing; when it returns, this is on the disk. A record without a
     * number gets one. Only what differs from the last save is written.
     *
     * Returns an empty text; or the error, and then nothing is stored, \a record is unchanged, and
     * a later save may succeed.
     */
    QString save(ReceiptRecord &record, const QList<JournalEntry> &journal);

    //! The receipt with that number; nothing, with \a error empty, when there is none; nothing,
    //! with the reason, when it cannot be read or does not hold.
    std::optional<ReceiptRecord> receipt(qint64 id, QString *error) const;

    //! The same without the plugin data, which then need not hold.
    std::optional<ReceiptRecord> lines(qint64 id, QString *error) const;

    /*!
     * Sets the receipt apart: it stays as it is, and is never taken up again. Empty text; or why it
     * cannot be done, as for an unknown number or a finished receipt that holds.
     */
    QString setApart(qint64 id);

    //! What was done to that receipt, oldest first; empty for an unknown number.
    QList<JournalEntry> journal(qint64 receiptId) const;

    //! The path as it was given.
    QString path() const;

private:
    explicit Storage(std::unique_ptr<Database> database);

    std::unique_ptr<Database> m_database;
    QString m_copyBefore;
    std::unique_ptr<StoredReceipt> m_last; //!< what was saved last, to see what a save must write
};

} // namespace till

#endif // TILL_STORAGE_STORAGE_H
