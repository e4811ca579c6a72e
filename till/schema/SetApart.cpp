#include "till/schema/SetApart.h"

#include "till/database/Database.h"
#include "till/schema/ReceiptReader.h"

namespace till {

Result<> readSetApart(Database &database, QMap<qint64, QString> &reasons)
{
    return database.each(QStringLiteral("SELECT receipt, reason FROM setApart ORDER BY receipt"),
                         {}, [&reasons](const QSqlQuery &row) {
                             reasons.insert(row.value(0).toLongLong(), row.value(1).toString());
                         });
}

Result<QString> reasonToSetApart(Database &database, qint64 id)
{
    QMap<qint64, QString> reasons;
    const Result<qint64> highest =
        readSetApart(database, reasons).then([&] { return highestNumber(database); });
    if (!highest)
        return highest.error();
    if (id < 1 || id > *highest)
        return database.fault(QStringLiteral("there is no receipt %1").arg(id));
    if (reasons.contains(id))
        return database.fault(QStringLiteral("receipt %1: it is set apart already").arg(id));
    const auto read = readRows(database, id);
    if (!read)
        return read.error().reason; // the path is told with it
    if (!*read)
        return QStringLiteral("its header is missing");
    if (const Result<> held = (*read)->holds(); !held)
        return held.error().reason;
    if (!isUnfinished((*read)->record.state))
        return database.fault(QStringLiteral("receipt %1: it is finished and whole").arg(id));
    return QStringLiteral("unfinished");
}

} // namespace till
