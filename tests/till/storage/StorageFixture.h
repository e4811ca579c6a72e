#ifndef TESTS_TILL_STORAGE_STORAGEFIXTURE_H
#define TESTS_TILL_STORAGE_STORAGEFIXTURE_H

#include "tests/support/Patience.h"
#include "tests/till/support/FolderTest.h"
#include "tests/till/support/Results.h"
#include "till/storage/Storage.h"

#include <ostream>

namespace till {

void PrintTo(const LineRecord &line, std::ostream *out);
void PrintTo(const ReceiptRecord &record, std::ostream *out);
void PrintTo(const JournalEntry &entry, std::ostream *out);

//! A folder for one database, and what a register does with it.
class StorageTest : public FolderTest
{
protected:
    QString path(const QString &name = QStringLiteral("till.db")) const
    {
        return FolderTest::path(name);
    }

    //! Opens the database, which must succeed.
    static std::unique_ptr<Storage> opened(const QString &path);
    std::unique_ptr<Storage> opened() const { return opened(path()); }

    //! Opens the database, which must fail; the error.
    static QString refusalOf(const QString &path);
    QString refusal() const { return refusalOf(path()); }

    //! Saves the whole receipt, which must succeed.
    static void save(Storage &storage, ReceiptRecord &record,
                     const QList<JournalEntry> &journal = {});
    //! The same, which may fail; the error.
    static QString trySave(Storage &storage, ReceiptRecord &record,
                           const QList<JournalEntry> &journal = {});

    //! The unfinished receipt, reading which must succeed.
    static std::optional<ReceiptRecord> unfinished(const Storage &storage);

    //! Runs \a sql on a database that no storage has open; the first column of the rows.
    static QStringList query(const QString &path, const QString &sql);
    QStringList query(const QString &sql) const { return query(path(), sql); }

    //! A receipt with \a count positions.
    static ReceiptRecord receiptOf(int count);
    //! A database with one unfinished receipt of that many positions; what was saved.
    ReceiptRecord leaveUnfinished(int count) const;
    //! A database of many pages, the middle one of which holds nothing of it any more; its bytes.
    QByteArray leaveDamaged() const;
};

//! What the database at \a path, which a storage may have open, has in the journal of that receipt.
QList<JournalEntry> journalOf(const QString &path, qint64 receipt);

//! A position of a plain article.
LineRecord lineOf(int posnum, double count = 1.0);
//! A position with something unusual in every field.
LineRecord oddLine();
//! A receipt that uses every field.
ReceiptRecord withEverything();

} // namespace till

#endif // TESTS_TILL_STORAGE_STORAGEFIXTURE_H
