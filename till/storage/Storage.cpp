#include "till/storage/Storage.h"

#include "till/database/Database.h"
#include "till/receipt/RecordFault.h"
#include "till/schema/ReceiptReader.h"
#include "till/schema/Schema.h"
#include "till/schema/SetApart.h"
#include "till/storage/JournalRows.h"
#include "till/storage/ReceiptWriter.h"

#include <QtCore/QDateTime>
#include <QtCore/QSet>

#include <limits>

namespace till {

Storage::Storage(std::unique_ptr<Database> database)
    : m_database(std::move(database))
    , m_stored(std::make_unique<StoredReceipt>())
{
}

Storage::~Storage() = default;

Result<std::unique_ptr<Storage>> Storage::open(const QString &path, For use)
{
    auto database = Database::open(path, Database::Access::Till, [use](Database &left) -> Result<> {
        const Result<> ours = checkOurs(left);
        return ours && use == For::Selling ? left.checkFile() : ours;
    });
    if (!database)
        return database.error();
    const Result<QString> copy = prepareSchema(**database);
    if (!copy)
        return copy.error();
    std::unique_ptr<Storage> storage(new Storage(std::move(*database)));
    storage->m_copyBefore = *copy;
    return storage;
}

QString Storage::path() const
{
    return m_database->path();
}

Result<> Storage::save(ReceiptUpdate &update, const QList<JournalEntry> &journal)
{
    const qint64 id = update.id;
    const bool wasEnded = m_stored->id == id && m_stored->ended != 0;
    const Result<> done = m_database->inTransaction([&] {
        return writeReceipt(*m_database, update, *m_stored).then([&] {
            return writeJournal(*m_database, update.id, journal);
        });
    });
    if (!done) {
        *m_stored = {};
        update.id = id;
        return done;
    }
    if (!wasEnded && m_stored->ended != 0)
        m_database->foldLog();
    return {};
}

Result<std::optional<ReceiptRecord>> Storage::unfinishedReceipt() const
{
    return readUnfinishedReceipt(*m_database);
}

Result<std::optional<ReceiptRecord>> Storage::receipt(qint64 id) const
{
    return readReceipt(*m_database, id);
}

ReceiptRecord Storage::remains(qint64 id) const
{
    ReceiptRecord remains;
    remains.id = id;
    const auto read = readRows(*m_database, id);
    if (!read || !*read)
        return remains;
    const ReceiptRecord &record = (*read)->record;
    if ((*read)->isHeaderWhole) {
        remains.type = record.type;
        remains.state = record.state;
        remains.order = record.order;
    }
    remains.lines = record.lines;
    QSet<int> numbers;
    remains.lines.removeIf([&](const LineRecord &line) {
        const bool isSecond = numbers.contains(line.posnum);
        numbers.insert(line.posnum);
        return isSecond || !check(line, std::numeric_limits<int>::max());
    });
    return remains;
}

Result<QString> Storage::setApart(qint64 id)
{
    const Result<QString> reason = reasonToSetApart(*m_database, id);
    if (!reason)
        return reason;
    const Result<> done = m_database->inTransaction([&] {
        return m_database->run(
            QStringLiteral("INSERT INTO setApart (receipt, time, reason) VALUES (?, ?, ?)"),
            {id, QDateTime::currentMSecsSinceEpoch(), *reason});
    });
    return done ? reason : done.error();
}

} // namespace till
