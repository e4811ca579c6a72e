#include "till/schema/ReceiptReader.h"

#include "till/database/Database.h"
#include "till/receipt/RecordFault.h"
#include "till/schema/Schema.h"
#include "till/schema/SetApart.h"

#include <algorithm>

namespace till {

namespace {

//! What is wrong with a value that a plugin stored.
Fault faultInData(const QString &plugin, const QString &key, const QString &reason)
{
    return {{},
            QStringLiteral("the data of plugin \"%1\" under \"%2\" %3").arg(plugin, key, reason)};
}

//! Reads one receipt; notes the first fault of each kind and goes on.
class Reader
{
public:
    Reader(Database &database, qint64 id)
        : m_database(database)
        , m_id(id)
    {
    }

    Result<std::optional<ReadReceipt>> read()
    {
        const Result<> done =
            readHeader().then([this] { return m_isThere ? readRest() : Result<>(); });
        if (!done)
            return done.error();
        return m_isThere ? std::optional(m_read) : std::nullopt;
    }

private:
    Result<> readHeader()
    {
        return m_database.each(receiptsTable().select() + QStringLiteral("WHERE id = ?"), {m_id},
                               [this](const QSqlQuery &found) {
                                   const Table::Row row = receiptsTable().row(found);
                                   m_isThere = true;
                                   m_read = headerOf(row);
                                   m_contents = row.values[9].toByteArray();
                               });
    }

    Result<> readRest()
    {
        const Result<> done = readLines().then([this] { return readSoftChecks(); }).then([this] {
            return readValues();
        });
        checkWhole();
        return done;
    }

    template <typename Take>
    Result<> readRowsOf(const Table &table, const QString &order, Take take)
    {
        return m_database.each(table.select()
                                   + QStringLiteral("WHERE receipt = ? ORDER BY %1").arg(order),
                               {m_id}, [&](const QSqlQuery &found) {
                                   const Table::Row row = table.row(found);
                                   m_rows.toggle(row.digest);
                                   take(row);
                               });
    }

    Result<> readLines()
    {
        return readRowsOf(positionsTable(), QStringLiteral("place"), [this](const Table::Row &row) {
            const LineRecord line = lineOf(row.values);
            if (row.isWhole)
                m_read.record.lines.append(line);
            else
                note(QStringLiteral("position %1 is not as it was stored").arg(line.posnum));
        });
    }

    Result<> readSoftChecks()
    {
        return readRowsOf(
            softChecksTable(), QStringLiteral("place"), [this](const Table::Row &row) {
                const QString number = row.values[2].toString();
                if (!row.isWhole)
                    note(QStringLiteral("soft-check %1 is not as it was stored").arg(number));
                m_read.record.softChecks.append(number);
            });
    }

    Result<> readValues()
    {
        return readRowsOf(
            pluginDataTable(), QStringLiteral("plugin, key, place"), [this](const Table::Row &row) {
                const QString plugin = row.values[1].toString();
                const QString key = row.values[2].toString();
                if (!row.isWhole && m_read.valuesHold)
                    m_read.valuesHold = faultInData(plugin, key, QStringLiteral("are damaged"));
                m_read.values.append(
                    {plugin, key, {row.values[4].toByteArray(), row.values[5].toString()}});
            });
    }

    void checkWhole()
    {
        const QList<LineRecord> &lines = m_read.record.lines;
        const auto live = std::count_if(lines.cbegin(), lines.cend(),
                                        [](const LineRecord &line) { return !line.stornoed; });
        if (live != m_read.positions)
            note(QStringLiteral("%1 positions are there, and there were %2")
                     .arg(live)
                     .arg(m_read.positions));
        if (const Result<> checked = check(m_read.record); !checked)
            note(checked.error().reason);
        // A damaged value has no digest that could tell anything.
        if (m_read.valuesHold && m_rows.bytes() != m_contents)
            note(QStringLiteral("its rows are not those that were stored"));
        if (m_read.recordHolds)
            compareTotal();
    }

    //! Of positions that hold. The upgrade counted those of the first format as today's till does.
    void compareTotal()
    {
        const Kopecks total = totalOf(m_read.record).value_or(0);
        if (total != m_read.total)
            note(QStringLiteral("its positions come to %1, and its total is %2")
                     .arg(toText(total), toText(m_read.total)));
    }

    void note(const QString &fault)
    {
        if (m_read.recordHolds)
            m_read.recordHolds = Fault{{}, fault};
    }

    Database &m_database;
    qint64 m_id;
    bool m_isThere = false;
    ReadReceipt m_read;
    QByteArray m_contents;
    RowsDigest m_rows;
};

Fault faultIn(const Database &database, qint64 id, const QString &reason,
              const QString &remedy = {})
{
    return database.fault(QStringLiteral("receipt %1: %2").arg(id).arg(reason), remedy);
}

//! How to go on without a receipt that does not hold.
QString wayOnWithout(qint64 id)
{
    return QStringLiteral(
               "\"till set-apart %1\" sets this receipt apart, so that another can be opened")
        .arg(id);
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

//! The receipt, if it is unfinished; it must hold then.
Result<std::optional<ReceiptRecord>> readIfUnfinished(Database &database, qint64 id)
{
    const auto read = readRows(database, id);
    if (!read)
        return read.error();
    if (!*read)
        return faultIn(database, id, QStringLiteral("its header is missing"), wayOnWithout(id));
    if ((*read)->isHeaderWhole && !isUnfinished((*read)->record.state))
        return std::optional<ReceiptRecord>();
    const Result<ReceiptRecord> whole = wholeOf(**read);
    if (!whole)
        return faultIn(database, id, whole.error().reason, wayOnWithout(id));
    return std::optional(*whole);
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
        read.recordHolds = Fault{{}, QStringLiteral("its header is not as it was stored")};
    return read;
}

Result<std::optional<ReadReceipt>> readRows(Database &database, qint64 id)
{
    return Reader(database, id).read();
}

Result<std::optional<ReceiptRecord>> readReceipt(Database &database, qint64 id)
{
    const auto read = readRows(database, id);
    if (!read)
        return read.error();
    if (!*read)
        return std::optional<ReceiptRecord>();
    const Result<ReceiptRecord> whole = wholeOf(**read);
    if (!whole)
        return faultIn(database, id, whole.error().reason);
    return std::optional(*whole);
}

Result<ReceiptRecord> wholeOf(const ReadReceipt &read)
{
    if (const Result<> held = read.holds(); !held)
        return held.error();
    ReceiptRecord record = read.record;
    for (const ReadReceipt::Value &value : read.values) {
        const auto decoded = value.bytes.value();
        if (!decoded)
            return faultInData(value.plugin, value.key, decoded.error().reason);
        take(record.pluginData[value.plugin], value.key, *decoded);
    }
    return record;
}

Result<std::optional<ReceiptRecord>> readUnfinishedReceipt(Database &database)
{
    QMap<qint64, QString> apart;
    const Result<qint64> newest =
        readSetApart(database, apart).then([&] { return highestNumber(database); });
    if (!newest)
        return newest.error();
    if (*newest != 0 && !apart.contains(*newest)) {
        auto read = readIfUnfinished(database, *newest);
        if (!read || *read)
            return read;
    }
    const Result<QVariant> next = database.valueOf(
        QStringLiteral("SELECT id FROM receipts WHERE state < 2 AND id NOT IN (SELECT receipt FROM "
                       "setApart) ORDER BY id DESC LIMIT 1"));
    if (!next)
        return next.error();
    return next->isValid() ? readIfUnfinished(database, next->toLongLong())
                           : std::optional<ReceiptRecord>();
}

Result<qint64> highestNumber(Database &database)
{
    return database
        .valueOf(QStringLiteral("SELECT max(coalesce((SELECT seq FROM sqlite_sequence WHERE "
                                "name = 'receipts'), 0), coalesce((SELECT max(id) FROM "
                                "receipts), 0))"))
        .then([](const QVariant &number) { return Result<qint64>(number.toLongLong()); });
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
