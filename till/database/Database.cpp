#include "till/database/Database.h"

#include "till/database/SqlFault.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtSql/QSqlError>

#include <atomic>
#include <cerrno>
#include <tuple>

namespace till {

namespace {

//! How long others that are at the file for a moment are waited for, in milliseconds.
constexpr int Patience = 5000;

//! Lets SQLite wait for them, or not.
QString waiting(bool waits)
{
    return QStringLiteral("PRAGMA busy_timeout = %1").arg(waits ? Patience : 0);
}

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
            QSqlQuery(m_database).exec(QStringLiteral("PRAGMA user_version"));
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

Result<std::unique_ptr<Database>> Database::open(const QString &path, Access access,
                                                 const Check &leftOpen)
{
    std::unique_ptr<Database> database(new Database(path, access));
    const Result<> opened =
        database->prepare(leftOpen).then([&] { return database->connectToFile(); });
    if (!opened)
        return opened.error();
    return database;
}

Fault Database::fault(const QSqlError &error) const
{
    const Fault fault = faultOf(error);
    return {m_path, fault.reason, fault.remedy};
}

Result<> Database::prepare(const Check &leftOpen)
{
    if (m_access == Access::Reading)
        return checkReadable(m_path);
    if (m_path == inMemory())
        return {};
    return checkPlace(m_path).then([this] { return claim(); }).then([&]() -> Result<> {
        if (!leftOpen || !hasLog(m_path))
            return {};
        // By one who cannot write, for who can brings the log into the file at the end.
        return open(m_path, Access::Reading).then([&](const auto &reader) {
            return leftOpen(*reader);
        });
    });
}

Result<> Database::claim()
{
    // Otherwise SQLite would, as the umask has it. Where there is one, or none can be made, the
    // lock and SQLite tell.
    std::ignore = makePrivateFile(m_path);
    return m_lock.take(m_path);
}

Result<> Database::connectToFile()
{
    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QSQLITE")))
        return fault(QStringLiteral("Qt's driver for SQLite is not installed"));
    if (!(m_access == Access::Reading ? connectToRead() : connectAs(nameOfFile(m_path), {})))
        return fault(m_database.lastError());
    return execute({waiting(true), QStringLiteral("PRAGMA synchronous = FULL"),
                    QStringLiteral("PRAGMA foreign_keys = ON")});
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

Result<> Database::checkFile()
{
    return valueOf(QStringLiteral("PRAGMA integrity_check(1)"))
        .then([this](const QVariant &found) -> Result<> {
            QString told = found.toString();
            if (told == QLatin1String("ok"))
                return {};
            return fault(QStringLiteral("the database is damaged (%1)")
                             .arg(told.replace(QLatin1Char('\n'), QLatin1Char(' '))),
                         wayOutOfDamage());
        });
}

Result<> Database::keepLog()
{
    if (m_path != inMemory())
        makePrivate(m_path); // one that was made by hand, or before files were private
    return valueOf(QStringLiteral("PRAGMA journal_mode = WAL"))
        .then([this](const QVariant &mode) -> Result<> {
            if (m_path != inMemory() && mode.toString() != QLatin1String("wal"))
                return fault(QStringLiteral("no write-ahead log can be kept here"));
            return {};
        });
}

void Database::foldLog()
{
    // A reader may take long, and a cashier does not wait for one.
    for (const QString &sql :
         {waiting(false), QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"), waiting(true)})
        QSqlQuery(m_database).exec(sql);
}

Result<> Database::copyTo(const QString &path)
{
    const QString part = path + QStringLiteral(".part"); // until it is whole
    const auto failed = [&](const QString &reason) {
        return fault(QStringLiteral("no copy can be made at %1: %2").arg(path, reason));
    };
    if (QFileInfo::exists(path))
        return failed(QStringLiteral("there is something already"));
    QFile::remove(part);
    const auto write = [&] { // one transaction; Qt has no backup of SQLite's
        return run(QStringLiteral("VACUUM INTO ?"), {QFileInfo(part).absoluteFilePath()});
    };
    const auto name = [&]() -> Result<> {
        if (QFile::rename(part, path))
            return {};
        return Fault{path, qt_error_string(errno)};
    };
    const Result<> copied = makePrivateFile(part)
                                .then(write)
                                .then([&] { return bringToMedium(part); })
                                .then(name)
                                .then([&] { return bringToMedium(path); });
    if (copied)
        return {};
    QFile::remove(part);
    return failed(copied.error().reason);
}

Result<> Database::execute(const QStringList &statements)
{
    QSqlQuery query(m_database);
    for (const QString &sql : statements) {
        if (!query.exec(sql))
            return fault(query.lastError());
    }
    return {};
}

Result<QVariant> Database::valueOf(const QString &sql)
{
    QSqlQuery query(m_database);
    query.setForwardOnly(true);
    const bool isRun = query.exec(sql);
    const QVariant value = isRun && query.next() ? query.value(0) : QVariant();
    if (query.lastError().isValid())
        return fault(query.lastError());
    return value;
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

Result<QSqlQuery *> Database::start(const QString &sql, const QVariantList &values)
{
    const auto [entry, isNew] = m_statements.try_emplace(sql, m_database);
    auto &[query, places] = entry->second;
    if (!isNew || entry->second.prepare(sql)) {
        Q_ASSERT(values.size() == places.size());
        for (qsizetype i = 0; i < values.size(); ++i)
            query.bindValue(places.at(i), values.at(i));
        if (query.exec())
            return &query;
    }
    const Fault why = fault(query.lastError());
    m_statements.erase(entry); // the driver may have given it up for good
    return why;
}

Result<> Database::run(const QString &sql, const QVariantList &values)
{
    return start(sql, values).then([](const QSqlQuery *) { return Result<>(); });
}

Result<> Database::walk(const QString &sql, const QVariantList &values, const Take &take)
{
    const Result<QSqlQuery *> started = start(sql, values);
    if (!started)
        return started.error();
    QSqlQuery &rows = **started;
    Result<> taken;
    while (taken && rows.next())
        taken = take(rows);
    if (taken && rows.lastError().isValid())
        taken = fault(rows.lastError());
    rows.finish();
    return taken;
}

Result<> Database::inTransaction(const std::function<Result<>()> &step)
{
    const Result<> done = run(QStringLiteral("BEGIN IMMEDIATE")).then(step).then([this] {
        return run(QStringLiteral("COMMIT"));
    });
    // SQLite may have undone it by itself, as it does on a full disk; then this fails, rightly.
    if (!done)
        QSqlQuery(m_database).exec(QStringLiteral("ROLLBACK"));
    return done;
}

} // namespace till
