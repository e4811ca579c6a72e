#include "till/storage/JournalRows.h"

#include "till/database/Database.h"
#include "till/database/Table.h"

namespace till {

bool writeJournal(Database &database, qint64 receiptId, const QList<JournalEntry> &journal)
{
    for (const JournalEntry &entry : journal) {
        if (!database.run(QStringLiteral("INSERT INTO journal (receipt, depth, kind, json) "
                                         "VALUES (?, ?, ?, ?)"),
                          {receiptId, entry.depth, storable(entry.kind), storable(entry.json)}))
            return false;
    }
    return true;
}

QList<JournalEntry> readJournal(Database &database, qint64 receiptId)
{
    QList<JournalEntry> entries;
    QSqlQuery *const rows = database.run(
        QStringLiteral("SELECT depth, kind, json FROM journal WHERE receipt = ? ORDER BY id"),
        {receiptId});
    while (rows && database.next(*rows))
        entries.append(
            {rows->value(0).toInt(), rows->value(1).toString(), rows->value(2).toByteArray()});
    return entries;
}

} // namespace till
