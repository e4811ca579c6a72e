#include "till/archive/Archive.h"

#include "tests/till/storage/StorageFixture.h"
#include "tests/till/support/ManyReceipts.h"
#include "tests/till/support/Sql.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <gmock/gmock.h>

#include <memory>

// Receipts that are looked up, beside a till or without one.

namespace till {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class ArchiveTest : public StorageTest
{
protected:
    std::unique_ptr<Archive> archive() const { return must(Archive::open(path())); }

    //! The numbers of the receipts that are listed.
    static QList<qint64> listed(Archive &archive, const Selection &selection = {})
    {
        QList<qint64> ids;
        EXPECT_EQ(faultText(archive.list(selection,
                                         [&](const KeptReceipt &receipt) {
                                             ids.append(receipt.record.id);
                                             return Result<>();
                                         })),
                  QString());
        EXPECT_EQ(must(archive.count(selection)), ids.size());
        return ids;
    }

    //! A receipt that is there.
    static KeptReceipt receiptOf(Archive &archive, qint64 id)
    {
        return must(archive.receipt(id, "PackagingControl")).value_or(KeptReceipt());
    }

    //! Saves a receipt of that many positions in that state.
    void sell(Storage &storage, int count, ReceiptState state) const
    {
        ReceiptRecord record = StorageTest::receiptOf(count);
        record.state = state;
        save(storage, record, {{1, "action", "{}"}});
    }

    //! How SQLite finds the rows.
    QString planOf(const Selection &selection) const
    {
        QString plan;
        const QList<QVariantList> rows =
            rowsOf(path(), "EXPLAIN QUERY PLAN SELECT * FROM receipts" + selection.sql());
        for (const QVariantList &row : rows)
            plan += row.last().toString() + '\n';
        return plan;
    }
};

TEST_F(ArchiveTest, Receipt_IsTheOneThatWasSaved)
{
    ReceiptRecord record = withEverything();
    record.state = ReceiptState::Closed;
    save(*opened(), record, {{0, "open", "{}"}, {1, "close", "{}"}});
    const auto kept = archive();
    const KeptReceipt receipt = receiptOf(*kept, 1);
    record.pluginData.remove("another"); // was not asked for
    EXPECT_EQ(receipt.record, record);
    EXPECT_TRUE(receipt.holds());
    EXPECT_EQ(receipt.setApart, QString());
    EXPECT_EQ(receipt.positions, 2);
    EXPECT_EQ(receipt.opened.timeSpec(), Qt::LocalTime);
    EXPECT_LE(receipt.opened, receipt.ended);
    EXPECT_EQ(must(kept->journal(1)).faults.size(), 2); // which are no notes of a register
}

TEST_F(ArchiveTest, WhatIsNotThere_IsNothing)
{
    leaveUnfinished(1);
    const auto kept = archive();
    EXPECT_FALSE(must(kept->receipt(2, "PackagingControl")));
    EXPECT_TRUE(must(kept->journal(2)).faults.isEmpty());
    EXPECT_TRUE(must(kept->journal(2)).entries.isEmpty());
    EXPECT_FALSE(receiptOf(*kept, 1).ended.isValid());
}

TEST_F(ArchiveTest, States_AreChosen)
{
    const auto storage = opened();
    for (const auto state :
         {ReceiptState::Closed, ReceiptState::Cancelled, ReceiptState::Closed, ReceiptState::Open})
        sell(*storage, 1, state);
    const auto kept = archive();
    EXPECT_THAT(listed(*kept), ElementsAre(1, 2, 3, 4));
    EXPECT_THAT(listed(*kept, {{}, {}, {ReceiptState::Closed}}), ElementsAre(1, 3));
    EXPECT_THAT(listed(*kept, {{}, {}, {ReceiptState::Cancelled, ReceiptState::Open}}),
                ElementsAre(2, 4));
    EXPECT_THAT(listed(*kept, {{}, {}, {ReceiptState::Subtotal}}), ElementsAre());
}

TEST_F(ArchiveTest, List_EndsWithTheFaultOfWhoTakes)
{
    leaveUnfinished(1);
    leaveUnfinished(1);
    const auto kept = archive();
    int count = 0;
    const Fault enough{"the list", "long enough"};
    for (int i = 0; i < 2; ++i) {
        const Result<> ended = kept->list({}, [&](const KeptReceipt &) {
            ++count;
            return Result<>(enough);
        });
        EXPECT_EQ(faultText(ended), enough.text());
    }
    EXPECT_EQ(count, 2);
    EXPECT_EQ(listed(*kept).size(), 2);
}

TEST_F(ArchiveTest, BesideATill_IsAsOfItsFirstLookAndStopsNothing)
{
    const auto storage = opened();
    sell(*storage, 1, ReceiptState::Closed);
    const auto before = archive();
    QList<qint64> seen;
    EXPECT_TRUE(before->list({}, [&](const KeptReceipt &receipt) {
        seen.append(receipt.record.id);
        sell(*storage, 2, ReceiptState::Closed);
        sell(*storage, 3, ReceiptState::Open);
        return Result<>();
    }));
    EXPECT_THAT(seen, ElementsAre(1));
    EXPECT_THAT(listed(*before), ElementsAre(1));
    EXPECT_FALSE(must(before->receipt(2, "PackagingControl")));
    EXPECT_THAT(listed(*archive()), ElementsAre(1, 2, 3));
    EXPECT_EQ(unfinished(*storage)->lines.size(), 3);
}

TEST_F(ArchiveTest, TillThatEndsMeanwhile_LeavesALogAndLosesNothing)
{
    sell(*opened(), 1, ReceiptState::Closed);
    auto before = archive();
    EXPECT_EQ(listed(*before).size(), 1);
    sell(*opened(), 2, ReceiptState::Closed);
    EXPECT_GT(QFileInfo(path("till.db-wal")).size(), 0);
    EXPECT_EQ(listed(*before).size(), 1);
    before.reset();
    EXPECT_EQ(listed(*archive()).size(), 2);
    opened();
    EXPECT_EQ(listed(*archive()).size(), 2);
    EXPECT_EQ(QDir(directory.path()).entryList(QDir::Files), QStringList{"till.db"});
}

TEST_F(ArchiveTest, OfAClosedDatabase_LeavesNothingBesideIt)
{
    leaveUnfinished(1);
    const QByteArray file = contents(path());
    EXPECT_EQ(listed(*archive()).size(), 1);
    EXPECT_EQ(contents(path()), file);
    EXPECT_EQ(QDir(directory.path()).entryList(QDir::Files), QStringList{"till.db"});
}

TEST_F(ArchiveTest, Damage_IsTheFaultOfItsReceiptAlone)
{
    for (int count = 1; count <= 3; ++count)
        leaveUnfinished(count);
    query("UPDATE positions SET price = -100 WHERE receipt = 1");
    query("UPDATE receipts SET orderNumber = 'x' WHERE id = 2");
    const auto kept = archive();
    EXPECT_EQ(faultText(receiptOf(*kept, 1).recordHolds), "position 1 is not as it was stored");
    EXPECT_EQ(faultText(receiptOf(*kept, 2).recordHolds), "its header is not as it was stored");
    EXPECT_TRUE(receiptOf(*kept, 3).holds());
    QStringList faults;
    EXPECT_TRUE(kept->list({}, [&](const KeptReceipt &receipt) {
        faults.append(faultText(receipt.holds()));
        return Result<>();
    }));
    EXPECT_EQ(faults, QStringList({"", "its header is not as it was stored", ""}));
}

TEST_F(ArchiveTest, WhatWasSetApart_HasItsReason)
{
    leaveUnfinished(1);
    EXPECT_EQ(faultText(opened()->setApart(1)), QString());
    const KeptReceipt receipt = receiptOf(*archive(), 1);
    EXPECT_EQ(receipt.setApart, "unfinished");
    EXPECT_EQ(receipt.record.lines.size(), 1);
}

TEST_F(ArchiveTest, DataThatCannotBeHad_AreAFaultAndLeaveTheLines)
{
    leaveUnfinished(1);
    ReceiptRecord record = StorageTest::receiptOf(1);
    record.pluginData["PackagingControl"]["taraInfo"] = QVariantList{1};
    save(*opened(), record);
    query("UPDATE pluginData SET value = x'00' WHERE place = 1");
    const KeptReceipt receipt = receiptOf(*archive(), 2);
    EXPECT_EQ(faultText(receipt.holds()),
              "the data of plugin \"PackagingControl\" under \"taraInfo\" are damaged");
    EXPECT_TRUE(receipt.recordHolds);
    EXPECT_EQ(receipt.record.lines, record.lines);
    EXPECT_TRUE(receipt.record.pluginData.isEmpty());
}

TEST_F(ArchiveTest, WhatIsNoDatabaseOfToday_IsRefused)
{
    EXPECT_THAT(faultText(Archive::open(path())).toStdString(), HasSubstr("no such file"));
    overwrite(path("text"), "Dear shop,");
    EXPECT_NE(faultText(Archive::open(path("text"))), QString());
    EXPECT_THAT(faultText(Archive::open(QStringLiteral(SCHEMA1_DATABASE))).toStdString(),
                HasSubstr("its format is not today's yet: open the register once"));
}

TEST_F(ArchiveTest, Days_AreFoundByAnIndexInItsOrder)
{
    constexpr qint64 count = 3 * receiptsADay;
    ASSERT_EQ(faultText(makeManyReceipts(path(), count)), QString());
    const QDate last = dayOfReceipt(count);
    const auto kept = archive();
    EXPECT_EQ(listed(*kept, {last, last, {}}).size(), receiptsADay);
    EXPECT_EQ(listed(*kept, {last.addDays(-1), {}, {}}).size(), 2 * receiptsADay);
    EXPECT_EQ(listed(*kept, {{}, last.addDays(-1), {}}).last(), 2 * receiptsADay);
    EXPECT_TRUE(listed(*kept, {last.addDays(1), {}, {}}).isEmpty());
    const QString bothEnds = "SEARCH receipts USING INDEX receiptsByTime (opened>? AND opened<?)\n";
    EXPECT_EQ(planOf({last, last, {}}), bothEnds);
    EXPECT_EQ(planOf({last, last, {ReceiptState::Closed}}), bothEnds);
    EXPECT_EQ(planOf({last, {}, {}}), "SEARCH receipts USING INDEX receiptsByTime (opened>?)\n");
    EXPECT_EQ(planOf({}), "SCAN receipts USING INDEX receiptsByTime\n"); // nothing is sorted
    for (const qint64 id : {qint64(1), count / 2, count})
        EXPECT_TRUE(receiptOf(*kept, id).holds());
}

// Of two, SQLite may search from the one that is further away, and the plan does not show it.
TEST_F(ArchiveTest, Days_HaveOneBoundAtEachEnd)
{
    const QDate day(2026, 12, 31);
    const QString begin = QString::number(day.startOfDay().toMSecsSinceEpoch());
    const QString end = QString::number(day.addDays(1).startOfDay().toMSecsSinceEpoch());
    EXPECT_EQ((Selection{day, day, {}}.conditions()),
              " WHERE opened >= " + begin + " AND opened < " + end);
    EXPECT_EQ((Selection{day, {}, {}}.conditions()), " WHERE opened >= " + begin);
    EXPECT_EQ((Selection{{}, day, {}}.conditions()), " WHERE opened >= 1 AND opened < " + end);
    EXPECT_EQ((Selection{QDate(1900, 1, 1), {}, {}}.conditions()), " WHERE opened >= 1");
    EXPECT_EQ(Selection().conditions(), QString());
}

TEST_F(ArchiveTest, ReceiptsOfUnknownTime_AreOfNoDay)
{
    ASSERT_TRUE(QFile::copy(QStringLiteral(SCHEMA1_DATABASE), path()));
    QFile::setPermissions(path(), QFile::ReadOwner | QFile::WriteOwner);
    opened(); // which brings it to today's format
    const auto kept = archive();
    EXPECT_FALSE(listed(*kept).isEmpty());
    EXPECT_TRUE(listed(*kept, {{}, QDate(2100, 1, 1), {}}).isEmpty());
    EXPECT_FALSE(receiptOf(*kept, 1).opened.isValid());
}

} // namespace

} // namespace till
