#include "till/storage/Upkeep.h"

#include "till/database/Database.h"
#include "till/storage/ReceiptReader.h"
#include "till/storage/Schema.h"

#include <QtCore/QMap>

#include <algorithm>
#include <utility>

namespace till {

namespace {

//! The error that was noted, without the path, which the report has no need of; none is left.
QString takeError(Database &database)
{
    const QString error = database.error();
    database.forgetError();
    return error.mid(database.path().size() + 2);
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

QMap<qint64, QString> setApart(Database &database)
{
    QMap<qint64, QString> reasons;
    QSqlQuery *const rows =
        database.run(QStringLiteral("SELECT receipt, reason FROM setApart ORDER BY receipt"));
    while (rows && database.next(*rows))
        reasons.insert(rows->value(0).toLongLong(), rows->value(1).toString());
    return reasons;
}

//! What is wrong with the receipt; empty when it holds.
QString faultOf(Database &database, qint64 id)
{
    const auto read = readRows(database, id);
    if (read)
        return read->anyFault();
    const QString error = takeError(database);
    return error.isEmpty() ? QStringLiteral("its header is missing") : error;
}

void checkReceipts(Database &database, CheckReport &report)
{
    const QMap<qint64, QString> apart = setApart(database);
    const QList<qint64> all = numbers(database);
    for (const qint64 id : all) {
        if (const auto reason = apart.constFind(id); reason != apart.cend())
            report.odd.append({id, true, *reason});
        else if (const QString fault = faultOf(database, id); !fault.isEmpty())
            report.odd.append({id, false, fault});
        else
            ++report.whole;
    }
}

} // namespace

bool CheckReport::isGood() const
{
    return fileFault.isEmpty()
           && std::all_of(odd.cbegin(), odd.cend(),
                          [](const OddReceipt &receipt) { return receipt.isSetApart; });
}

std::optional<CheckReport> checkDatabase(const QString &path, QString *error)
{
    const auto database = Database::open(path, Database::Access::Reading, error);
    if (!database)
        return std::nullopt;
    if (!isReadable(*database)) {
        *error = database->error();
        return std::nullopt;
    }
    CheckReport report;
    database->execute(QStringLiteral("BEGIN")); // all is read as of one moment
    const bool isWhole = database->checkFile(Database::Check::Whole) && isComplete(*database);
    report.fileFault = takeError(*database);
    checkReceipts(*database, report);
    if (isWhole) // else what follows from the damage
        report.fileFault = takeError(*database);
    database->rollBack();
    return report;
}

QString backUp(const QString &path, const QString &target)
{
    QString error;
    const auto database = Database::open(path, Database::Access::Reading, &error);
    if (!database)
        return error;
    return isOurs(*database) && database->copyTo(target) ? QString() : database->error();
}

} // namespace till
