#include "till/archive/Archive.h"

#include "till/database/Database.h"
#include "till/schema/ReceiptReader.h"
#include "till/schema/Schema.h"
#include "till/schema/SetApart.h"
#include "till/storage/JournalRows.h"

#include <QtCore/QStringList>

#include <algorithm>

namespace till {

namespace {

QDateTime timeOf(qint64 milliseconds)
{
    return milliseconds == 0 ? QDateTime() : QDateTime::fromMSecsSinceEpoch(milliseconds);
}

//! The first moment of \a day, from the one on that stands for no known time.
qint64 beginOf(const QDate &day)
{
    return std::max(qint64(1), day.startOfDay().toMSecsSinceEpoch());
}

} // namespace

QString Selection::sql() const
{
    return conditions() + QStringLiteral(" ORDER BY opened, id");
}

QString Selection::conditions() const
{
    QStringList conditions;
    // One bound at each end: of two, SQLite may take the one that lets more through. A time that is
    // not known is on no day.
    if (from.isValid() || to.isValid())
        conditions.append(QStringLiteral("opened >= %1").arg(from.isValid() ? beginOf(from) : 1));
    if (to.isValid())
        conditions.append(QStringLiteral("opened < %1").arg(beginOf(to.addDays(1))));
    QStringList numbers;
    for (const ReceiptState state : states)
        numbers.append(QString::number(static_cast<int>(state)));
    if (!numbers.isEmpty())
        conditions.append(QStringLiteral("state IN (%1)").arg(numbers.join(QStringLiteral(", "))));
    return conditions.isEmpty()
               ? QString()
               : QStringLiteral(" WHERE ") + conditions.join(QStringLiteral(" AND "));
}

Archive::Archive(std::unique_ptr<Database> database)
    : m_database(std::move(database))
{
}

Archive::~Archive() = default;

Result<std::unique_ptr<Archive>> Archive::open(const QString &path)
{
    auto opened = Database::open(path, Database::Access::Reading);
    if (!opened)
        return opened.error();
    std::unique_ptr<Archive> archive(new Archive(std::move(*opened)));
    Database &database = *archive->m_database;
    const Result<> begun =
        checkFormat(database).then([&] { return database.holdStill(); }).then([&] {
            return readSetApart(database, archive->m_setApart);
        });
    if (!begun)
        return begun.error();
    return archive;
}

Result<> Archive::list(const Selection &selection,
                       const std::function<Result<>(const KeptReceipt &receipt)> &take)
{
    return m_database->each(
        receiptsTable().select() + selection.sql(), {},
        [&](const QSqlQuery &row) { return take(kept(headerOf(receiptsTable().row(row)))); });
}

Result<qint64> Archive::count(const Selection &selection)
{
    return m_database
        ->valueOf(QStringLiteral("SELECT count(*) FROM receipts") + selection.conditions())
        .then([](const QVariant &count) { return Result<qint64>(count.toLongLong()); });
}

Result<std::optional<KeptReceipt>> Archive::receipt(qint64 id, const QString &plugin)
{
    auto found = readRows(*m_database, id);
    if (!found)
        return found.error();
    if (!*found)
        return std::optional<KeptReceipt>();
    ReadReceipt &read = **found;
    KeptReceipt receipt = kept(read);
    read.values.removeIf([&](const ReadReceipt::Value &value) { return value.plugin != plugin; });
    if (const Result<ReceiptRecord> whole = wholeOf(read); whole)
        receipt.record = *whole;
    else if (receipt.recordHolds)
        receipt.dataHold = whole.error();
    return std::optional(receipt);
}

Result<KeptJournal> Archive::journal(qint64 id)
{
    KeptJournal journal;
    const Result<> read = eachOfJournal(*m_database, id, [&journal](const JournalRow &row) {
        if (row.entry)
            journal.entries.append(*row.entry);
        else
            journal.faults.append(row.entry.error().reason);
    });
    if (!read)
        return read.error();
    return journal;
}

KeptReceipt Archive::kept(const ReadReceipt &read) const
{
    return {.record = read.record,
            .opened = timeOf(read.opened),
            .ended = timeOf(read.ended),
            .positions = read.positions,
            .total = read.total,
            .setApart = m_setApart.value(read.record.id),
            .recordHolds = read.recordHolds,
            .dataHold = {}};
}

} // namespace till
