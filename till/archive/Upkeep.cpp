#include "till/archive/Upkeep.h"

#include "till/database/Database.h"
#include "till/schema/ReceiptReader.h"
#include "till/schema/Schema.h"
#include "till/schema/SetApart.h"
#include "till/storage/JournalRows.h"

#include <algorithm>
#include <utility>

namespace till {

namespace {

//! The reason of the fault that was noted, which is forgotten; empty when there is none.
QString takeReason(Database &database)
{
    return database.takeFault().value_or(Fault()).reason;
}

QList<qint64> numbers(Database &database)
{
    QList<qint64> ids;
    QSqlQuery *const rows = database.run(QStringLiteral(
        "SELECT id FROM receipts UNION SELECT receipt FROM positions UNION SELECT receipt FROM "
        "softChecks UNION SELECT receipt FROM pluginData UNION SELECT receipt FROM journal UNION "
        "SELECT receipt FROM setApart UNION SELECT seq FROM sqlite_sequence ORDER BY 1"));
    while (rows && database.next(*rows))
        ids.append(rows->value(0).toLongLong());
    return ids;
}

//! What is wrong with the receipt; empty when it holds.
QString faultOf(Database &database, qint64 id)
{
    const auto read = readRows(database, id);
    if (read)
        return read->anyFault();
    const QString reason = takeReason(database);
    return reason.isEmpty() ? QStringLiteral("its header is missing") : reason;
}

void checkReceipts(Database &database, CheckReport &report)
{
    const QMap<qint64, QString> apart = receiptsSetApart(database);
    const QList<qint64> all = numbers(database);
    if (database.hasFailed()) {
        report.hasAll = false;
        report.fileFault = report.fileFault.isEmpty() ? takeReason(database) : report.fileFault;
        database.forgetFault();
    }
    for (const qint64 id : all) {
        if (const auto reason = apart.constFind(id); reason != apart.cend())
            report.odd.append({id, true, *reason});
        else if (const QString fault = faultOf(database, id); !fault.isEmpty())
            report.odd.append({id, false, fault});
        else
            ++report.whole;
    }
    eachOfJournal(database, {}, [&](const JournalRow &row) {
        if (!row.fault.isEmpty() && !apart.contains(row.receipt))
            report.journalFaults.append({row.receipt, row.fault});
    });
}

} // namespace

bool CheckReport::isGood() const
{
    return fileFault.isEmpty() && hasAll && journalFaults.isEmpty()
           && std::all_of(odd.cbegin(), odd.cend(),
                          [](const OddReceipt &receipt) { return receipt.isSetApart; });
}

Result<CheckReport> checkDatabase(const QString &path)
{
    const auto opened = Database::open(path, Database::Access::Reading);
    if (!opened)
        return opened.error();
    const auto &database = *opened;
    if (!isReadable(*database))
        return database->fault();
    CheckReport report;
    database->execute(QStringLiteral("BEGIN")); // all is read as of one moment
    const bool isWhole = database->checkFile() && isComplete(*database);
    report.fileFault = takeReason(*database);
    checkReceipts(*database, report);
    if (isWhole) // else what follows from the damage
        report.fileFault = takeReason(*database);
    database->rollBack();
    return report;
}

Result<> backUp(const QString &path, const QString &target)
{
    const auto database = Database::open(path, Database::Access::Reading);
    if (!database)
        return database.error();
    if (!isOurs(**database) || !(*database)->copyTo(target))
        return (*database)->fault();
    return {};
}

} // namespace till
