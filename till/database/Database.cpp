#include "till/database/Database.h"

#include "till/database/SqlFault.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtSql/QSqlError>

#include <atomic>
#include <cerrno>

namespace till {

namespace {

//! How long others that are at the file for a moment are waited for, in milliseconds.
constexpr int Patience = 5000;

} // namespace

Database::Database(const QString &path, Access access)
    : m_path(path)
    , m_access(access)
{
    static std::atomic<int> connections = 0;
    m_connection = QStringLiteral("till-%1").arg(++connections);
}

Database::~Database()
{
    disconnect();
    // SQLite makes a log for a reader, who may not take it away. One who may does so as the last to
    // leave, when nobody else is at the database.
    if (m_access == Access::Reading && hasEmptyLog(m_path)) {
        if (connectAs(nameOfFile(m_path), QString()))
            valueOf(QStringLiteral("PRAGMA user_version"));
        disconnect();
    }
}

void Database::disconnect()
{
    // Qt complains of a connection that is removed while something refers to it.
    m_statements.clear();
    m_database.close();
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_connection);
}

Result<std::unique_ptr<Database>> Database::open(const QString &path, Access access)
{
    std::unique_ptr<Database> database(new Database(path, access));
    if (!database->prepare(access) || !database->connectToFile(access))
        return database->fault();
    return database;
}

bool Database::fail(const QString &reason, const QString &remedy)
{
    m_fault = Fault{m_path, reason, remedy};
    return false;
}

bool Database::failWith(const QSqlError &error)
{
    const Fault fault = faultOf(error);
    return fail(fault.reason, fault.remedy);
}

bool Database::prepare(Access access)
{
    if (access == Access::Till && m_path == inMemory())
        return true;
    const QString fault = access == Access::Till ? placeFault(m_path) : readingFault(m_path);
    if (!fault.isEmpty())
        return fail(fault);
    if (access == Access::Till && !claim())
        return false;
    return access == Access::Reading || !hasLog(m_path) || checkLeftOpen();
}

//! Read by somebody who cannot write, for who can write brings the log into the file at the end.
bool Database::checkLeftOpen()
{
    const auto reader = open(m_path, Access::Reading);
    if (!reader)
        m_fault = reader.error();
    else if (!(*reader)->checkFile())
        m_fault = (*reader)->fault();
    return !hasFailed();
}

bool Database::claim()
{
    makePrivateFile(m_path); // otherwise SQLite would, as the umask has it
    if (m_lock.take(m_path)) {
        // One that was made by hand, or before files were private.
        QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner);
        return true;
    }
    if (errno == EWOULDBLOCK)
        return fail(QStringLiteral("another till has this database open"),
                    QStringLiteral("close it, or name another database with --db"));
    return fail(QStringLiteral("the database cannot be opened for writing (%1)")
                    .arg(qt_error_string(errno)));
}

bool Database::connectToFile(Access access)
{
    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QSQLITE")))
        return fail(QStringLiteral("Qt's driver for SQLite is not installed"));
    if (!(access == Access::Reading ? connectToRead() : connectAs(nameOfFile(m_path), QString())))
        return failWith(m_database.lastError());
    return waitForOthers(true) && execute(QStringLiteral("PRAGMA synchronous = FULL"))
           && execute(QStringLiteral("PRAGMA foreign_keys = ON"));
}

bool Database::connectToRead()
{
    if (isStill(m_path))
        return connectAs(nameOfStillFile(m_path),
                         QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_OPEN_URI"));
    return connectAs(nameOfFile(m_path), QStringLiteral("QSQLITE_OPEN_READONLY"));
}

bool Database::connectAs(const QString &name, const QString &options)
{
    m_database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connection);
    m_database.setConnectOptions(options);
    m_database.setDatabaseName(name);
    return m_database.open();
}

bool Database::waitForOthers(bool waits)
{
    return execute(QStringLiteral("PRAGMA busy_timeout = %1").arg(waits ? Patience : 0));
}

bool Database::checkFile()
{
    const QVariant result = valueOf(QStringLiteral("PRAGMA integrity_check(1)"));
    if (!result.isValid())
        return false;
    if (result.toString() != QLatin1String("ok"))
        return fail(QStringLiteral("the database is damaged (%1)")
                        .arg(result.toString().replace(QLatin1Char('\n'), QLatin1Char(' '))),
                    wayOutOfDamage());
    return true;
}

bool Database::keepLog()
{
    const QVariant mode = valueOf(QStringLiteral("PRAGMA journal_mode = WAL"));
    if (!mode.isValid())
        return false;
    if (m_path != inMemory() && mode.toString() != QLatin1String("wal"))
        return fail(QStringLiteral("no write-ahead log can be kept here"));
    return true;
}

void Database::foldLog()
{
    const std::optional<Fault> fault = m_fault;
    waitForOthers(false); // a reader may take long, and a cashier does not wait for one
    valueOf(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"));
    waitForOthers(true);
    m_fault = fault;
}

bool Database::copyTo(const QString &path)
{
    const QString part = path + QStringLiteral(".part"); // until it is whole
    const auto failed = [&](const QString &reason) {
        return fail(QStringLiteral("no copy can be made at %1: %2").arg(path, reason));
    };
    if (QFileInfo::exists(path))
        return failed(QStringLiteral("there is something already"));
    QFile::remove(part);
    if (!makePrivateFile(part))
        return failed(qt_error_string(errno));
    QSqlQuery copying(m_database);
    copying.prepare(
        QStringLiteral("VACUUM INTO ?")); // one transaction; Qt has no backup of SQLite's
    copying.addBindValue(QFileInfo(part).absoluteFilePath());
    const bool isWhole = copying.exec();
    if (isWhole && bringToMedium(part) && QFile::rename(part, path) && bringToMedium(path))
        return true;
    const QString reason = isWhole ? qt_error_string(errno) : faultOf(copying.lastError()).reason;
    QFile::remove(part);
    return failed(reason);
}

bool Database::execute(const QString &sql)
{
    QSqlQuery query(m_database);
    return query.exec(sql) || failWith(query.lastError());
}

QVariant Database::valueOf(const QString &sql)
{
    QSqlQuery query(m_database);
    query.setForwardOnly(true);
    if (query.exec(sql) && query.next())
        return query.value(0);
    failWith(query.lastError());
    return {};
}

bool Database::Statement::prepare(const QString &sql)
{
    QString named;
    for (const QChar sign : sql) {
        if (sign == QLatin1Char('?'))
            named += places.emplace_back(QStringLiteral(":%1").arg(places.size()));
        else
            named += sign;
    }
    query.setForwardOnly(true);
    return query.prepare(named);
}

QSqlQuery *Database::run(const QString &sql, const QVariantList &values)
{
    const auto [entry, isNew] = m_statements.try_emplace(sql, m_database);
    auto &[query, places] = entry->second;
    if (isNew && !entry->second.prepare(sql)) {
        failWith(query.lastError());
        m_statements.erase(entry);
        return nullptr;
    }
    Q_ASSERT(values.size() == places.size());
    for (qsizetype i = 0; i < values.size(); ++i)
        query.bindValue(places.at(i), values.at(i));
    if (query.exec())
        return &query;
    failWith(query.lastError());
    m_statements.erase(entry); // the driver may have given it up for good
    return nullptr;
}

bool Database::next(QSqlQuery &rows)
{
    if (rows.next())
        return true;
    if (rows.lastError().isValid())
        failWith(rows.lastError());
    rows.finish();
    return false;
}

bool Database::begin()
{
    return run(QStringLiteral("BEGIN IMMEDIATE"));
}

bool Database::commit()
{
    return run(QStringLiteral("COMMIT"));
}

void Database::rollBack()
{
    // SQLite may have done so by itself, as it does on a full disk; then this fails, rightly.
    const std::optional<Fault> fault = m_fault;
    run(QStringLiteral("ROLLBACK"));
    m_fault = fault;
}

} // namespace till
