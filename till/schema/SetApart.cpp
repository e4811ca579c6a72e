#include "till/schema/SetApart.h"

#include "till/database/Database.h"
#include "till/schema/ReceiptReader.h"

namespace till {

QMap<qint64, QString> receiptsSetApart(Database &database)
{
    QMap<qint64, QString> reasons;
    QSqlQuery *const rows =
        database.run(QStringLiteral("SELECT receipt, reason FROM setApart ORDER BY receipt"));
    while (rows && database.next(*rows))
        reasons.insert(rows->value(0).toLongLong(), rows->value(1).toString());
    return reasons;
}

QString reasonToSetApart(Database &database, qint64 id)
{
    if (id < 1 || id > highestNumber(database))
        database.fail(QStringLiteral("there is no receipt %1").arg(id));
    else if (receiptsSetApart(database).contains(id))
        database.fail(QStringLiteral("receipt %1: it is set apart already").arg(id));
    if (database.hasFailed())
        return {};
    const auto read = readRows(database, id);
    const std::optional<Fault> unreadable = database.takeFault();
    if (!read)
        return unreadable ? unreadable->text() : QStringLiteral("its header is missing");
    const QString fault = read->anyFault();
    if (fault.isEmpty() && !isUnfinished(read->record.state))
        database.fail(QStringLiteral("receipt %1: it is finished and whole").arg(id));
    return fault.isEmpty() ? QStringLiteral("unfinished") : fault;
}

} // namespace till
