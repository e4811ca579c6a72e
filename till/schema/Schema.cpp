#include "till/schema/Schema.h"

#include "till/database/Database.h"
#include "till/schema/Upgrade.h"

#include <optional>

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

//! The version of what is in the database; nothing, with the error noted, when it is not ours.
std::optional<int> versionOf(Database &database)
{
    const QVariant application = database.valueOf(QStringLiteral("PRAGMA application_id"));
    const QVariant version = database.valueOf(QStringLiteral("PRAGMA user_version"));
    const QVariant contents =
        database.valueOf(QStringLiteral("SELECT count(*) FROM sqlite_master"));
    if (!application.isValid() || !version.isValid() || !contents.isValid())
        return std::nullopt;
    if (application.toInt() == 0 && version.toInt() == 0 && contents.toInt() == 0)
        return Nothing;
    if (application.toInt() != ApplicationId) {
        database.fail(QStringLiteral("this is a database of another program"));
        return std::nullopt;
    }
    if (version.toInt() == Version || version.toInt() == VersionBefore)
        return version.toInt();
    database.fail(QStringLiteral("the database was made by another version of the till (its format "
                                 "is %1, this till knows %2)")
                      .arg(version.toInt())
                      .arg(Version));
    return std::nullopt;
}

bool makeTables(Database &database)
{
    bool made = database.execute(QStringLiteral("PRAGMA application_id = %1").arg(ApplicationId))
                && database.execute(QStringLiteral("PRAGMA user_version = %1").arg(Version));
    for (const char *statement : Statements)
        made = made && database.execute(QString::fromLatin1(statement));
    return made;
}

bool makeSchema(Database &database)
{
    if (database.begin() && makeTables(database) && database.commit())
        return true;
    database.rollBack();
    return false;
}

bool upgrade(Database &database, QString *copy)
{
    return database.checkFile() && upgradeFromSchema1(database, makeTables, copy);
}

bool isWritable(Database &database)
{
    if (!database.begin())
        return false;
    database.rollBack();
    return true;
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

bool isComplete(Database &database)
{
    for (const char *statement : Statements) {
        const QString sql = QString::fromLatin1(statement);
        QSqlQuery *const rows =
            database.run(QStringLiteral("SELECT count(*) FROM sqlite_master WHERE sql = ?"), {sql});
        if (!rows || !database.next(*rows))
            return false;
        const bool isThere = rows->value(0).toInt() == 1;
        rows->finish();
        if (!isThere)
            return database.fail(
                QStringLiteral("the database is damaged (its %1 %2 is missing or altered)")
                    .arg(sql.section(QLatin1Char(' '), 1, 1).toLower(),
                         sql.section(QLatin1Char(' '), 2, 2)));
    }
    return true;
}

bool prepareSchema(Database &database, QString *copy)
{
    const std::optional<int> version = versionOf(database);
    if (!version || !database.keepLog())
        return false;
    const bool isReady = *version == Nothing         ? makeSchema(database)
                         : *version == VersionBefore ? upgrade(database, copy)
                                                     : true;
    return isReady && isComplete(database) && isWritable(database);
}

bool isReadable(Database &database)
{
    const std::optional<int> version = versionOf(database);
    if (version && *version != Version)
        return database.fail(
            QStringLiteral("its format is not today's yet: open the register once"));
    return version.has_value();
}

bool isOurs(Database &database)
{
    return versionOf(database).has_value();
}

} // namespace till
