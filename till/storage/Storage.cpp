#include "till/storage/Storage.h"

#include "till/database/Database.h"
#include "till/schema/ReceiptReader.h"
#include "till/schema/Schema.h"
#include "till/schema/SetApart.h"
#include "till/storage/JournalRows.h"
#include "till/storage/ReceiptWriter.h"

#include <QtCore/QDateTime>

namespace till {

namespace {

Result<std::optional<ReceiptRecord>> unlessFailed(const Database &database,
                                                  std::optional<ReceiptRecord> record)
{
    if (database.hasFailed())
        return database.fault();
    return record;
}

} // namespace

Storage::Storage(std::unique_ptr<Database> database)
    : m_database(std::move(database))
    , m_stored(std::make_unique<StoredReceipt>())
{
}

Storage::~Storage() = default;

Result<std::unique_ptr<Storage>> Storage::open(const QString &path)
{
    auto database = Database::open(path, Database::Access::Till);
    if (!database)
        return database.error();
    QString copy;
    if (!prepareSchema(**database, &copy))
        return (*database)->fault();
    std::unique_ptr<Storage> storage(new Storage(std::move(*database)));
    storage->m_copyBefore = copy;
    return storage;
}

QString Storage::path() const
{
    return m_database->path();
}

Result<> Storage::save(ReceiptUpdate &update, const QList<JournalEntry> &journal)
{
    m_database->forgetFault();
    const qint64 id = update.id;
    const bool wasEnded = m_stored->id == id && m_stored->ended != 0;
    const bool done = m_database->begin() && writeReceipt(*m_database, update, *m_stored)
                      && writeJournal(*m_database, update.id, journal) && m_database->commit();
    if (!done) {
        m_database->rollBack();
        *m_stored = {};
        update.id = id;
        return m_database->fault();
    }
    if (!wasEnded && m_stored->ended != 0)
        m_database->foldLog();
    return {};
}

Result<std::optional<ReceiptRecord>> Storage::unfinishedReceipt() const
{
    m_database->forgetFault();
    return unlessFailed(*m_database, readUnfinishedReceipt(*m_database));
}

Result<std::optional<ReceiptRecord>> Storage::receipt(qint64 id) const
{
    m_database->forgetFault();
    return unlessFailed(*m_database, readReceipt(*m_database, id));
}

QList<LineRecord> Storage::lines(qint64 id) const
{
    m_database->forgetFault();
    const auto read = readRows(*m_database, id);
    return read ? read->record.lines : QList<LineRecord>();
}

Result<QString> Storage::setApart(qint64 id)
{
    m_database->forgetFault();
    const QString reason = reasonToSetApart(*m_database, id);
    if (m_database->hasFailed() || !m_database->begin())
        return m_database->fault();
    const bool done =
        m_database->run(
            QStringLiteral("INSERT INTO setApart (receipt, time, reason) VALUES (?, ?, ?)"),
            {id, QDateTime::currentMSecsSinceEpoch(), reason})
        && m_database->commit();
    if (done)
        return reason;
    m_database->rollBack();
    return m_database->fault();
}

} // namespace till
