#include "till/storage/Storage.h"

#include "till/storage/Database.h"
#include "till/storage/ReceiptReader.h"
#include "till/storage/ReceiptWriter.h"

namespace till {

Storage::Storage(std::unique_ptr<Database> database)
    : m_database(std::move(database))
    , m_last(std::make_unique<StoredReceipt>())
{
}

Storage::~Storage() = default;

std::unique_ptr<Storage> Storage::open(const QString &path, QString *error)
{
    auto database = Database::open(path, error);
    return database ? std::unique_ptr<Storage>(new Storage(std::move(database))) : nullptr;
}

QString Storage::path() const
{
    return m_database->path();
}

QString Storage::save(ReceiptRecord &record, const QList<JournalEntry> &journal)
{
    m_database->forgetError();
    const bool isLast = record.id != 0 && record.id == m_last->record.id;
    StoredReceipt next{record, {}};
    const bool done = m_database->begin()
                      && writeReceipt(*m_database, next, isLast ? *m_last : StoredReceipt())
                      && writeJournal(*m_database, next.record.id, journal) && m_database->commit();
    if (!done) {
        m_database->rollBack();
        return m_database->error();
    }
    record.id = next.record.id;
    *m_last = std::move(next);
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

QList<JournalEntry> Storage::journal(qint64 receiptId) const
{
    m_database->forgetError();
    return readJournal(*m_database, receiptId);
}

} // namespace till
