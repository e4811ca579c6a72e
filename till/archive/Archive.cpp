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
    , m_setApart(receiptsSetApart(*m_database))
{
}

Archive::~Archive() = default;

Result<std::unique_ptr<Archive>> Archive::open(const QString &path)
{
    auto opened = Database::open(path, Database::Access::Reading);
    if (!opened)
        return opened.error();
    Database &database = **opened;
    if (!isReadable(database) || !database.execute(QStringLiteral("BEGIN")))
        return database.fault();
    std::unique_ptr<Archive> archive(new Archive(std::move(*opened)));
    if (database.hasFailed())
        return database.fault();
    return archive;
}

Result<> Archive::list(const Selection &selection,
                       const std::function<bool(const KeptReceipt &receipt)> &take)
{
    m_database->forgetFault();
    QSqlQuery *const rows = m_database->run(receiptsTable().select() + selection.sql());
    while (rows && m_database->next(*rows)) {
        const ReadReceipt header = headerOf(receiptsTable().row(*rows));
        if (!take(kept(header, header.fault))) {
            rows->finish();
            return {};
        }
    }
    if (m_database->hasFailed())
        return m_database->fault();
    return {};
}

Result<qint64> Archive::count(const Selection &selection)
{
    m_database->forgetFault();
    const QVariant count = m_database->valueOf(QStringLiteral("SELECT count(*) FROM receipts")
                                               + selection.conditions());
    if (!count.isValid())
        return m_database->fault();
    return count.toLongLong();
}

Result<std::optional<KeptReceipt>> Archive::receipt(qint64 id, const QString &plugin)
{
    m_database->forgetFault();
    std::optional<ReadReceipt> read = readRows(*m_database, id);
    if (m_database->hasFailed())
        return m_database->fault();
    if (!read)
        return std::optional<KeptReceipt>();
    read->values.removeIf([&](const ReadReceipt::Value &value) { return value.plugin != plugin; });
    const QString fault = read->anyFault();
    if (!fault.isEmpty())
        return std::optional(kept(*read, fault));
    const auto record = withValues(*m_database, *read);
    if (!record)
        return std::optional(kept(*read, m_database->takeFault()->reason));
    read->record = *record;
    return std::optional(kept(*read, {}));
}

Result<KeptJournal> Archive::journal(qint64 id)
{
    m_database->forgetFault();
    KeptJournal journal;
    eachOfJournal(*m_database, id, [&journal](const JournalRow &row) {
        if (row.fault.isEmpty())
            journal.entries.append(row.entry);
        else
            journal.faults.append(row.fault);
    });
    if (m_database->hasFailed())
        return m_database->fault();
    return journal;
}

KeptReceipt Archive::kept(const ReadReceipt &read, const QString &fault) const
{
    return {read.record,
            timeOf(read.opened),
            timeOf(read.ended),
            read.positions,
            read.total,
            fault,
            m_setApart.value(read.record.id)};
}

} // namespace till
