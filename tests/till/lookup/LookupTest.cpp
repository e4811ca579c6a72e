#include "tests/till/lookup/LookupFixture.h"

#include <QtCore/QDate>
#include <QtCore/QDateTime>
#include <QtCore/QJsonArray>

// What the program tells of the receipts in its database.

namespace {

using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;
using testing::StartsWith;

using Lookup = LookupTest;

TEST_F(Lookup, List_HasALineForEachReceipt)
{
    sell();
    const std::string time = "  20[0-9-]+ [0-9:]+  ";
    EXPECT_THAT(told({"receipts"}),
                MatchesRegex("     No.  Opened                     Sum  Receipt\n"
                             "       1"
                             + time
                             + "      349.00  Receipt · closed · 3 pos.\n"
                               "       2"
                             + time
                             + "      129.90  Return · closed · 1 pos. · order 7,a\n"
                               "       3"
                             + time + "        0.00  Receipt · open · 0 pos.\n"));
}

TEST_F(Lookup, ListInRussian_HasNoEnglishWord)
{
    sell();
    const std::string list = run({"--db", database(), "receipts"}).out;
    EXPECT_THAT(list, HasSubstr("  Чек · закрыт · 3 поз.\n"));
    EXPECT_THAT(list, StartsWith("       №  Открыт                   Сумма  Чек\n"));
}

TEST_F(Lookup, ListOfNothing_SaysSo)
{
    sell();
    EXPECT_EQ(told({"receipts", "--to", "2001-01-01"}), "no receipts\n");
    EXPECT_EQ(told({"receipts", "--to", "2001-01-01", "--json"}), "");
    EXPECT_EQ(linesOf(told({"receipts", "--to", "2001-01-01", "--csv"})), 1);
}

TEST_F(Lookup, DaysAndStates_AreChosen)
{
    sell();
    EXPECT_THAT(told({"receipts", "--state", "open"}), Not(HasSubstr("closed")));
    EXPECT_EQ(objects({"receipts", "--state", "closed"}).size(), 2);
    EXPECT_EQ(objects({"receipts", "--state", "open", "--state", "closed"}).size(), 3);
    const QString today = QDate::currentDate().addDays(-1).toString(Qt::ISODate);
    EXPECT_EQ(objects({"receipts", "--from", today}).size(), 3);
}

TEST_F(Lookup, Days_AreThoseOnWhichReceiptsWereOpened)
{
    sellMany(till::receiptsADay + 5);
    const auto day = [](qint64 id) { return till::dayOfReceipt(id).toString(Qt::ISODate); };
    const auto of = [&](const QStringList &days) {
        return linesOf(told(QStringList{"receipts", "--csv"} + days)) - 1;
    };
    EXPECT_EQ(of({"--from", day(1), "--to", day(1)}), till::receiptsADay);
    EXPECT_EQ(of({"--from", day(till::receiptsADay + 1)}), 5);
    EXPECT_EQ(of({"--to", day(1), "--state", "cancelled", "--state", "closed"}),
              till::receiptsADay);
}

TEST_F(Lookup, Csv_HasARowForEachReceipt)
{
    sell();
    const std::string time = "20[0-9-]+ [0-9:]+";
    EXPECT_THAT(told({"receipts", "--csv"}),
                MatchesRegex("id,type,state,opened,ended,order,positions,total,setApart,fault\n"
                             "1,sale,closed,"
                             + time + ',' + time
                             + ",,3,349.00,,\n"
                               "2,return,closed,"
                             + time + ',' + time
                             + ",\"7,a\",1,129.90,,\n"
                               "3,sale,open,"
                             + time + ",,,0,0.00,,\n"));
}

TEST_F(Lookup, Json_HasPositionsAndTara)
{
    sell();
    const QList<QJsonObject> receipts = objects({"receipts"});
    ASSERT_EQ(receipts.size(), 3);
    const QJsonObject sale = receipts[0];
    EXPECT_EQ(sale.value("id").toInt(), 1);
    EXPECT_EQ(sale.value("type"), "sale");
    EXPECT_EQ(sale.value("state"), "closed");
    EXPECT_EQ(sale.value("total").toInt(), 34900);
    EXPECT_TRUE(sale.value("order").isNull());
    EXPECT_TRUE(sale.value("fault").isNull());
    const QDateTime opened = QDateTime::fromString(sale.value("opened").toString(), Qt::ISODate);
    EXPECT_EQ(opened.timeSpec(), Qt::UTC);
    EXPECT_LT(std::abs(opened.secsTo(QDateTime::currentDateTimeUtc())), 3600);
    const QJsonArray positions = sale.value("positions").toArray();
    ASSERT_EQ(positions.size(), 3);
    EXPECT_EQ(positions[2].toObject().value("article"), "BEER");
    EXPECT_EQ(positions[2].toObject().value("sum").toInt(), 28000);
    const QJsonObject beer{{"position", 3}, {"article", "BEER"}, {"amount", 2}};
    const QJsonArray tara{QJsonObject{{"position", 1},
                                      {"article", "CAN3"},
                                      {"capacity", 3},
                                      {"free", 1},
                                      {"goods", QJsonArray{beer}}},
                          QJsonObject{{"position", 2},
                                      {"article", "PET1"},
                                      {"capacity", 1},
                                      {"free", 1},
                                      {"goods", QJsonArray()}}};
    EXPECT_EQ(sale.value("tara").toArray(), tara);
    EXPECT_EQ(receipts[1].value("order"), "7,a");
    EXPECT_TRUE(receipts[2].value("ended").isNull());
    EXPECT_EQ(objects({"receipt", "1"}), QList<QJsonObject>{sale});
}

TEST_F(Lookup, TextsOfJson_SteerNoTerminal)
{
    run({"--db", database()}, "open\norder x\xe2\x80\xaey\n");
    EXPECT_THAT(told({"receipt", "1", "--json"}), HasSubstr("\"order\":\"x\\u202ey\""));
    EXPECT_EQ(objects({"receipt", "1"})[0].value("order").toString().size(), 3);
}

TEST_F(Lookup, Receipt_IsShownAsTheRegisterDoes)
{
    sell();
    const std::string shown = told({"receipt", "3"});
    EXPECT_THAT(run({"--db", database(), "--lang", "en"}, "show\n").out, HasSubstr(shown));
    EXPECT_THAT(told({"receipt", "1"}), HasSubstr("[#######...] 2 / 3 л, free 1: pos. 3 — 2\n"));
    EXPECT_THAT(told({"receipt", "2"}), HasSubstr("order 7,a · tara control suspended\n"));
}

TEST_F(Lookup, ListInAPipe_IsNotCut)
{
    const QByteArray order(150, 'x');
    EXPECT_EQ(run({"--db", database()}, "open\norder " + order + '\n').status, 0);
    EXPECT_THAT(told({"receipts"}), HasSubstr(order.toStdString() + "\n"));
}

TEST_F(Lookup, WhatIsNotThere_IsSaid)
{
    sell();
    for (const QString word : {"receipt", "journal"}) {
        const RunResult none = lookUp({word, "9"});
        EXPECT_EQ(none.status, 1);
        EXPECT_THAT(none.err, HasSubstr("receipt 9\n"));
        EXPECT_EQ(none.out, "");
        EXPECT_EQ(lookUp({word, "nine"}).status, 2);
    }
    EXPECT_EQ(run({"--db", path("none"), "receipts"}).status, 3);
}

TEST_F(Lookup, WrongWords_AreNamed)
{
    const QList<std::pair<QStringList, const char *>> rows{
        {{"receipt"}, "receipt: which receipt?"},
        {{"journal"}, "journal: of which receipt?"},
        {{"journal", "x"}, "journal: \"x\" is no number of a receipt"},
        {{"receipts", "1"}, "\"1\" is one word too many"},
        {{"receipts", "--from", "yesterday"}, "--from: \"yesterday\" is no day such as 2026-12-31"},
        {{"receipts", "--to", "2026-02-30"}, "--to: \"2026-02-30\" is no day"},
        {{"receipts", "--from", "2026-02-02", "--to", "2026-02-01"},
         "--to: 2026-02-01 is before 2026-02-02"},
        {{"receipts", "--state", "paid"},
         "--state: \"paid\" is none of: open, subtotal, closed, cancelled"},
        {{"receipts", "--json", "--csv"}, "--csv: not with --json"},
        {{"receipt", "1", "--csv"}, "--csv: means something to receipts alone"},
        {{"check", "--json"}, "--json: means something to receipts, receipt, journal alone"}};
    for (const auto &[words, text] : rows) {
        const RunResult wrong = lookUp(words);
        EXPECT_EQ(wrong.status, 2) << text;
        EXPECT_THAT(wrong.err, StartsWith("till: " + std::string(text)));
        EXPECT_EQ(wrong.out, "");
    }
}

TEST_F(Lookup, DatabaseOfTheFormatBefore_SaysWhatToDo)
{
    ASSERT_TRUE(QFile::copy(QStringLiteral(SCHEMA1_DATABASE), database()));
    const RunResult refused = lookUp({"receipts"});
    EXPECT_EQ(refused.status, 3);
    EXPECT_THAT(refused.err, HasSubstr("its format is not today's yet: open the register once"));
    QFile::setPermissions(database(), QFile::ReadOwner | QFile::WriteOwner);
    run({"--db", database()});
    EXPECT_THAT(told({"receipts"}), HasSubstr("386.00  Receipt · subtotal · 3 pos. · order 8\n"));
    EXPECT_TRUE(objects({"receipts"})[0].value("opened").isNull());
}

TEST_F(Lookup, DamagedReceipt_IsNamedAndNothingElseIsToldOfIt)
{
    sell();
    query("UPDATE receipts SET total = 5 WHERE id = 2");
    for (const QStringList &form : QList<QStringList>{{"--json"}, {"--csv"}, {}}) {
        const RunResult list = lookUp(QStringList{"receipts"} + form);
        EXPECT_EQ(list.status, 1);
        EXPECT_EQ(list.err, "till: receipt 2: its header is not as it was stored\n");
        EXPECT_THAT(list.out, Not(HasSubstr("129.90")));
    }
    EXPECT_THAT(lookUp({"receipts"}).out,
                HasSubstr(" 2  " + std::string(32, ' ') + "damaged: its header is not as"));
    EXPECT_THAT(
        lookUp({"receipts", "--json"}).out,
        HasSubstr("\n{\"fault\":\"its header is not as it was stored\",\"id\":2,\"setApart\":"
                  "null}\n"));
    EXPECT_THAT(lookUp({"receipts", "--csv"}).out,
                HasSubstr("\n2,,,,,,,,,its header is not as it was stored\n"));
    EXPECT_EQ(lookUp({"receipt", "2"}).status, 1);
}

TEST_F(Lookup, ReceiptWithDamagedDataOfAPlugin_IsShownWithoutItsTara)
{
    sell();
    const std::string whole = told({"receipt", "1"});
    EXPECT_THAT(whole, HasSubstr("free 1: pos. 3"));
    query("UPDATE pluginData SET value = x'00' WHERE receipt = 1 AND key = 'taraInfo'");
    const std::string reason =
        "the data of plugin \"PackagingControl\" under \"taraInfo\" are damaged";

    const RunResult text = lookUp({"receipt", "1"});
    EXPECT_EQ(text.status, 1);
    EXPECT_EQ(text.err, "till: " + database().toStdString() + ": receipt 1: " + reason + '\n');
    EXPECT_THAT(text.out, HasSubstr("280.00"));
    EXPECT_THAT(text.out, HasSubstr("349.00"));
    EXPECT_THAT(text.out, Not(HasSubstr("pos. 3")));

    const RunResult line = lookUp({"receipt", "1", "--json"});
    EXPECT_EQ(line.status, 1);
    EXPECT_EQ(line.err, text.err);
    const QJsonObject receipt = trace(QByteArray::fromStdString(line.out)).value(0);
    EXPECT_EQ(receipt.value("fault").toString().toStdString(), reason);
    EXPECT_EQ(receipt.value("positions").toArray().size(), 3);
    EXPECT_FALSE(receipt.contains("tara"));

    const RunResult list = lookUp({"receipts", "--json"});
    EXPECT_EQ(list.status, 1);
    EXPECT_EQ(list.err, "till: receipt 1: " + reason + '\n');
    EXPECT_THAT(list.out, StartsWith(line.out));
}

TEST_F(Lookup, ReceiptThatWasSetApart_IsMarked)
{
    sell();
    EXPECT_EQ(lookUp({"set-apart", "3"}).status, 0);
    EXPECT_THAT(told({"receipts"}),
                HasSubstr("0.00  set apart: unfinished · Receipt · open · 0 pos.\n"));
    query("UPDATE receipts SET total = 5 WHERE id = 3");
    EXPECT_THAT(told({"receipts"}), HasSubstr("set apart: unfinished"));
    EXPECT_EQ(objects({"receipts"})[2].value("setApart"), "unfinished");
}

} // namespace
