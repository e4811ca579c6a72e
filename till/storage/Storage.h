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
 * was done to them. While it lives, nobody else can open the file. It must stay on one thread, and
 * a QCoreApplication must exist.
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
     * left as it was.
     */
    static std::unique_ptr<Storage> open(const QString &path, QString *error);
    ~Storage();
    Q_DISABLE_COPY_MOVE(Storage)

    /*!
     * The newest receipt that was neither closed nor cancelled. Nothing when there is none, with
     * \a error empty, or when it cannot be read, with \a error saying why. Plugin data of types
     * that a plugin brought along can be read once it has registered them.
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
    //! with the reason, when it cannot be read.
    std::optional<ReceiptRecord> receipt(qint64 id, QString *error) const;

    //! What was done to that receipt, oldest first; empty for an unknown number.
    QList<JournalEntry> journal(qint64 receiptId) const;

    //! The path as it was given.
    QString path() const;

private:
    explicit Storage(std::unique_ptr<Database> database);

    std::unique_ptr<Database> m_database;
    std::unique_ptr<StoredReceipt> m_last; //!< what was saved last, to see what a save must write
};

} // namespace till

#endif // TILL_STORAGE_STORAGE_H
