#include "till/schema/Upgrade.h"

#include "till/database/Database.h"
#include "till/receipt/RecordFault.h"
#include "till/schema/ReceiptReader.h"
#include "till/schema/Schema.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace till {

namespace {

//! What the rows of one receipt come to.
struct Contents
{
    RowsDigest rows;
    qint64 positions = 0;
    Kopecks total = 0;
};
using AllContents = QMap<qint64, Contents>;

constexpr const char *OldTables[] = {"journal", "pluginData", "softChecks", "positions",
                                     "receipts"};

bool putOldAside(Database &database)
{
    bool done = database.execute(QStringLiteral("DROP INDEX unfinished"))
                && database.execute(QStringLiteral("DROP INDEX journalOfReceipt"));
    for (const char *table : OldTables)
        done =
            done && database.execute(QStringLiteral("ALTER TABLE %1 RENAME TO old_%1").arg(table));
    return done;
}

bool dropOld(Database &database)
{
    bool done = true;
    for (const char *table : OldTables)
        done = done && database.execute(QStringLiteral("DROP TABLE old_%1").arg(table));
    return done;
}

void countLine(const QVariantList &values, Contents &contents)
{
    const LineRecord line = lineOf(values);
    if (line.stornoed)
        return;
    ++contents.positions;
    if (faultOf(line, line.posnum + 1).isEmpty()) // else its sum may be no number
        contents.total += sumOf(line.article.price, line.count);
}

//! The next row of \a rows, of which \a table has \a count columns.
QVariantList valuesOf(const QSqlQuery &rows, int count)
{
    QVariantList values;
    for (int column = 0; column < count; ++column)
        values.append(rows.value(column));
    return values;
}

bool moveRow(Database &database, const Table &table, const QVariantList &values, Contents &contents)
{
    const QByteArray digest = table.digest(values);
    contents.rows.toggle(digest);
    return table.write(database, values, digest);
}

bool movePositions(Database &database, AllContents &all)
{
    QSqlQuery *const rows = database.run(
        QStringLiteral("SELECT receipt, place, posnum, code, name, price, taraMode, taraCapacity, "
                       "pack, unit, count, base, groupId, stornoed FROM old_positions"));
    while (rows && database.next(*rows)) {
        const QVariantList values = valuesOf(*rows, 14);
        Contents &contents = all[values[0].toLongLong()];
        if (!moveRow(database, positionsTable(), values, contents))
            return false;
        countLine(values, contents);
    }
    return !database.hasFailed();
}

bool moveSoftChecks(Database &database, AllContents &all)
{
    QSqlQuery *const rows =
        database.run(QStringLiteral("SELECT receipt, place, number FROM old_softChecks"));
    while (rows && database.next(*rows)) {
        const QVariantList values = valuesOf(*rows, 3);
        if (!moveRow(database, softChecksTable(), values, all[values[0].toLongLong()]))
            return false;
    }
    return !database.hasFailed();
}

//! The digest that the first format kept of a value.
QByteArray digestBefore(const QByteArray &value, const QString &types)
{
    return QCryptographicHash::hash(value + types.toUtf8(), QCryptographicHash::Blake2b_256);
}

bool movePluginData(Database &database, AllContents &all)
{
    QSqlQuery *const rows = database.run(
        QStringLiteral("SELECT receipt, plugin, key, value, types, digest FROM old_pluginData"));
    while (rows && database.next(*rows)) {
        QVariantList values = valuesOf(*rows, 5);
        const bool isWhole = rows->value(5).toByteArray()
                             == digestBefore(values[3].toByteArray(), values[4].toString());
        values.insert(3, 0); // a list stays in one row until it is stored anew
        const bool isMoved =
            isWhole ? moveRow(database, pluginDataTable(), values, all[values[0].toLongLong()])
                    : pluginDataTable().write(database, values, QByteArray("damaged before"));
        if (!isMoved)
            return false;
    }
    return !database.hasFailed();
}

bool moveHeaders(Database &database, const AllContents &all)
{
    QSqlQuery *const rows = database.run(
        QStringLiteral("SELECT id, type, state, orderNumber, nextPosnum FROM old_receipts"));
    while (rows && database.next(*rows)) {
        const Contents contents = all.value(rows->value(0).toLongLong());
        constexpr qint64 notKnown = 0;
        const QVariantList values = valuesOf(*rows, 5)
                                    + QVariantList{notKnown, notKnown, contents.positions,
                                                   contents.total, contents.rows.bytes()};
        if (!receiptsTable().write(database, values, receiptsTable().digest(values)))
            return false;
    }
    return !database.hasFailed();
}

bool moveAll(Database &database)
{
    AllContents all;
    return movePositions(database, all) && moveSoftChecks(database, all)
           && movePluginData(database, all) && moveHeaders(database, all)
           && database.execute(QStringLiteral("INSERT INTO journal SELECT * FROM old_journal"));
}

//! A name beside the database that is free.
QString nameOfCopy(const QString &path)
{
    const QString name = path + QStringLiteral(".schema1");
    QString free = name;
    for (int number = 2; QFileInfo::exists(free); ++number)
        free = QStringLiteral("%1-%2").arg(name).arg(number);
    return free;
}

} // namespace

bool upgradeFromSchema1(Database &database, bool (*makeTables)(Database &), QString *copy)
{
    *copy = nameOfCopy(database.path());
    if (!database.copyTo(*copy))
        return false;
    // Rows without a header, which only damage makes, are kept too.
    const bool done = database.execute(QStringLiteral("PRAGMA foreign_keys = OFF"))
                      && database.begin() && putOldAside(database) && makeTables(database)
                      && moveAll(database) && dropOld(database) && database.commit()
                      && database.execute(QStringLiteral("PRAGMA foreign_keys = ON"));
    if (!done) {
        database.rollBack();
        QFile::remove(*copy);
    }
    return done;
}

} // namespace till
