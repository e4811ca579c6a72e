#ifndef TILL_STORAGE_STORAGE_H
#define TILL_STORAGE_STORAGE_H

#include "till/receipt/ReceiptRecord.h"
#include "till/result/Result.h"

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
 * The place of a fault is the path as it was given.
 */
class Storage
{
public:
    //! What a database is opened for.
    enum class For {
        Selling,
        SettingApart, //!< which a file that is damaged elsewhere does not stop
    };

    /*!
     * Opens the database at \a path, or makes it when there is no file; ":memory:" is one that goes
     * with the object. A file that is in use, damaged, another program's or another version's, or
     * cannot be written is left as it was. One of the format before is brought to today's: see
     * `copyBefore`. A file that was left by a killed till is checked as a whole before anything is
     * sold on it.
     */
    static Result<std::unique_ptr<Storage>> open(const QString &path, For use = For::Selling);
    ~Storage();
    Q_DISABLE_COPY_MOVE(Storage)

    //! The copy that was made of the file before it was brought to today's format; empty when it
    //! had that.
    QString copyBefore() const { return m_copyBefore; }

    /*!
     * The newest receipt that was neither closed nor cancelled, nor set apart; nothing when there
     * is none. The fault of one that does not hold says how to go on without it. Plugin data of
     * types that a plugin brought along can be read once it has registered them.
     */
    Result<std::optional<ReceiptRecord>> unfinishedReceipt() const;

    /*!
     * Stores \a update, and appends \a journal to the receipt's journal, all or nothing; when it
     * returns, this is on the disk. A receipt without a number gets one. Only what the update has
     * is written. One that is not whole follows the last save, which was of the same receipt.
     *
     * With a fault nothing is stored, \a update is unchanged, and a later save of the whole receipt
     * may succeed.
     */
    Result<> save(ReceiptUpdate &update, const QList<JournalEntry> &journal);

    //! The receipt with that number; nothing when there is none.
    Result<std::optional<ReceiptRecord>> receipt(qint64 id) const;

    //! What holds of the receipt's header and lines, whatever else of it does not, each line's
    //! number once; no lines of one that cannot be read.
    ReceiptRecord remains(qint64 id) const;

    //! Sets the receipt apart: it stays as it is, and is never taken up again. Returns the reason,
    //! what does not hold or that it is unfinished. A fault of an unknown number and of a finished
    //! receipt that holds.
    Result<QString> setApart(qint64 id);

    //! The path as it was given.
    QString path() const;

private:
    explicit Storage(std::unique_ptr<Database> database);

    std::unique_ptr<Database> m_database;
    QString m_copyBefore;
    std::unique_ptr<StoredReceipt> m_stored; //!< what was saved last
};

} // namespace till

#endif // TILL_STORAGE_STORAGE_H
