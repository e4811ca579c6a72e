#include "till/schema/ReceiptReader.h"

#include "till/database/Database.h"
#include "till/receipt/RecordFault.h"
#include "till/schema/Schema.h"
#include "till/schema/SetApart.h"

#include <algorithm>

namespace till {

namespace {

//! Reads one receipt; notes the first fault of each kind and goes on.
class Reader
{
public:
    Reader(Database &database, qint64 id)
        : m_database(database)
        , m_id(id)
    {
    }

    std::optional<ReadReceipt> read()
    {
        if (!readHeader())
            return std::nullopt;
        readLines();
        readSoftChecks();
        readValues();
        checkWhole();
        return m_database.hasFailed() ? std::nullopt : std::optional(m_read);
    }

private:
    bool readHeader()
    {
        QSqlQuery *const rows =
            m_database.run(receiptsTable().select() + QStringLiteral("WHERE id = ?"), {m_id});
        if (!rows || !m_database.next(*rows))
            return false;
        const Table::Row row = receiptsTable().row(*rows);
        rows->finish();
        m_read = headerOf(row);
        m_contents = row.values[9].toByteArray();
        return true;
    }

    template <typename Take>
    void readRowsOf(const Table &table, const QString &order, Take take)
    {
        QSqlQuery *const rows = m_database.run(
            table.select() + QStringLiteral("WHERE receipt = ? ORDER BY %1").arg(order), {m_id});
        while (rows && m_database.next(*rows)) {
            const Table::Row row = table.row(*rows);
            m_rows.toggle(row.digest);
            take(row);
        }
    }

    void readLines()
    {
        readRowsOf(positionsTable(), QStringLiteral("place"), [this](const Table::Row &row) {
            const LineRecord line = lineOf(row.values);
            if (row.isWhole)
                m_read.record.lines.append(line);
            else
                note(QStringLiteral("position %1 is not as it was stored").arg(line.posnum));
        });
    }

    void readSoftChecks()
    {
        readRowsOf(softChecksTable(), QStringLiteral("place"), [this](const Table::Row &row) {
            const QString number = row.values[2].toString();
            if (!row.isWhole)
                note(QStringLiteral("soft-check %1 is not as it was stored").arg(number));
            m_read.record.softChecks.append(number);
        });
    }

    void readValues()
    {
        readRowsOf(pluginDataTable(), QStringLiteral("plugin, key, place"),
                   [this](const Table::Row &row) {
                       const QString plugin = row.values[1].toString();
                       const QString key = row.values[2].toString();
                       if (!row.isWhole && m_read.valueFault.isEmpty())
                           m_read.valueFault =
                               QStringLiteral("the data of plugin \"%1\" under \"%2\" are damaged")
                                   .arg(plugin, key);
                       m_read.values.append(
                           {plugin, key, {row.values[4].toByteArray(), row.values[5].toString()}});
                   });
    }

    void checkWhole()
    {
        const auto &lines = m_read.record.lines;
        const auto live = std::count_if(lines.cbegin(), lines.cend(),
                                        [](const LineRecord &line) { return !line.stornoed; });
        if (live != m_read.positions)
            note(QStringLiteral("%1 positions are there, and there were %2")
                     .arg(live)
                     .arg(m_read.positions));
        note(faultOf(m_read.record));
        // A damaged value has no digest that could tell anything.
        if (m_read.valueFault.isEmpty() && m_rows.bytes() != m_contents)
            note(QStringLiteral("its rows are not those that were stored"));
    }

    void note(const QString &fault)
    {
        if (m_read.fault.isEmpty())
            m_read.fault = fault;
    }

    Database &m_database;
    qint64 m_id;
    ReadReceipt m_read;
    QByteArray m_contents;
    RowsDigest m_rows;
};

void failFor(Database &database, qint64 id, const QString &fault, const QString &remedy = {})
{
    database.fail(QStringLiteral("receipt %1: %2").arg(id).arg(fault), remedy);
}

//! How to go on without a receipt that does not hold.
QString wayOnWithout(qint64 id)
{
    return QStringLiteral(
               "\"till set-apart %1\" sets this receipt apart, so that another can be opened")
        .arg(id);
}

void failWithWayOn(Database &database, qint64 id, const QString &fault)
{
    failFor(database, id, fault, wayOnWithout(id));
}

//! The number that \a sql gives; 0 when it gives none.
qint64 numberOf(Database &database, const QString &sql)
{
    QSqlQuery *const rows = database.run(sql);
    qint64 number = 0;
    while (rows && database.next(*rows))
        number = rows->value(0).toLongLong();
    return number;
}

//! Takes a row of a value: it is the value, or one more element of the list that it is.
void take(QVariantMap &values, const QString &key, const QVariant &value)
{
    const auto known = values.find(key);
    if (known == values.end())
        values.insert(key, value);
    else if (known->typeId() == QMetaType::QVariantList)
        static_cast<QVariantList *>(known->data())->append(value);
}

//! The receipt, if it holds and is unfinished.
std::optional<ReadReceipt> readIfUnfinished(Database &database, qint64 id)
{
    const auto read = readRows(database, id);
    if (!read && !database.hasFailed())
        failWithWayOn(database, id, QStringLiteral("its header is missing"));
    if (!read || (read->isHeaderWhole && !isUnfinished(read->record.state)))
        return std::nullopt;
    if (const QString fault = read->anyFault(); !fault.isEmpty()) {
        failWithWayOn(database, id, fault);
        return std::nullopt;
    }
    return read;
}

} // namespace

ReadReceipt headerOf(const Table::Row &row)
{
    ReadReceipt read;
    ReceiptRecord &record = read.record;
    record.id = row.values[0].toLongLong();
    record.type = row.values[1].toInt();
    record.state = static_cast<ReceiptState>(row.values[2].toInt());
    record.order = row.values[3].toString();
    record.nextPosnum = row.values[4].toInt();
    read.opened = row.values[5].toLongLong();
    read.ended = row.values[6].toLongLong();
    read.positions = row.values[7].toLongLong();
    read.total = row.values[8].toLongLong();
    read.isHeaderWhole = row.isWhole;
    if (!row.isWhole)
        read.fault = QStringLiteral("its header is not as it was stored");
    return read;
}

std::optional<ReadReceipt> readRows(Database &database, qint64 id)
{
    return Reader(database, id).read();
}

std::optional<ReceiptRecord> readReceipt(Database &database, qint64 id)
{
    const auto read = readRows(database, id);
    if (!read)
        return std::nullopt;
    if (const QString fault = read->anyFault(); !fault.isEmpty()) {
        failFor(database, id, fault);
        return std::nullopt;
    }
    return withValues(database, *read);
}

std::optional<ReceiptRecord> withValues(Database &database, const ReadReceipt &read)
{
    ReceiptRecord record = read.record;
    for (const ReadReceipt::Value &value : read.values) {
        const auto decoded = value.bytes.value();
        if (!decoded) {
            failFor(database, record.id,
                    QStringLiteral("the data of plugin \"%1\" under \"%2\" %3")
                        .arg(value.plugin, value.key, decoded.error().reason));
            return std::nullopt;
        }
        take(record.pluginData[value.plugin], value.key, *decoded);
    }
    return record;
}

std::optional<ReceiptRecord> readUnfinishedReceipt(Database &database)
{
    const qint64 newest = highestNumber(database);
    std::optional<ReadReceipt> found;
    if (newest != 0 && !receiptsSetApart(database).contains(newest))
        found = readIfUnfinished(database, newest);
    const qint64 next = numberOf(
        database, QStringLiteral("SELECT id FROM receipts WHERE state < 2 AND id NOT IN (SELECT "
                                 "receipt FROM setApart) ORDER BY id DESC LIMIT 1"));
    if (!found && !database.hasFailed() && next != 0)
        found = readIfUnfinished(database, next);
    if (!found || database.hasFailed())
        return std::nullopt;
    const auto whole = withValues(database, *found);
    if (!whole) // what it cannot read it has told
        database.fail(database.fault().reason, wayOnWithout(found->record.id));
    return whole;
}

qint64 highestNumber(Database &database)
{
    return numberOf(database,
                    QStringLiteral("SELECT max(coalesce((SELECT seq FROM sqlite_sequence WHERE "
                                   "name = 'receipts'), 0), coalesce((SELECT max(id) FROM "
                                   "receipts), 0))"));
}

LineRecord lineOf(const QVariantList &values)
{
    const ArticleData article{values[3].toString(), values[4].toString(), values[5].toLongLong(),
                              values[6].toInt(),    values[7].toDouble(), values[8].toDouble(),
                              values[9].toString()};
    return {values[2].toInt(),     article,
            values[10].toDouble(), values[11].toDouble(),
            values[12].toString(), values[13].toBool()};
}

} // namespace till
