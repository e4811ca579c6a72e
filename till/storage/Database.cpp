#include "till/storage/Database.h"

#include "till/storage/Schema.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtSql/QSqlError>

#include <atomic>

namespace till {

namespace {

//! Result codes of SQLite that people can do something about.
enum Code : int {
    Busy = 5,
    Locked = 6,
    ReadOnly = 8,
    Corrupt = 11,
    Full = 13,
    CannotOpen = 14,
    NotADatabase = 26,
};

QString inMemory()
{
    return QStringLiteral(":memory:");
}

//! What \a code means to the people at the register; empty when it is nothing they know.
QString meaningOf(int code)
{
    switch (code) {
    case Busy:
    case Locked:
        return QStringLiteral("another till has this database open");
    case ReadOnly:
    case CannotOpen:
        return QStringLiteral("the database cannot be opened for writing");
    case Corrupt:
        return QStringLiteral("the database is damaged");
    case NotADatabase:
        return QStringLiteral("not a database of the till, or damaged");
    case Full:
        return QStringLiteral("the disk is full");
    default:
        return {};
    }
}

QString reasonOf(const QSqlError &error)
{
    // The low byte is the primary code; the rest tells details.
    const int code = error.nativeErrorCode().toInt() & 0xff;
    QString meaning = meaningOf(code);
    if (meaning.isEmpty())
        return error.databaseText();
    if (code != Busy && code != Locked)
        meaning += QStringLiteral(" (%1)").arg(error.databaseText());
    return meaning;
}

} // namespace

Database::Database(const QString &path)
    : m_path(path)
{
    static std::atomic<int> connections = 0;
    m_connection = QStringLiteral("till-%1").arg(++connections);
}

Database::~Database()
{
    // Qt complains of a connection that is removed while something refers to it.
    m_statements.clear();
    m_database.close();
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_connection);
}

std::unique_ptr<Database> Database::open(const QString &path, QString *error)
{
    std::unique_ptr<Database> database(new Database(path));
    const bool ready = database->checkPlace() && database->connectToFile() && database->recognise()
                       && database->check() && database->makeDurable() && database->makeSchema()
                       && database->checkWritable();
    *error = database->error();
    return ready ? std::move(database) : nullptr;
}

bool Database::fail(const QString &reason)
{
    m_error = QStringLiteral("%1: %2").arg(m_path, reason);
    return false;
}

bool Database::failWith(const QSqlError &error)
{
    return fail(reasonOf(error));
}

// The file itself is not opened here: to close it would end the locks that this process has on it.
bool Database::checkPlace()
{
    if (m_path == inMemory())
        return true;
    if (m_path.isEmpty())
        return fail(QStringLiteral("no name of a database file was given"));
    const QFileInfo file(m_path);
    if (file.isDir())
        return fail(QStringLiteral("this is a directory, not a database file"));
    if (file.exists() && !file.isFile())
        return fail(QStringLiteral("this is not a regular file"));
    if (file.exists() && !file.isWritable())
        return fail(QStringLiteral("this file may not be written"));
    const QFileInfo directory(file.absolutePath());
    if (!directory.isDir())
        return fail(QStringLiteral("there is no directory %1").arg(directory.filePath()));
    if (!directory.isWritable())
        return fail(
            QStringLiteral("the directory %1 may not be written").arg(directory.filePath()));
    // SQLite would take such a file for a new database and delete the log, with the receipts. (A
    // file of one byte is an empty one to it.)
    const QString log = (file.exists() ? file.canonicalFilePath() : file.absoluteFilePath())
                        + QStringLiteral("-wal");
    if (file.size() <= 1 && QFileInfo(log).size() > 0)
        return fail(
            QStringLiteral("the database is damaged (empty, but its log %1 is not)").arg(log));
    return true;
}

bool Database::connectToFile()
{
    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QSQLITE")))
        return fail(QStringLiteral("Qt's driver for SQLite is not installed"));
    m_database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connection);
    m_database.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=0"));
    // An absolute path, for SQLite reads "file:..." as a URI.
    m_database.setDatabaseName(m_path == inMemory() ? m_path
                                                    : QFileInfo(m_path).absoluteFilePath());
    if (!m_database.open())
        return failWith(m_database.lastError());
    // Before the first access, so that the first access takes the lock for good.
    return execute(QStringLiteral("PRAGMA locking_mode = EXCLUSIVE"))
           && execute(QStringLiteral("PRAGMA synchronous = FULL"))
           && execute(QStringLiteral("PRAGMA foreign_keys = ON"));
}

bool Database::recognise()
{
    const QVariant application = valueOf(QStringLiteral("PRAGMA application_id"));
    const QVariant version = valueOf(QStringLiteral("PRAGMA user_version"));
    const QVariant contents = valueOf(QStringLiteral("SELECT count(*) FROM sqlite_master"));
    if (!application.isValid() || !version.isValid() || !contents.isValid())
        return false;
    m_new = application.toInt() == 0 && version.toInt() == 0 && contents.toInt() == 0;
    if (m_new)
        return true;
    if (application.toInt() != schema::applicationId)
        return fail(QStringLiteral("this is a database of another program"));
    if (version.toInt() != schema::version)
        return fail(QStringLiteral("the database was made by another version of the till (its "
                                   "format is %1, this till knows %2)")
                        .arg(version.toInt())
                        .arg(schema::version));
    return true;
}

bool Database::check()
{
    const QVariant result = valueOf(QStringLiteral("PRAGMA quick_check(1)"));
    if (!result.isValid())
        return false;
    if (result.toString() != QLatin1String("ok"))
        return fail(QStringLiteral("the database is damaged (%1)")
                        .arg(result.toString().replace(QLatin1Char('\n'), QLatin1Char(' '))));
    return true;
}

bool Database::makeDurable()
{
    const QVariant mode = valueOf(QStringLiteral("PRAGMA journal_mode = WAL"));
    if (!mode.isValid())
        return false;
    if (m_path != inMemory() && mode.toString() != QLatin1String("wal"))
        return fail(QStringLiteral("no write-ahead log can be kept here"));
    return true;
}

bool Database::makeSchema()
{
    if (!m_new)
        return true;
    if (!begin())
        return false;
    bool made = true;
    for (const char *statement : schema::statements)
        made = made && execute(QLatin1String(statement));
    made = made && execute(QStringLiteral("PRAGMA application_id = %1").arg(schema::applicationId))
           && execute(QStringLiteral("PRAGMA user_version = %1").arg(schema::version)) && commit();
    if (!made)
        rollBack();
    return made;
}

bool Database::checkWritable()
{
    if (!begin())
        return false;
    rollBack();
    return true;
}

bool Database::execute(const QString &sql)
{
    QSqlQuery query(m_database);
    return query.exec(sql) || failWith(query.lastError());
}

//! The first value of the first row; invalid, with the error noted, when there is none.
QVariant Database::valueOf(const QString &sql)
{
    QSqlQuery query(m_database);
    query.setForwardOnly(true);
    if (query.exec(sql) && query.next())
        return query.value(0);
    failWith(query.lastError());
    return {};
}

QSqlQuery *Database::run(const QString &sql, const QVariantList &values)
{
    const auto [entry, isNew] = m_statements.try_emplace(sql, m_database);
    QSqlQuery &query = entry->second;
    if (isNew) {
        query.setForwardOnly(true);
        if (!query.prepare(sql)) {
            failWith(query.lastError());
            m_statements.erase(entry);
            return nullptr;
        }
    }
    for (qsizetype i = 0; i < values.size(); ++i)
        query.bindValue(static_cast<int>(i), values[i]);
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
    const QString error = m_error;
    run(QStringLiteral("ROLLBACK"));
    m_error = error;
}

} // namespace till
