#include "till/storage/ReceiptReader.h"

#include "till/storage/Database.h"
#include "till/storage/VariantBytes.h"

namespace till {

namespace {

bool readHeader(Database &database, ReceiptRecord &record)
{
    QSqlQuery *const rows = database.run(
        QStringLiteral("SELECT type, state, orderNumber, nextPosnum FROM receipts WHERE id = ?"),
        {record.id});
    bool isFound = false;
    while (rows && database.next(*rows)) {
        isFound = true;
        record.type = rows->value(0).toInt();
        record.state = static_cast<ReceiptState>(rows->value(1).toInt());
        record.order = rows->value(2).toString();
        record.nextPosnum = rows->value(3).toInt();
    }
    return isFound && database.error().isEmpty();
}

bool readLines(Database &database, ReceiptRecord &record)
{
    QSqlQuery *const rows = database.run(
        QStringLiteral("SELECT posnum, code, name, price, taraMode, taraCapacity, pack, unit, "
                       "count, base, groupId, stornoed "
                       "FROM positions WHERE receipt = ? ORDER BY place"),
        {record.id});
    while (rows && database.next(*rows)) {
        const ArticleData article{rows->value(1).toString(),   rows->value(2).toString(),
                                  rows->value(3).toLongLong(), rows->value(4).toInt(),
                                  rows->value(5).toDouble(),   rows->value(6).toDouble(),
                                  rows->value(7).toString()};
        record.lines.append({rows->value(0).toInt(), article, rows->value(8).toDouble(),
                             rows->value(9).toDouble(), rows->value(10).toString(),
                             rows->value(11).toBool()});
    }
    return database.error().isEmpty();
}

bool readSoftChecks(Database &database, ReceiptRecord &record)
{
    QSqlQuery *const rows = database.run(
        QStringLiteral("SELECT number FROM softChecks WHERE receipt = ? ORDER BY place"),
        {record.id});
    while (rows && database.next(*rows))
        record.softChecks.append(rows->value(0).toString());
    return database.error().isEmpty();
}

bool readPluginData(Database &database, ReceiptRecord &record)
{
    QSqlQuery *const rows =
        database.run(QStringLiteral("SELECT plugin, key, value, types, digest FROM pluginData "
                                    "WHERE receipt = ? ORDER BY plugin, key"),
                     {record.id});
    while (rows && database.next(*rows)) {
        const QString plugin = rows->value(0).toString();
        const QString key = rows->value(1).toString();
        const VariantBytes bytes{rows->value(2).toByteArray(), rows->value(3).toString(),
                                 rows->value(4).toByteArray()};
        QString reason;
        const auto value = bytes.value(&reason);
        if (!value) {
            rows->finish();
            return database.fail(
                QStringLiteral("receipt %1: the data of plugin \"%2\" under \"%3\" %4")
                    .arg(QString::number(record.id), plugin, key, reason));
        }
        record.pluginData[plugin].insert(key, *value);
    }
    return database.error().isEmpty();
}

} // namespace

std::optional<ReceiptRecord> readReceipt(Database &database, qint64 id)
{
    ReceiptRecord record;
    record.id = id;
    const bool isWhole = readHeader(database, record) && readLines(database, record)
                         && readSoftChecks(database, record) && readPluginData(database, record);
    return isWhole ? std::optional(record) : std::nullopt;
}

std::optional<ReceiptRecord> readUnfinishedReceipt(Database &database)
{
    qint64 id = 0;
    QSqlQuery *const rows = database.run(
        QStringLiteral("SELECT id FROM receipts WHERE state < 2 ORDER BY id DESC LIMIT 1"));
    while (rows && database.next(*rows))
        id = rows->value(0).toLongLong();
    return id == 0 ? std::nullopt : readReceipt(database, id);
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
