#include "till/storage/ReceiptWriter.h"

#include "till/database/Database.h"
#include "till/receipt/RecordFault.h"
#include "till/schema/ReceiptReader.h"
#include "till/schema/Schema.h"

#include <QtCore/QDateTime>

#include <algorithm>
#include <map>
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

QVariantList rowOf(const ReceiptHeader &header, const StoredReceipt &stored)
{
    return {header.id,
            header.type,
            static_cast<int>(header.state),
            storable(header.order),
            header.nextPosnum,
            stored.opened,
            stored.ended,
            stored.positions,
            stored.total,
            stored.contents.bytes()};
}

//! Writes one receipt; it knows what the database holds of it.
class Writer
{
public:
    Writer(Database &database, ReceiptUpdate &update, StoredReceipt &stored)
        : m_database(database)
        , m_update(update)
        , m_stored(stored)
    {
    }

    bool write()
    {
        return begin() && writeLines() && writeSoftChecks() && writeValues() && writeHeader();
    }

private:
    //! The number of the receipt, and a place without rows that are not known.
    bool begin()
    {
        if (!m_update.isWhole)
            return (m_update.id != 0 && m_update.id == m_stored.id)
                   || m_database.fail(
                       QStringLiteral("receipt %1 is not the one that was stored last")
                           .arg(m_update.id));
        m_stored = {};
        if (m_update.id != 0)
            return removeRows();
        m_update.id = m_stored.id = highestNumber(m_database) + 1;
        m_stored.opened = QDateTime::currentMSecsSinceEpoch();
        return !m_database.hasFailed();
    }

    //! All of the receipt is written anew.
    bool removeRows()
    {
        const qint64 id = m_stored.id = m_update.id;
        QSqlQuery *const header =
            m_database.run(QStringLiteral("SELECT opened, ended FROM receipts WHERE id = ?"), {id});
        if (!header || !m_database.next(*header))
            return header && m_database.fail(QStringLiteral("there is no receipt %1").arg(id));
        m_stored.opened = header->value(0).toLongLong();
        m_stored.ended = header->value(1).toLongLong();
        header->finish();
        return m_database.run(QStringLiteral("DELETE FROM positions WHERE receipt = ?"), {id})
               && m_database.run(QStringLiteral("DELETE FROM softChecks WHERE receipt = ?"), {id})
               && m_database.run(QStringLiteral("DELETE FROM pluginData WHERE receipt = ?"), {id});
    }

    bool writeHeader()
    {
        if (!isUnfinished(m_update.state) && m_stored.ended == 0)
            m_stored.ended = QDateTime::currentMSecsSinceEpoch();
        const QVariantList row = rowOf(m_update, m_stored);
        const bool isSame = row == m_stored.header;
        m_stored.header = row;
        return isSame || receiptsTable().write(m_database, row, receiptsTable().digest(row));
    }

    //! Writes \a row in place of the one that had \a digest, if any, and sets that.
    bool writeRow(const Table &table, const QVariantList &row, QByteArray &digest)
    {
        m_stored.contents.toggle(digest);
        digest = table.digest(row);
        m_stored.contents.toggle(digest);
        return table.write(m_database, row, digest);
    }

    bool writeLines()
    {
        for (auto line = m_update.lines.cbegin(); line != m_update.lines.cend(); ++line) {
            if (line.key() == m_stored.lines.size())
                m_stored.lines.append(StoredReceipt::Line());
            if (!writeLine(line.key(), line.value()))
                return false;
        }
        return true;
    }

    bool writeLine(qsizetype place, const LineRecord &line)
    {
        if (const QString fault = faultOf(line, m_update.nextPosnum); !fault.isEmpty())
            return m_database.fail(fault + QStringLiteral(", which cannot be stored"));
        StoredReceipt::Line &stored = m_stored.lines[place];
        count(stored, -1);
        stored.positions = line.stornoed ? 0 : 1;
        stored.total = line.stornoed ? 0 : sumOf(line.article.price, line.count);
        count(stored, 1);
        return writeRow(positionsTable(), rowOf(m_update.id, place, line), stored.digest);
    }

    //! Counts \a line in, or out of, what the header says of positions.
    void count(const StoredReceipt::Line &line, int sign)
    {
        m_stored.positions += sign * line.positions;
        m_stored.total += sign * line.total;
    }

    bool writeSoftChecks()
    {
        const QStringList &numbers = m_update.softChecks;
        const QStringList before = std::exchange(m_stored.softChecks, numbers);
        for (qsizetype place = 0; place < numbers.size(); ++place) {
            QByteArray digest;
            if (place < before.size())
                digest = softChecksTable().digest(rowOf(m_update.id, place, before[place]));
            if ((place >= before.size() || numbers[place] != before[place])
                && !writeRow(softChecksTable(), rowOf(m_update.id, place, numbers[place]), digest))
                return false;
        }
        return true;
    }

    //! Of what changes more than once only the last is written.
    bool writeValues()
    {
        std::map<std::pair<QString, QString>, ValueWriter> writers;
        for (const ValueChange &change : m_update.values) {
            auto &rows = m_stored.values[change.plugin][change.key];
            const auto writer =
                writers
                    .try_emplace({change.plugin, change.key}, m_database, m_update.id,
                                 change.plugin, change.key, rows, m_stored.contents)
                    .first;
            if (!writer->second.apply(change))
                return false;
        }
        return std::all_of(writers.begin(), writers.end(),
                           [](auto &writer) { return writer.second.write(); });
    }

    Database &m_database;
    ReceiptUpdate &m_update;
    StoredReceipt &m_stored;
};

} // namespace

bool writeReceipt(Database &database, ReceiptUpdate &update, StoredReceipt &stored)
{
    return Writer(database, update, stored).write();
}

} // namespace till
