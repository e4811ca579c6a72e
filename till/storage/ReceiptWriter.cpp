#include "till/storage/ReceiptWriter.h"

#include "till/database/Database.h"
#include "till/receipt/RecordFault.h"
#include "till/storage/ReceiptReader.h"
#include "till/storage/Schema.h"
#include "till/storage/VariantBytes.h"

#include <QtCore/QDateTime>

#include <utility>

namespace till {

namespace {

QVariantList rowOf(qint64 id, qsizetype place, const LineRecord &line)
{
    const ArticleData &article = line.article;
    return {id,
            place,
            line.posnum,
            storable(article.code),
            storable(article.name),
            article.price,
            article.taraMode,
            article.taraCapacity,
            article.pack,
            storable(article.unit),
            line.count,
            line.base,
            storable(line.groupId),
            line.stornoed};
}

QVariantList rowOf(qint64 id, qsizetype place, const QString &softCheck)
{
    return {id, place, storable(softCheck)};
}

QVariantList rowOf(const StoredReceipt &receipt)
{
    const ReceiptRecord &record = receipt.record;
    return {record.id,
            record.type,
            static_cast<int>(record.state),
            storable(record.order),
            record.nextPosnum,
            receipt.opened,
            receipt.ended,
            receipt.positions,
            receipt.total,
            receipt.contents.bytes()};
}

bool isFinished(const ReceiptRecord &record)
{
    return record.state == ReceiptState::Closed || record.state == ReceiptState::Cancelled;
}

//! Counts \a line in, or out of, what the header says of positions.
void count(StoredReceipt &receipt, const LineRecord &line, int sign)
{
    if (line.stornoed)
        return;
    receipt.positions += sign;
    receipt.total += sign * sumOf(line.article.price, line.count);
}

//! Writes one receipt; it knows what the database holds of it.
class Writer
{
public:
    Writer(Database &database, StoredReceipt &next, const StoredReceipt &last)
        : m_database(database)
        , m_next(next)
        , m_last(last)
    {
    }

    bool write()
    {
        return begin() && writeLines() && writeSoftChecks() && writeValues() && removeValues()
               && writeHeader();
    }

private:
    //! The number of the receipt, and a place without rows that are not known.
    bool begin()
    {
        ReceiptRecord &record = m_next.record;
        m_next.contents = m_last.contents;
        m_next.opened = m_last.opened;
        m_next.ended = m_last.ended;
        m_next.positions = m_last.positions;
        m_next.total = m_last.total;
        if (record.id == 0) {
            record.id = highestNumber(m_database) + 1;
            m_next.opened = QDateTime::currentMSecsSinceEpoch();
            return !m_database.hasFailed();
        }
        return record.id == m_last.record.id || removeRows();
    }

    //! What the database holds of this receipt is not at hand: all of it is written anew.
    bool removeRows()
    {
        const qint64 id = m_next.record.id;
        QSqlQuery *const header =
            m_database.run(QStringLiteral("SELECT opened, ended FROM receipts WHERE id = ?"), {id});
        if (!header || !m_database.next(*header))
            return header && m_database.fail(QStringLiteral("there is no receipt %1").arg(id));
        m_next.opened = header->value(0).toLongLong();
        m_next.ended = header->value(1).toLongLong();
        header->finish();
        return m_database.run(QStringLiteral("DELETE FROM positions WHERE receipt = ?"), {id})
               && m_database.run(QStringLiteral("DELETE FROM softChecks WHERE receipt = ?"), {id})
               && m_database.run(QStringLiteral("DELETE FROM pluginData WHERE receipt = ?"), {id});
    }

    bool writeHeader()
    {
        if (isFinished(m_next.record) && m_next.ended == 0)
            m_next.ended = QDateTime::currentMSecsSinceEpoch();
        const QVariantList row = rowOf(m_next);
        return row == rowOf(m_last)
               || receiptsTable().write(m_database, row, receiptsTable().digest(row));
    }

    bool writeRow(const Table &table, const QVariantList &row)
    {
        const QByteArray digest = table.digest(row);
        m_next.contents.toggle(digest);
        return table.write(m_database, row, digest);
    }

    //! Forgets the row that was stored; what is to come writes over it or takes it out.
    void forget(const Table &table, const QVariantList &row)
    {
        m_next.contents.toggle(table.digest(row));
    }

    //! Takes out the rows from \a place on.
    bool cut(const char *table, qsizetype place)
    {
        return m_database.run(
            QStringLiteral("DELETE FROM %1 WHERE receipt = ? AND place >= ?").arg(table),
            {m_next.record.id, place});
    }

    bool writeLines()
    {
        const QList<LineRecord> &lines = m_next.record.lines;
        const QList<LineRecord> &old = m_last.record.lines;
        for (qsizetype place = 0; place < lines.size(); ++place) {
            if (place < old.size() && lines[place] == old[place])
                continue;
            if (place < old.size())
                forgetLine(place);
            if (!writeLine(place))
                return false;
        }
        for (qsizetype place = lines.size(); place < old.size(); ++place)
            forgetLine(place);
        return lines.size() >= old.size() || cut("positions", lines.size());
    }

    void forgetLine(qsizetype place)
    {
        const LineRecord &line = m_last.record.lines[place];
        forget(positionsTable(), rowOf(m_next.record.id, place, line));
        count(m_next, line, -1);
    }

    bool writeLine(qsizetype place)
    {
        const LineRecord &line = m_next.record.lines[place];
        if (const QString fault = faultOf(line, m_next.record.nextPosnum); !fault.isEmpty())
            return m_database.fail(fault + QStringLiteral(", which cannot be stored"));
        count(m_next, line, 1);
        return writeRow(positionsTable(), rowOf(m_next.record.id, place, line));
    }

    bool writeSoftChecks()
    {
        const qint64 id = m_next.record.id;
        const QStringList &numbers = m_next.record.softChecks;
        const QStringList &old = m_last.record.softChecks;
        for (qsizetype place = 0; place < numbers.size(); ++place) {
            if (place < old.size() && numbers[place] == old[place])
                continue;
            if (place < old.size())
                forget(softChecksTable(), rowOf(id, place, old[place]));
            if (!writeRow(softChecksTable(), rowOf(id, place, numbers[place])))
                return false;
        }
        for (qsizetype place = numbers.size(); place < old.size(); ++place)
            forget(softChecksTable(), rowOf(id, place, old[place]));
        return numbers.size() >= old.size() || cut("softChecks", numbers.size());
    }

    bool writeValues()
    {
        const auto &data = m_next.record.pluginData;
        for (auto plugin = data.cbegin(); plugin != data.cend(); ++plugin) {
            const QVariantMap lastData = m_last.record.pluginData.value(plugin.key());
            const auto lastDigests = m_last.digests.value(plugin.key());
            auto &digests = m_next.digests[plugin.key()];
            for (auto entry = plugin->cbegin(); entry != plugin->cend(); ++entry) {
                QByteArray &digest = digests[entry.key()];
                digest = lastDigests.value(entry.key());
                if (!VariantBytes::areSurelySame(entry.value(), lastData.value(entry.key()))
                    && !writeValue(plugin.key(), entry.key(), entry.value(), digest))
                    return false;
            }
        }
        return true;
    }

    //! Writes \a value unless its row has the \a digest that was stored last; then sets that.
    bool writeValue(const QString &plugin, const QString &key, const QVariant &value,
                    QByteArray &digest)
    {
        QString culprit;
        const auto bytes = VariantBytes::of(value, &culprit);
        if (!bytes)
            return m_database.fail(
                QStringLiteral("the data of plugin \"%1\" under \"%2\" hold a value of type "
                               "\"%3\", which cannot be stored")
                    .arg(plugin, key, culprit));
        const QVariantList row{m_next.record.id, storable(plugin), storable(key), bytes->bytes,
                               storable(bytes->types)};
        const QByteArray last = std::exchange(digest, pluginDataTable().digest(row));
        if (digest == last)
            return true;
        m_next.contents.toggle(last);
        m_next.contents.toggle(digest);
        return pluginDataTable().write(m_database, row, digest);
    }

    bool removeValues()
    {
        const auto &old = m_last.record.pluginData;
        for (auto plugin = old.cbegin(); plugin != old.cend(); ++plugin) {
            const QVariantMap kept = m_next.record.pluginData.value(plugin.key());
            for (auto entry = plugin->cbegin(); entry != plugin->cend(); ++entry) {
                if (!kept.contains(entry.key()) && !removeValue(plugin.key(), entry.key()))
                    return false;
            }
        }
        return true;
    }

    bool removeValue(const QString &plugin, const QString &key)
    {
        m_next.contents.toggle(m_last.digests.value(plugin).value(key));
        return m_database.run(
            QStringLiteral("DELETE FROM pluginData WHERE receipt = ? AND plugin = ? AND key = ?"),
            {m_next.record.id, storable(plugin), storable(key)});
    }

    Database &m_database;
    StoredReceipt &m_next;
    const StoredReceipt &m_last;
};

} // namespace

bool writeReceipt(Database &database, StoredReceipt &next, const StoredReceipt &last)
{
    return Writer(database, next, last).write();
}

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

} // namespace till
