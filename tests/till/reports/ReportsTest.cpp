#include "tests/till/lookup/LookupFixture.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QMap>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>

#include <cmath>

// docs/reports.md says what is in a line, and how to ask it.

namespace {

class Reports : public LookupTest
{
protected:
    //! What each article of tara comes to.
    struct Tara
    {
        double pieces = 0.0;
        double kopecks = 0.0;
        int empty = 0;
        int records = 0;
        double fill = 0.0;
    };
    using Rows = QList<QVariantList>;

    const QString page = QString::fromUtf8(contents(QStringLiteral(DOCS_DIR "/reports.md")));

    //! The lines of \a count receipts.
    QList<QByteArray> linesOfMany(qint64 count) const
    {
        sellMany(count);
        return QByteArray::fromStdString(told({"receipts", "--json"})).trimmed().split('\n');
    }

    static QMap<QString, Tara> countedByHand(const QList<QByteArray> &lines)
    {
        QMap<QString, Tara> all;
        for (const QByteArray &line : lines) {
            const QJsonObject receipt = QJsonDocument::fromJson(line).object();
            if (receipt.value("state") != "closed")
                continue;
            const auto positions = receipt.value("positions").toArray();
            for (const auto &position : positions)
                countPosition(position.toObject(), all);
            const auto records = receipt.value("tara").toArray();
            for (const auto &record : records)
                countRecord(record.toObject(), all);
        }
        return all;
    }

    //! What the statement number \a index of the page gives over \a lines.
    Rows ask(qsizetype index, const QList<QByteArray> &lines) const
    {
        const QString sql = page.section("```sql\n", index + 1, index + 1).section("```", 0, 0);
        Rows rows;
        {
            QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", "reports");
            database.setDatabaseName(":memory:");
            EXPECT_TRUE(database.open());
            QSqlQuery query(database);
            EXPECT_TRUE(query.exec("CREATE TABLE lines (shop TEXT, receipt TEXT)"));
            query.prepare("INSERT INTO lines VALUES ('shop', ?)");
            for (const QByteArray &line : lines) {
                query.bindValue(0, QString::fromUtf8(line));
                EXPECT_TRUE(query.exec());
            }
            EXPECT_TRUE(query.exec(sql)) << query.lastError().text().toStdString();
            while (query.next())
                rows.append({query.value(0), query.value(1), query.value(2)});
        }
        QSqlDatabase::removeDatabase("reports");
        return rows;
    }

private:
    static void countPosition(const QJsonObject &position, QMap<QString, Tara> &all)
    {
        if (position.value("taraMode") != 1 || position.value("stornoed").toBool())
            return;
        Tara &tara = all[position.value("article").toString()];
        tara.pieces += position.value("count").toDouble();
        tara.kopecks += position.value("sum").toDouble();
    }

    static void countRecord(const QJsonObject &record, QMap<QString, Tara> &all)
    {
        Tara &tara = all[record.value("article").toString()];
        const double capacity = record.value("capacity").toDouble();
        const double used = capacity - record.value("free").toDouble();
        ++tara.records;
        tara.empty += used < 0.0005 ? 1 : 0;
        tara.fill += used / capacity;
    }
};

TEST_F(Reports, QuestionsOfThePage_AreAnsweredRightly)
{
    const QList<QByteArray> lines = linesOfMany(1000);
    ASSERT_EQ(lines.size(), 1000);
    const QMap<QString, Tara> all = countedByHand(lines);
    ASSERT_EQ(all.size(), 3);
    const Rows sold = ask(0, lines);
    const Rows empty = ask(1, lines);
    const Rows fill = ask(2, lines);
    ASSERT_EQ(sold.size(), 3);
    ASSERT_EQ(empty.size(), 3);
    ASSERT_EQ(fill.size(), 3);
    qsizetype row = 0;
    for (auto tara = all.cbegin(); tara != all.cend(); ++tara, ++row) {
        EXPECT_GT(tara->empty, 0);
        EXPECT_EQ(sold[row][0], tara.key());
        EXPECT_DOUBLE_EQ(sold[row][1].toDouble(), tara->pieces);
        EXPECT_DOUBLE_EQ(sold[row][2].toDouble(), tara->kopecks / 100);
        EXPECT_EQ(empty[row][0], tara.key());
        EXPECT_EQ(empty[row][1].toInt(), tara->empty);
        EXPECT_EQ(fill[row][0], tara.key());
        EXPECT_EQ(fill[row][1].toInt(), tara->records);
        EXPECT_NEAR(fill[row][2].toDouble(), 100 * tara->fill / tara->records, 0.051);
    }
}

TEST_F(Reports, EachFieldOfALine_IsOnThePage)
{
    const QList<QByteArray> lines = linesOfMany(20);
    const QJsonObject receipt = QJsonDocument::fromJson(lines[0]).object();
    EXPECT_GT(receipt.size(), 10);
    const auto expectNamed = [this](const QJsonObject &object) {
        const QStringList names = object.keys();
        for (const QString &name : names)
            EXPECT_TRUE(page.contains('`' + name + '`')) << name.toStdString();
    };
    for (const QByteArray &line : lines) {
        const QJsonObject object = QJsonDocument::fromJson(line).object();
        expectNamed(object);
        for (const char *list : {"positions", "tara"})
            expectNamed(object.value(QLatin1String(list))[0].toObject());
        expectNamed(object.value("tara")[0]["goods"][0].toObject());
    }
}

} // namespace
