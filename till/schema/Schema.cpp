#include "till/schema/Schema.h"

#include "till/database/Database.h"
#include "till/database/SqlFault.h"
#include "till/schema/Upgrade.h"

namespace till {

namespace {

constexpr int ApplicationId = 0x54494C4C; // "TILL"
constexpr int Version = 2;
constexpr int VersionBefore = 1;
constexpr int Nothing = 0; //!< of a file that nothing is in yet

// Rows refer to a header that is written after them, for it holds their digests.
constexpr const char *Statements[] = {
    "CREATE TABLE receipts ("
    " id INTEGER PRIMARY KEY AUTOINCREMENT," // a number is never given twice
    " type INTEGER NOT NULL,"
    " state INTEGER NOT NULL CHECK (state BETWEEN 0 AND 3),"
    " orderNumber TEXT NOT NULL,"
    " nextPosnum INTEGER NOT NULL,"
    " opened INTEGER NOT NULL,"    // milliseconds since 1970; 0 when not known
    " ended INTEGER NOT NULL,"     // closed or cancelled; 0 before, and when not known
    " positions INTEGER NOT NULL," // those that are not stornoed
    " total INTEGER NOT NULL,"     // their sum
    " contents BLOB NOT NULL,"     // digest of the set of its rows in the tables below
    " digest BLOB NOT NULL)",
    "CREATE INDEX unfinished ON receipts (id) WHERE state < 2",
    "CREATE INDEX receiptsByTime ON receipts (opened)",
    "CREATE TABLE positions ("
    " receipt INTEGER NOT NULL REFERENCES receipts DEFERRABLE INITIALLY DEFERRED,"
    " place INTEGER NOT NULL,"
    " posnum INTEGER NOT NULL,"
    " code TEXT NOT NULL,"
    " name TEXT NOT NULL,"
    " price INTEGER NOT NULL,"
    " taraMode INTEGER NOT NULL,"
    " taraCapacity REAL NOT NULL,"
    " pack REAL NOT NULL,"
    " unit TEXT NOT NULL,"
    " count REAL NOT NULL,"
    " base REAL NOT NULL,"
    " groupId TEXT NOT NULL,"
    " stornoed INTEGER NOT NULL,"
    " digest BLOB NOT NULL,"
    " PRIMARY KEY (receipt, place)) WITHOUT ROWID",
    "CREATE TABLE softChecks ("
    " receipt INTEGER NOT NULL REFERENCES receipts DEFERRABLE INITIALLY DEFERRED,"
    " place INTEGER NOT NULL,"
    " number TEXT NOT NULL,"
    " digest BLOB NOT NULL,"
    " PRIMARY KEY (receipt, place)) WITHOUT ROWID",
    "CREATE TABLE pluginData ("
    " receipt INTEGER NOT NULL REFERENCES receipts DEFERRABLE INITIALLY DEFERRED,"
    " plugin TEXT NOT NULL,"
    " key TEXT NOT NULL,"
    " place INTEGER NOT NULL," // the first has the value, of a list an empty one: see ValueWriter
    " value BLOB NOT NULL,"
    " types TEXT NOT NULL,"
    " digest BLOB NOT NULL,"
    " PRIMARY KEY (receipt, plugin, key, place)) WITHOUT ROWID",
    "CREATE TABLE journal ("
    " id INTEGER PRIMARY KEY,"
    " receipt INTEGER NOT NULL REFERENCES receipts DEFERRABLE INITIALLY DEFERRED,"
    " depth INTEGER NOT NULL,"
    " kind TEXT NOT NULL,"
    " json BLOB NOT NULL)",
    "CREATE INDEX journalOfReceipt ON journal (receipt, id)",
    "CREATE TABLE setApart ("
    " receipt INTEGER PRIMARY KEY," // one whose header is gone can be set apart too
    " time INTEGER NOT NULL,"
    " reason TEXT NOT NULL)",
};

//! The version of what is in the database, which is ours.
Result<int> versionOf(Database &database)
{
    int numbers[3] = {};
    int *number = numbers;
    for (const char *sql :
         {"PRAGMA application_id", "PRAGMA user_version", "SELECT count(*) FROM sqlite_master"}) {
        const Result<QVariant> read = database.valueOf(QString::fromLatin1(sql));
        if (!read)
            return read.error();
        *number++ = read->toInt();
    }
    const auto [application, version, contents] = numbers;
    if (application == 0 && version == 0 && contents == 0)
        return Nothing;
    if (application != ApplicationId)
        return database.fault(QStringLiteral("this is a database of another program"));
    if (version == Version || version == VersionBefore)
        return version;
    return database.fault(QStringLiteral("the database was made by another version of the till "
                                         "(its format is %1, this till knows %2)")
                              .arg(version)
                              .arg(Version));
}

QStringList makingTables()
{
    QStringList statements{QStringLiteral("PRAGMA application_id = %1").arg(ApplicationId),
                           QStringLiteral("PRAGMA user_version = %1").arg(Version)};
    for (const char *statement : Statements)
        statements.append(QString::fromLatin1(statement));
    return statements;
}

//! As `prepareSchema`, of a database that is of that \a version.
Result<QString> bringToFormat(Database &database, int version)
{
    if (version == VersionBefore)
        return database.checkFile().then(
            [&] { return upgradeFromSchema1(database, makingTables()); });
    if (version == Nothing) {
        const Result<> made =
            database.inTransaction([&] { return database.execute(makingTables()); });
        if (!made)
            return made.error();
    }
    return QString();
}

Result<> checkWritable(Database &database)
{
    return database.inTransaction([] { return Result<>(); });
}

} // namespace

const Table &receiptsTable()
{
    static const Table table("receipts", 1,
                             {"id", "type", "state", "orderNumber", "nextPosnum", "opened", "ended",
                              "positions", "total", "contents"});
    return table;
}

const Table &positionsTable()
{
    static const Table table("positions", 2,
                             {"receipt", "place", "posnum", "code", "name", "price", "taraMode",
                              "taraCapacity", "pack", "unit", "count", "base", "groupId",
                              "stornoed"});
    return table;
}

const Table &softChecksTable()
{
    static const Table table("softChecks", 2, {"receipt", "place", "number"});
    return table;
}

const Table &pluginDataTable()
{
    static const Table table("pluginData", 4,
                             {"receipt", "plugin", "key", "place", "value", "types"});
    return table;
}

Result<> checkTables(Database &database)
{
    for (const char *statement : Statements) {
        const QString sql = QString::fromLatin1(statement);
        bool isThere = false;
        const Result<> read =
            database.each(QStringLiteral("SELECT 1 FROM sqlite_master WHERE sql = ?"), {sql},
                          [&isThere](const QSqlQuery &) { isThere = true; });
        if (!read)
            return read;
        if (!isThere)
            return database.fault(
                QStringLiteral("the database is damaged (its %1 %2 is missing or altered)")
                    .arg(sql.section(QLatin1Char(' '), 1, 1).toLower(),
                         sql.section(QLatin1Char(' '), 2, 2)),
                wayBackFromDamage());
    }
    return {};
}

Result<QString> prepareSchema(Database &database)
{
    const Result<int> version = versionOf(database);
    if (!version)
        return version.error();
    const Result<QString> copy =
        database.keepLog().then([&] { return bringToFormat(database, *version); });
    if (!copy)
        return copy;
    const Result<> checked = checkTables(database).then([&] { return checkWritable(database); });
    return checked ? copy : checked.error();
}

Result<> checkFormat(Database &database)
{
    return versionOf(database).then([&database](int version) -> Result<> {
        if (version != Version)
            return database.fault(
                QStringLiteral("its format is not today's yet: open the register once"));
        return {};
    });
}

Result<> checkOurs(Database &database)
{
    return versionOf(database).then([](int) { return Result<>(); });
}

} // namespace till
