#include "till/schema/Upgrade.h"

#include "till/database/Database.h"
#include "till/receipt/RecordFault.h"
#include "till/schema/ReceiptReader.h"
#include "till/schema/Schema.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <tuple>

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

QStringList puttingOldAside()
{
    QStringList statements{QStringLiteral("DROP INDEX unfinished"),
                           QStringLiteral("DROP INDEX journalOfReceipt")};
    for (const char *table : OldTables)
        statements.append(QStringLiteral("ALTER TABLE %1 RENAME TO old_%1").arg(table));
    return statements;
}

QStringList droppingOld()
{
    QStringList statements;
    for (const char *table : OldTables)
        statements.append(QStringLiteral("DROP TABLE old_%1").arg(table));
    return statements;
}

void countLine(const QVariantList &values, Contents &contents)
{
    const LineRecord line = lineOf(values);
    if (line.stornoed)
        return;
    ++contents.positions;
    if (check(line, line.posnum + 1)) // else its sum may be no number
        std::ignore = qAddOverflow(contents.total, line.sum(), &contents.total); // refused later
}

//! The \a row, of which a table has \a count columns.
QVariantList valuesOf(const QSqlQuery &row, int count)
{
    QVariantList values;
    for (int column = 0; column < count; ++column)
        values.append(row.value(column));
    return values;
}

Result<> moveRow(Database &database, const Table &table, const QVariantList &values,
                 Contents &contents)
{
    const QByteArray digest = table.digest(values);
    contents.rows.toggle(digest);
    return table.write(database, values, digest);
}

Result<> movePositions(Database &database, AllContents &all)
{
    return database.each(
        QStringLiteral("SELECT receipt, place, posnum, code, name, price, taraMode, taraCapacity, "
                       "pack, unit, count, base, groupId, stornoed FROM old_positions"),
        {}, [&](const QSqlQuery &row) {
            const QVariantList values = valuesOf(row, 14);
            Contents &contents = all[values[0].toLongLong()];
            countLine(values, contents);
            return moveRow(database, positionsTable(), values, contents);
        });
}

Result<> moveSoftChecks(Database &database, AllContents &all)
{
    return database.each(QStringLiteral("SELECT receipt, place, number FROM old_softChecks"), {},
                         [&](const QSqlQuery &row) {
                             const QVariantList values = valuesOf(row, 3);
                             return moveRow(database, softChecksTable(), values,
                                            all[values[0].toLongLong()]);
                         });
}

//! The digest that the first format kept of a value.
QByteArray digestBefore(const QByteArray &value, const QString &types)
{
    return QCryptographicHash::hash(value + types.toUtf8(), QCryptographicHash::Blake2b_256);
}

Result<> movePluginData(Database &database, AllContents &all)
{
    return database.each(
        QStringLiteral("SELECT receipt, plugin, key, value, types, digest FROM old_pluginData"), {},
        [&](const QSqlQuery &row) {
            QVariantList values = valuesOf(row, 5);
            const bool isWhole = row.value(5).toByteArray()
                                 == digestBefore(values[3].toByteArray(), values[4].toString());
            values.insert(3, 0); // a list stays in one row until it is stored anew
            return isWhole
                       ? moveRow(database, pluginDataTable(), values, all[values[0].toLongLong()])
                       : pluginDataTable().write(database, values, QByteArray("damaged before"));
        });
}

Result<> moveHeaders(Database &database, const AllContents &all)
{
    return database.each(
        QStringLiteral("SELECT id, type, state, orderNumber, nextPosnum FROM old_receipts"), {},
        [&](const QSqlQuery &row) {
            const Contents contents = all.value(row.value(0).toLongLong());
            constexpr qint64 notKnown = 0;
            const QVariantList values = valuesOf(row, 5)
                                        + QVariantList{notKnown, notKnown, contents.positions,
                                                       contents.total, contents.rows.bytes()};
            return receiptsTable().write(database, values, receiptsTable().digest(values));
        });
}

Result<> moveAll(Database &database)
{
    AllContents all;
    return movePositions(database, all)
        .then([&] { return moveSoftChecks(database, all); })
        .then([&] { return movePluginData(database, all); })
        .then([&] { return moveHeaders(database, all); })
        .then([&] {
            return database.execute(
                {QStringLiteral("INSERT INTO journal SELECT * FROM old_journal")});
        });
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

Result<QString> upgradeFromSchema1(Database &database, const QStringList &makingTables)
{
    const QString copy = nameOfCopy(database.path());
    if (const Result<> copied = database.copyTo(copy); !copied)
        return copied.error();
    // Rows without a header, which only damage makes, are kept too.
    const Result<> done =
        database.execute({QStringLiteral("PRAGMA foreign_keys = OFF")})
            .then([&] {
                return database.inTransaction([&] {
                    return database.execute(puttingOldAside() + makingTables)
                        .then([&] { return moveAll(database); })
                        .then([&] { return database.execute(droppingOld()); });
                });
            })
            .then([&] { return database.execute({QStringLiteral("PRAGMA foreign_keys = ON")}); });
    if (done)
        return copy;
    QFile::remove(copy);
    return done.error();
}

} // namespace till
