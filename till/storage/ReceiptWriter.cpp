#include "till/storage/ReceiptWriter.h"

#include "till/database/Database.h"
#include "till/receipt/RecordFault.h"
#include "till/schema/ReceiptReader.h"
#include "till/schema/Schema.h"

#include <QtCore/QDateTime>

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

    Result<> write()
    {
        return begin()
            .then([this] { return writeLines(); })
            .then([this] { return writeSoftChecks(); })
            .then([this] { return writeValues(); })
            .then([this] { return writeHeader(); });
    }

private:
    //! The number of the receipt, and a place without rows that are not known.
    Result<> begin()
    {
        if (!m_update.isWhole && (m_update.id == 0 || m_update.id != m_stored.id))
            return m_database.fault(
                QStringLiteral("receipt %1 is not the one that was stored last").arg(m_update.id));
        if (!m_update.isWhole)
            return {};
        m_stored = {};
        return m_update.id == 0 ? takeNumber() : removeRows();
    }

    Result<> takeNumber()
    {
        const Result<qint64> highest = highestNumber(m_database);
        if (!highest)
            return highest.error();
        m_update.id = m_stored.id = *highest + 1;
        m_stored.opened = QDateTime::currentMSecsSinceEpoch();
        return {};
    }

    //! All of the receipt is written anew.
    Result<> removeRows()
    {
        const qint64 id = m_update.id;
        const Result<> read =
            m_database.each(QStringLiteral("SELECT opened, ended FROM receipts WHERE id = ?"), {id},
                            [this, id](const QSqlQuery &header) {
                                m_stored.id = id;
                                m_stored.opened = header.value(0).toLongLong();
                                m_stored.ended = header.value(1).toLongLong();
                            });
        if (!read)
            return read;
        if (m_stored.id != id)
            return m_database.fault(QStringLiteral("there is no receipt %1").arg(id));
        for (const char *sql :
             {"DELETE FROM positions WHERE receipt = ?", "DELETE FROM softChecks WHERE receipt = ?",
              "DELETE FROM pluginData WHERE receipt = ?"}) {
            if (const Result<> removed = m_database.run(QString::fromLatin1(sql), {id}); !removed)
                return removed;
        }
        return {};
    }

    Fault cannotBeStored(const Fault &odd) const
    {
        return m_database.fault(odd.reason + QStringLiteral(", which cannot be stored"));
    }

    Result<> writeHeader()
    {
        if (const Result<> checked = checkTotal(m_stored.total); !checked)
            return cannotBeStored(checked.error());
        if (!isUnfinished(m_update.state) && m_stored.ended == 0)
            m_stored.ended = QDateTime::currentMSecsSinceEpoch();
        const QVariantList row = rowOf(m_update, m_stored);
        if (row == m_stored.header)
            return {};
        m_stored.header = row;
        return receiptsTable().write(m_database, row, receiptsTable().digest(row));
    }

    //! Writes \a row in place of the one that had \a digest, if any, and sets that.
    Result<> writeRow(const Table &table, const QVariantList &row, QByteArray &digest)
    {
        m_stored.contents.toggle(digest);
        digest = table.digest(row);
        m_stored.contents.toggle(digest);
        return table.write(m_database, row, digest);
    }

    Result<> writeLines()
    {
        for (auto line = m_update.lines.cbegin(); line != m_update.lines.cend(); ++line) {
            if (line.key() == m_stored.lines.size())
                m_stored.lines.append(StoredReceipt::Line());
            if (const Result<> written = writeLine(line.key(), line.value()); !written)
                return written;
        }
        return {};
    }

    Result<> writeLine(qsizetype place, const LineRecord &line)
    {
        if (const Result<> checked = check(line, m_update.nextPosnum); !checked)
            return cannotBeStored(checked.error());
        StoredReceipt::Line &stored = m_stored.lines[place];
        count(stored, -1);
        stored.positions = line.stornoed ? 0 : 1;
        stored.total = line.stornoed ? 0 : line.sum();
        count(stored, 1);
        return writeRow(positionsTable(), rowOf(m_update.id, place, line), stored.digest);
    }

    //! Counts \a line in, or out of, what the header says of positions.
    void count(const StoredReceipt::Line &line, int sign)
    {
        m_stored.positions += sign * line.positions;
        m_stored.total += sign * line.total;
    }

    Result<> writeSoftChecks()
    {
        const QStringList &numbers = m_update.softChecks;
        const QStringList before = std::exchange(m_stored.softChecks, numbers);
        for (qsizetype place = 0; place < numbers.size(); ++place) {
            QByteArray digest;
            if (place < before.size()) {
                if (numbers[place] == before[place])
                    continue;
                digest = softChecksTable().digest(rowOf(m_update.id, place, before[place]));
            }
            const QVariantList row = rowOf(m_update.id, place, numbers[place]);
            if (const Result<> written = writeRow(softChecksTable(), row, digest); !written)
                return written;
        }
        return {};
    }

    //! Of what changes more than once only the last is written.
    Result<> writeValues()
    {
        std::map<std::pair<QString, QString>, ValueWriter> writers;
        for (const ValueChange &change : m_update.values) {
            auto &rows = m_stored.values[change.plugin][change.key];
            const auto writer =
                writers
                    .try_emplace({change.plugin, change.key}, m_database, m_update.id,
                                 change.plugin, change.key, rows, m_stored.contents)
                    .first;
            if (const Result<> applied = writer->second.apply(change); !applied)
                return applied;
        }
        for (auto &[key, writer] : writers) {
            if (const Result<> written = writer.write(); !written)
                return written;
        }
        return {};
    }

    Database &m_database;
    ReceiptUpdate &m_update;
    StoredReceipt &m_stored;
};

} // namespace

Result<> writeReceipt(Database &database, ReceiptUpdate &update, StoredReceipt &stored)
{
    return Writer(database, update, stored).write();
}

} // namespace till
