#include "till/storage/Storage.h"

#include "till/database/Database.h"
#include "till/storage/ReceiptReader.h"
#include "till/storage/ReceiptWriter.h"
#include "till/storage/Schema.h"

#include <QtCore/QDateTime>

namespace till {

Storage::Storage(std::unique_ptr<Database> database)
    : m_database(std::move(database))
    , m_last(std::make_unique<StoredReceipt>())
{
}

Storage::~Storage() = default;

std::unique_ptr<Storage> Storage::open(const QString &path, QString *error)
{
    auto database = Database::open(path, Database::Access::Till, error);
    QString copy;
    if (!database)
        return nullptr;
    if (!prepareSchema(*database, &copy)) {
        *error = database->error();
        return nullptr;
    }
    std::unique_ptr<Storage> storage(new Storage(std::move(database)));
    storage->m_copyBefore = copy;
    return storage;
}

QString Storage::path() const
{
    return m_database->path();
}

QString Storage::save(ReceiptRecord &record, const QList<JournalEntry> &journal)
{
    m_database->forgetError();
    const bool isLast = record.id != 0 && record.id == m_last->record.id;
    StoredReceipt next;
    next.record = record;
    const bool done = m_database->begin()
                      && writeReceipt(*m_database, next, isLast ? *m_last : StoredReceipt())
                      && writeJournal(*m_database, next.record.id, journal) && m_database->commit();
    if (!done) {
        m_database->rollBack();
        return m_database->error();
    }
    const bool hasEnded = m_last->ended == 0 && next.ended != 0;
    record.id = next.record.id;
    *m_last = std::move(next);
    if (hasEnded)
        m_database->foldLog();
    return {};
}

std::optional<ReceiptRecord> Storage::unfinishedReceipt(QString *error) const
{
    m_database->forgetError();
    auto record = readUnfinishedReceipt(*m_database);
    *error = m_database->error();
    return record;
}

std::optional<ReceiptRecord> Storage::receipt(qint64 id, QString *error) const
{
    m_database->forgetError();
    auto record = readReceipt(*m_database, id);
    *error = m_database->error();
    return record;
}

std::optional<ReceiptRecord> Storage::lines(qint64 id, QString *error) const
{
    m_database->forgetError();
    auto record = readLines(*m_database, id);
    *error = m_database->error();
    return record;
}

QString Storage::setApart(qint64 id)
{
    m_database->forgetError();
    const QString reason = reasonToSetApart(*m_database, id);
    if (m_database->error().isEmpty() && m_database->begin()) {
        const bool done =
            m_database->run(
                QStringLiteral("INSERT INTO setApart (receipt, time, reason) VALUES (?, ?, ?)"),
                {id, QDateTime::currentMSecsSinceEpoch(), reason})
            && m_database->commit();
        if (!done)
            m_database->rollBack();
    }
    return m_database->error();
}

QList<JournalEntry> Storage::journal(qint64 receiptId) const
{
    m_database->forgetError();
    return readJournal(*m_database, receiptId);
}

} // namespace till
