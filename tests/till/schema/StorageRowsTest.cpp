#include "tests/till/storage/PluginTypes.h"
#include "tests/till/storage/StorageFixture.h"
#include "till/archive/Upkeep.h"
#include "till/schema/Schema.h"

#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtSql/QSqlRecord>

#include <gmock/gmock.h>

#include <bit>
#include <cmath>

// Rows of an open receipt that were changed behind the till's back: none is taken.

namespace till {

namespace {

using testing::HasSubstr;
using testing::StartsWith;

//! A till with an open receipt, and somebody else at its database.
class StorageRows : public StorageTest
{
protected:
    StorageRows()
    {
        record = receiptOf(3);
        record.order = "17";
        record.lines[1].stornoed = true;
        record.lines[0].groupId = "{group}";
        record.softChecks = QStringList{"5", "6"};
        record.pluginData["plugin"]["taraInfo"] = QVariantList{1, "a", 2.5};
        record.pluginData["plugin"]["other"] = 7;
        record.pluginData["plugin"]["own"] = QVariant::fromValue(Streamed{8});
        ReceiptRecord finished = receiptOf(1);
        finished.state = ReceiptState::Closed;
        save(*storage, finished);
        save(*storage, record);
        m_other.setDatabaseName(path());
        EXPECT_TRUE(m_other.open());
        run("PRAGMA synchronous = OFF");
    }
    ~StorageRows() override
    {
        m_other = QSqlDatabase();
        QSqlDatabase::removeDatabase("other");
    }

    //! Runs \a sql behind the till's back; the values of the first row.
    QVariantList run(const QString &sql, const QVariantList &values = {})
    {
        QSqlQuery query(m_other);
        query.prepare(sql);
        for (const QVariant &value : values)
            query.addBindValue(value);
        EXPECT_TRUE(query.exec()) << query.lastError().text().toStdString();
        QVariantList row;
        const int columns = query.next() ? query.record().count() : 0;
        for (int column = 0; column < columns; ++column)
            row.append(query.value(column));
        return row;
    }

    //! The receipt is refused, by its number, with \a what.
    void isRefused(const std::string &what = {})
    {
        const std::string fault = faultText(storage->unfinishedReceipt()).toStdString();
        EXPECT_THAT(fault, StartsWith(path().toStdString() + ": receipt 2: "));
        EXPECT_THAT(fault, HasSubstr(what));
        EXPECT_THAT(fault, HasSubstr("till set-apart 2"));
    }

    ReceiptRecord record;
    std::unique_ptr<Storage> storage = opened();

private:
    QSqlDatabase m_other = QSqlDatabase::addDatabase("QSQLITE", "other");
};

//! A table and one of its columns.
struct Column
{
    const char *table;
    const char *column;
    const char *row = "place = 0";
};

void PrintTo(const Column &column, std::ostream *out)
{
    *out << column.table << '.' << column.column;
}

class FlippedBit : public StorageRows, public testing::WithParamInterface<Column>
{
protected:
    //! Each value that differs from \a value in one bit.
    static QVariantList flipped(const QVariant &value)
    {
        QVariantList others;
        for (int bit = 0; bit < bitsOf(value); ++bit)
            others.append(flip(value, bit));
        return others;
    }

private:
    static int bitsOf(const QVariant &value)
    {
        const bool isNumber =
            value.typeId() == QMetaType::LongLong || value.typeId() == QMetaType::Double;
        return isNumber ? 64 : static_cast<int>(value.toByteArray().size()) * 8;
    }

    static QVariant flip(const QVariant &value, int bit)
    {
        const quint64 mask = quint64(1) << (bit % 64);
        if (value.typeId() == QMetaType::LongLong)
            return QVariant::fromValue<qint64>(
                static_cast<qint64>(static_cast<quint64>(value.toLongLong()) ^ mask));
        if (value.typeId() == QMetaType::Double)
            return std::bit_cast<double>(std::bit_cast<quint64>(value.toDouble()) ^ mask);
        QByteArray bytes = value.toByteArray();
        bytes[bit / 8] = static_cast<char>(bytes[bit / 8] ^ (1 << (bit % 8)));
        return bytes;
    }
};

TEST_P(FlippedBit, OfAnOpenReceipt_IsRefused)
{
    const QString table = GetParam().table;
    const QString column = GetParam().column;
    const QString where =
        table == "receipts" ? "id = 2" : QString("receipt = 2 AND ") + GetParam().row;
    const QVariant value =
        run(QString("SELECT %1 FROM %2 WHERE %3").arg(column, table, where)).value(0);
    const bool isText = value.typeId() == QMetaType::QString;
    const QString set = QString(isText ? "UPDATE OR IGNORE %2 SET %1 = CAST(? AS TEXT) WHERE %3"
                                       : "UPDATE OR IGNORE %2 SET %1 = ? WHERE %3")
                            .arg(column, table, where);
    int flips = 0;
    const QVariantList others = flipped(value);
    for (const QVariant &other : others) {
        // A database has no such number, or the same.
        if (other.typeId() == QMetaType::Double
            && (std::isnan(other.toDouble()) || other.toDouble() == value.toDouble()))
            continue;
        run(set, {other});
        if (run("SELECT changes()") == QVariantList{0})
            continue; // the database itself refuses it
        ++flips;
        SCOPED_TRACE(other.toString().toStdString());
        isRefused();
        run(set, {value});
    }
    EXPECT_GT(flips, 1);
    EXPECT_EQ(unfinished(*storage), record);
}

INSTANTIATE_TEST_SUITE_P(
    Columns, FlippedBit,
    testing::Values(
        Column{"receipts", "type"}, Column{"receipts", "state"}, Column{"receipts", "orderNumber"},
        Column{"receipts", "nextPosnum"}, Column{"receipts", "opened"}, Column{"receipts", "ended"},
        Column{"receipts", "positions"}, Column{"receipts", "total"},
        Column{"receipts", "contents"}, Column{"receipts", "digest"}, Column{"positions", "posnum"},
        Column{"positions", "code"}, Column{"positions", "name"}, Column{"positions", "price"},
        Column{"positions", "taraMode"}, Column{"positions", "taraCapacity"},
        Column{"positions", "pack"}, Column{"positions", "unit"}, Column{"positions", "count"},
        Column{"positions", "base"}, Column{"positions", "groupId"},
        Column{"positions", "stornoed"}, Column{"positions", "digest"},
        Column{"positions", "place", "posnum = 1"}, Column{"softChecks", "number"},
        Column{"softChecks", "place", "number = '5'"}, Column{"softChecks", "digest"},
        Column{"pluginData", "plugin", "place = 2"}, Column{"pluginData", "key", "place = 2"},
        Column{"pluginData", "place", "key = 'other'"}, Column{"pluginData", "value", "place = 2"},
        Column{"pluginData", "types", "key = 'own'"}, Column{"pluginData", "digest", "place = 2"}),
    [](const auto &test) { return std::string(test.param.table) + '_' + test.param.column; });

//! What somebody may have done to rows, and what the till says to it.
struct Damage
{
    const char *name;
    const char *sql;
    const char *fault;
};

void PrintTo(const Damage &damage, std::ostream *out)
{
    *out << damage.sql;
}

class DamagedRows : public StorageRows, public testing::WithParamInterface<Damage>
{
};

TEST_P(DamagedRows, OfAnOpenReceipt_AreRefusedAndStay)
{
    const QStringList statements = QString(GetParam().sql).split("; ");
    for (const QString &sql : statements)
        run(sql);
    isRefused(GetParam().fault);
    storage.reset();
    const QByteArray before = contents(path());
    storage = opened();
    isRefused(GetParam().fault);
    storage.reset();
    EXPECT_EQ(contents(path()), before);
}

INSTANTIATE_TEST_SUITE_P(
    Table, DamagedRows,
    testing::Values(
        Damage{"PositionRemoved", "DELETE FROM positions WHERE receipt = 2 AND place = 1",
               "its rows are not those that were stored"},
        Damage{"LivePositionRemoved", "DELETE FROM positions WHERE receipt = 2 AND place = 0",
               "1 positions are there, and there were 2"},
        Damage{"EveryPositionRemoved", "DELETE FROM positions WHERE receipt = 2",
               "0 positions are there, and there were 2"},
        Damage{"SoftCheckRemoved", "DELETE FROM softChecks WHERE place = 1",
               "its rows are not those that were stored"},
        Damage{"PluginDataRemoved", "DELETE FROM pluginData WHERE key = 'other'",
               "its rows are not those that were stored"},
        Damage{"ElementRemoved", "DELETE FROM pluginData WHERE key = 'taraInfo' AND place = 3",
               "its rows are not those that were stored"},
        Damage{"ElementsExchanged",
               "UPDATE pluginData SET place = 9 WHERE place = 1; UPDATE pluginData SET place = 1 "
               "WHERE place = 2; UPDATE pluginData SET place = 2 WHERE place = 9",
               "the data of plugin \"plugin\" under \"taraInfo\" are damaged"},
        Damage{"HeaderRemoved", "DELETE FROM receipts WHERE id = 2", "its header is missing"},
        Damage{"PositionsExchanged",
               "UPDATE positions SET place = 9 WHERE receipt = 2 AND place = 0; UPDATE positions "
               "SET place = 0 WHERE receipt = 2 AND place = 2; UPDATE positions SET place = 2 "
               "WHERE place = 9",
               "position 3 is not as it was stored"},
        Damage{"SoftChecksExchanged",
               "UPDATE softChecks SET number = CASE number WHEN '5' THEN '6' ELSE '5' END",
               "soft-check 6 is not as it was stored"},
        Damage{"PositionOfAnotherReceipt",
               "UPDATE positions SET receipt = 2, place = 3 WHERE receipt = 1",
               "position 1 is not as it was stored"},
        Damage{"PositionAdded",
               "INSERT INTO positions SELECT receipt, 3, 4, code, name, price, taraMode, "
               "taraCapacity, pack, unit, count, base, groupId, 0, digest FROM positions WHERE "
               "receipt = 2 AND place = 0",
               "position 4 is not as it was stored"},
        Damage{"SoftCheckAdded", "INSERT INTO softChecks VALUES (2, 2, '7', x'00')",
               "soft-check 7 is not as it was stored"},
        Damage{"PluginDataAdded",
               "INSERT INTO pluginData VALUES (2, 'a', 'b', 0, x'00', '', x'00')",
               "the data of plugin \"a\" under \"b\" are damaged"},
        Damage{"PriceBelowZero", "UPDATE positions SET price = -100 WHERE receipt = 2",
               "position 1 is not as it was stored"},
        Damage{"EndlessCount", "UPDATE positions SET count = 1e300 WHERE receipt = 2",
               "position 1 is not as it was stored"},
        Damage{"NumberTwice", "UPDATE positions SET posnum = 1 WHERE receipt = 2 AND place = 2",
               "position 1 is not as it was stored"},
        Damage{"CountIsAText", "UPDATE positions SET count = 'many' WHERE receipt = 2",
               "position 1 is not as it was stored"},
        Damage{"TakenForClosed", "UPDATE receipts SET state = 2 WHERE id = 2",
               "its header is not as it was stored"},
        Damage{"TakenForCancelled", "UPDATE receipts SET state = 3 WHERE id = 2",
               "its header is not as it was stored"},
        Damage{"HeaderOfAnother",
               "UPDATE receipts SET (state, nextPosnum, positions, total, contents, digest) = "
               "(SELECT state, nextPosnum, positions, total, contents, digest FROM receipts "
               "WHERE id = 1) WHERE id = 2",
               "its header is not as it was stored"}),
    [](const auto &test) { return test.param.name; });

TEST_F(StorageRows, RowsOfTheCommandBefore_AreRefused)
{
    const QString copy = "CREATE TEMP TABLE before AS SELECT * FROM positions WHERE receipt = 2";
    run(copy);
    record.lines[0].count = 2.0;
    save(*storage, record);
    run("DELETE FROM positions WHERE receipt = 2");
    run("INSERT INTO positions SELECT * FROM before");
    isRefused("its rows are not those that were stored");
}

TEST_F(StorageRows, TotalThatIsNotThatOfThePositions_IsRefusedAndFoundByACheck)
{
    QVariantList header = run(receiptsTable().select() + "WHERE id = 2");
    header.removeLast(); // the digest
    header[8] = header[8].toLongLong() + 1;
    run("UPDATE receipts SET total = ?, digest = ? WHERE id = 2",
        {header[8], receiptsTable().digest(header)});
    isRefused("its positions come to 241.00, and its total is 241.01");
    const CheckReport report = must(checkDatabase(path()));
    ASSERT_EQ(report.odd.size(), 1);
    EXPECT_EQ(report.odd[0].reason, "its positions come to 241.00, and its total is 241.01");
}

} // namespace

} // namespace till
