#include "till/archive/Upkeep.h"

#include "till/database/Database.h"
#include "till/schema/ReceiptReader.h"
#include "till/schema/Schema.h"
#include "till/schema/SetApart.h"
#include "till/storage/JournalRows.h"

#include <algorithm>
#include <set>
#include <utility>

namespace till {

namespace {

//! Finds the number of each receipt of which anything is there; with a fault, as far as they could
//! be read. In a table that is missing there is nothing.
Result<> findNumbers(Database &database, std::set<qint64> &ids)
{
    Result<> found;
    for (const auto &[table, number] : {std::pair("receipts", "id"),
                                        {"positions", "receipt"},
                                        {"softChecks", "receipt"},
                                        {"pluginData", "receipt"},
                                        {"journal", "receipt"},
                                        {"setApart", "receipt"},
                                        {"sqlite_sequence", "seq"}}) {
        const auto isThere = database.valueOf(
            QStringLiteral("SELECT count(*) FROM sqlite_master WHERE name = '%1'").arg(table));
        if (isThere && isThere->toInt() == 0)
            continue;
        // What an index says need not be so.
        const Result<> read = database.each(
            QStringLiteral("SELECT DISTINCT %1 FROM %2 NOT INDEXED").arg(number, table), {},
            [&ids](const QSqlQuery &row) { ids.insert(row.value(0).toLongLong()); });
        if (found)
            found = read;
    }
    return found;
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
    std::set<qint64> all;
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
    report.hasAll = foundAll.has_value();
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
