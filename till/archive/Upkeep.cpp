#include "till/archive/Upkeep.h"

#include "till/database/Database.h"
#include "till/schema/ReceiptReader.h"
#include "till/schema/Schema.h"
#include "till/schema/SetApart.h"
#include "till/storage/JournalRows.h"

#include <algorithm>

namespace till {

namespace {

//! Finds the number of each receipt of which anything is there; with a fault, as far as they could
//! be read.
Result<> findNumbers(Database &database, QList<qint64> &ids)
{
    return database.each(
        QStringLiteral(
            "SELECT id FROM receipts UNION SELECT receipt FROM positions UNION SELECT receipt FROM "
            "softChecks UNION SELECT receipt FROM pluginData UNION SELECT receipt FROM journal "
            "UNION SELECT receipt FROM setApart UNION SELECT seq FROM sqlite_sequence ORDER BY 1"),
        {}, [&ids](const QSqlQuery &row) { ids.append(row.value(0).toLongLong()); });
}

//! Whether the receipt holds.
Result<> checkReceipt(Database &database, qint64 id)
{
    return readRows(database, id).then([](const std::optional<ReadReceipt> &read) -> Result<> {
        return read ? read->holds() : Fault{{}, QStringLiteral("its header is missing")};
    });
}

//! Looks at every receipt and journal as far as they can be read.
Result<> checkReceipts(Database &database, CheckReport &report)
{
    QMap<qint64, QString> apart;
    QList<qint64> all;
    const Result<> foundApart = readSetApart(database, apart);
    const Result<> foundAll = findNumbers(database, all);
    for (const qint64 id : all) {
        if (const auto reason = apart.constFind(id); reason != apart.cend())
            report.odd.append({id, true, *reason});
        else if (const Result<> held = checkReceipt(database, id); !held)
            report.odd.append({id, false, held.error().reason});
        else
            ++report.whole;
    }
    const Result<> readJournals = eachOfJournal(database, {}, [&](const JournalRow &row) {
        if (!row.entry && !apart.contains(row.receipt))
            report.journalFaults.append({row.receipt, row.entry.error().reason});
    });
    report.hasAll = foundApart && foundAll;
    return !foundAll ? foundAll : !foundApart ? foundApart : readJournals;
}

} // namespace

bool CheckReport::isGood() const
{
    return fileHolds && hasAll && journalFaults.isEmpty()
           && std::all_of(odd.cbegin(), odd.cend(),
                          [](const OddReceipt &receipt) { return receipt.isSetApart; });
}

Result<CheckReport> checkDatabase(const QString &path)
{
    const auto opened = Database::open(path, Database::Access::Reading);
    if (!opened)
        return opened.error();
    const auto &database = *opened;
    const Result<> begun = checkFormat(*database).then([&] { return database->holdStill(); });
    if (!begun)
        return begun.error();
    CheckReport report;
    const Result<> whole = database->checkFile().then([&] { return checkTables(*database); });
    const Result<> read = checkReceipts(*database, report);
    report.fileHolds = whole ? read : whole; // the rest follows from the damage
    return report;
}

Result<> backUp(const QString &path, const QString &target)
{
    const auto database = Database::open(path, Database::Access::Reading);
    if (!database)
        return database.error();
    return checkOurs(**database).then([&] { return (*database)->copyTo(target); });
}

} // namespace till
