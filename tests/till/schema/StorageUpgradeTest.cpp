#include "tests/till/storage/StorageFixture.h"
#include "tests/till/support/FailingDisk.h"
#include "till/archive/Upkeep.h"
#include "till/receipt/RecordFault.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <gmock/gmock.h>

// A database of the first format, as the till that kept it wrote it: a sale that was paid, a return
// that was cancelled, a sale at subtotal.

namespace till {

namespace {

using testing::HasSubstr;

class StorageUpgrade : public StorageTest
{
protected:
    StorageUpgrade()
    {
        EXPECT_TRUE(QFile::copy(QStringLiteral(SCHEMA1_DATABASE), path()));
        QFile::setPermissions(path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);
    }

    QString copy() const { return path() + ".schema1"; }
    QStringList files() const { return QDir(directory.path()).entryList(QDir::Files); }

    static std::optional<ReceiptRecord> receipt(const Storage &storage, qint64 id)
    {
        return must(storage.receipt(id));
    }
};

TEST_F(StorageUpgrade, EveryReceipt_IsThere)
{
    const auto storage = opened();
    const auto paid = receipt(*storage, 1);
    ASSERT_TRUE(paid);
    EXPECT_EQ(paid->state, ReceiptState::Closed);
    EXPECT_EQ(paid->lines.size(), 2);
    EXPECT_EQ(paid->lines[1].article.code, "BEER");
    EXPECT_EQ(paid->pluginData["PackagingControl"]["taraInfo"].toList().size(), 1);
    const auto cancelled = receipt(*storage, 2);
    ASSERT_TRUE(cancelled);
    EXPECT_EQ(cancelled->type, Document::Return);
    EXPECT_EQ(cancelled->state, ReceiptState::Cancelled);
    EXPECT_EQ(cancelled->softChecks, QStringList{"17"});
}

TEST_F(StorageUpgrade, UnfinishedReceipt_IsTakenUp)
{
    const auto storage = opened();
    const auto record = unfinished(*storage);
    ASSERT_TRUE(record);
    EXPECT_EQ(record->id, 3);
    EXPECT_EQ(record->order, "8");
    EXPECT_EQ(record->nextPosnum, 5);
    ASSERT_EQ(record->lines.size(), 4);
    EXPECT_TRUE(record->lines[0].stornoed);
    EXPECT_EQ(record->lines[1].count, 1.5);
    EXPECT_EQ(record->pluginData["PackagingControl"].keys(),
              (QStringList{"packagingInfo", "taraInfo"}));
    EXPECT_EQ(journalOf(path(), 3).size(), 22);
}

TEST_F(StorageUpgrade, Headers_SayWhatAListNeeds)
{
    opened();
    EXPECT_EQ(query("SELECT positions || ' ' || total || ' ' || opened || ' ' || ended FROM "
                    "receipts ORDER BY id"),
              (QStringList{"2 34000 0 0", "1 25980 0 0", "3 38600 0 0"}));
}

TEST_F(StorageUpgrade, CountOfManyDecimals_IsInTheTotalAsItIsRoundedToday)
{
    query("UPDATE positions SET price = 1, count = 0.49986 WHERE receipt = 3 AND place = 1");
    const auto storage = opened();
    EXPECT_EQ(unfinished(*storage)->lines[1].sum(), 0); // it was 1 when it was rounded twice
    EXPECT_EQ(query("SELECT total FROM receipts WHERE id = 3"), QStringList{"17600"});
}

TEST_F(StorageUpgrade, NextReceipt_GetsTheNextNumber)
{
    ReceiptRecord next = receiptOf(1);
    save(*opened(), next);
    EXPECT_EQ(next.id, 4);
}

TEST_F(StorageUpgrade, DoneOnce_LeavesTheCopyAndNothingElse)
{
    const QByteArray before = contents(path());
    EXPECT_EQ(opened()->copyBefore(), copy());
    EXPECT_EQ(opened()->copyBefore(), QString());
    EXPECT_EQ(files(), (QStringList{"till.db", "till.db.schema1"}));
    EXPECT_EQ(query(copy(), "PRAGMA user_version"), QStringList{"1"});
    EXPECT_EQ(query(copy(), "SELECT count(*) FROM journal"), QStringList{"43"});
    const auto isOwners = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    EXPECT_EQ(QFile::permissions(path()), isOwners);
    EXPECT_EQ(QFile::permissions(copy()), isOwners);
}

TEST_F(StorageUpgrade, CopyOfBefore_IsNotOverwritten)
{
    overwrite(copy(), "mine");
    EXPECT_EQ(opened()->copyBefore(), copy() + "-2");
    EXPECT_EQ(contents(copy()), "mine");
}

TEST_F(StorageUpgrade, CommandsOnlyInTheLog_AreThereToo)
{
    query("PRAGMA journal_mode = WAL");
    FailingDisk disk(directory.path());
    disk.leaveNoRoomIn("till.db");
    query("UPDATE receipts SET orderNumber = '9' WHERE id = 3");
    disk.repair();
    EXPECT_EQ(unfinished(*opened())->order, "9");
    EXPECT_EQ(query(copy(), "SELECT orderNumber FROM receipts WHERE id = 3"), QStringList{"9"});
}

TEST_F(StorageUpgrade, DamagedPluginData_StayDamaged)
{
    query("UPDATE pluginData SET value = x'00' WHERE receipt = 3 AND key = 'taraInfo'");
    const auto storage = opened();
    EXPECT_THAT(faultText(storage->unfinishedReceipt()).toStdString(),
                HasSubstr("receipt 3: the data of plugin \"PackagingControl\" "
                          "under \"taraInfo\" are damaged"));
    EXPECT_EQ(storage->remains(3).lines.size(), 4);
}

//! What no till can have stored, which the first format took.
class OutOfRange : public StorageUpgrade,
                   public testing::WithParamInterface<std::pair<const char *, const char *>>
{
};

TEST_P(OutOfRange, IsRefusedAndSetApart)
{
    const auto [change, fault] = GetParam();
    query(QStringLiteral("UPDATE %1 WHERE receipt = 3 AND place = 1").arg(change));
    const auto storage = opened();
    EXPECT_EQ(faultText(storage->unfinishedReceipt()),
              path() + ": receipt 3: " + fault
                  + "; \"till set-apart 3\" sets this receipt apart, so that another can be "
                    "opened");
    EXPECT_EQ(faultText(storage->setApart(3)), QString());
    EXPECT_EQ(unfinished(*storage), std::nullopt);
}

// What no till can have stored cannot be drawn either: two lines of one number, a sum of 1e300
// pieces.
TEST_P(OutOfRange, IsNotAmongTheLinesThatAreShown)
{
    query(QStringLiteral("UPDATE %1 WHERE receipt = 3 AND place = 1").arg(GetParam().first));
    const auto storage = opened();
    ReceiptRecord shown;
    shown.lines = storage->remains(3).lines;
    shown.nextPosnum = 6;
    EXPECT_FALSE(shown.lines.isEmpty());
    EXPECT_EQ(faultText(check(shown)), QString());
}

INSTANTIATE_TEST_SUITE_P(
    Table, OutOfRange,
    testing::Values(
        std::pair("positions SET price = -100", "position 2 has a price out of range"),
        std::pair("positions SET price = 99999999999999 + 1",
                  "position 2 has a price out of range"),
        std::pair("positions SET count = 1e300", "position 2 has a quantity out of range"),
        std::pair("positions SET count = 9e999", "position 2 has a quantity out of range"),
        std::pair("positions SET count = 1000000", "position 2 has a quantity out of range"),
        std::pair("positions SET price = 99999999999999, count = 999999",
                  "position 2 has a sum out of range"),
        std::pair("positions SET price = 99999999999999, count = -1.001",
                  "position 2 has a sum out of range"),
        std::pair("positions SET base = -9e999", "position 2 has a quantity out of range"),
        std::pair("positions SET pack = 0", "position 2 has a pack out of range"),
        std::pair("positions SET taraCapacity = -1", "position 2 has a tara capacity out of range"),
        std::pair("positions SET posnum = 0", "0 is no number of a position"),
        std::pair("positions SET posnum = -1", "-1 is no number of a position"),
        std::pair("positions SET posnum = 5", "position 5 has a number that was not given yet"),
        std::pair("positions SET posnum = 3", "position 3 is there twice")));

TEST_F(StorageUpgrade, TotalOutOfRange_IsRefused)
{
    query("UPDATE positions SET price = 99999999999999, count = 1, stornoed = 0 WHERE receipt = 3");
    EXPECT_THAT(faultText(opened()->unfinishedReceipt()).toStdString(),
                HasSubstr("receipt 3: its total is out of range; "));
}

TEST_F(StorageUpgrade, WithoutRoom_LeavesTheFileAndNoCopy)
{
    const QByteArray before = contents(path());
    {
        FailingDisk disk(directory.path());
        for (const int room : {0, 4000, 14000, 40000}) {
            disk.leaveRoomFor(room);
            EXPECT_THAT(refusal().toStdString(), HasSubstr("full")) << room;
            disk.repair();
            EXPECT_EQ(files(), QStringList{"till.db"}) << room;
        }
    }
    EXPECT_EQ(query("PRAGMA user_version"), QStringList{"1"});
    EXPECT_EQ(unfinished(*opened())->id, 3);
}

TEST_F(StorageUpgrade, MissingTable_IsRefusedAndNothingChanged)
{
    query("DROP TABLE journal");
    EXPECT_NE(refusal(), QString());
    EXPECT_EQ(files(), QStringList{"till.db"});
    EXPECT_EQ(query("SELECT count(*) FROM positions"), QStringList{"7"});
}

TEST_F(StorageUpgrade, Check_AsksForTheRegisterFirst)
{
    EXPECT_EQ(faultText(checkDatabase(path())),
              path() + ": its format is not today's yet: open the register once");
}

TEST_F(StorageUpgrade, BackUpBefore_IsACopyOfTheFormer)
{
    EXPECT_EQ(faultText(backUp(path(), path("copy.db"))), QString());
    EXPECT_EQ(query(path("copy.db"), "PRAGMA user_version"), QStringList{"1"});
    EXPECT_EQ(unfinished(*opened(path("copy.db")))->id, 3);
}

} // namespace

} // namespace till
