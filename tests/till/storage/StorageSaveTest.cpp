#include "tests/till/storage/StorageFixture.h"
#include "till/goods/Limits.h"

#include <limits>

namespace till {

namespace {

class StorageSave : public StorageTest
{
};

TEST_F(StorageSave, FirstSave_GivesANumber)
{
    ReceiptRecord record;
    save(*opened(), record);
    EXPECT_GT(record.id, 0);
}

TEST_F(StorageSave, NextReceipt_GetsAnotherNumber)
{
    const auto storage = opened();
    ReceiptRecord first;
    ReceiptRecord second;
    save(*storage, first);
    save(*storage, second);
    EXPECT_GT(second.id, first.id);
}

TEST_F(StorageSave, SecondSave_KeepsTheNumber)
{
    const auto storage = opened();
    ReceiptRecord record;
    save(*storage, record);
    const qint64 id = record.id;
    save(*storage, record);
    EXPECT_EQ(record.id, id);
}

TEST_F(StorageSave, UnknownNumber_IsRefused)
{
    const auto storage = opened();
    ReceiptRecord record;
    record.id = 7;
    EXPECT_EQ(trySave(*storage, record, {{0, "open", "{}"}}), path() + ": there is no receipt 7");
    EXPECT_EQ(journalOf(path(), 7), QList<JournalEntry>());
}

TEST_F(StorageSave, QuantityThatIsNoNumber_IsRefusedAndNothingStored)
{
    const auto storage = opened();
    ReceiptRecord record = receiptOf(2);
    save(*storage, record);
    const ReceiptRecord before = record;
    record.order = "5";
    record.lines[0].count = 9.0;
    record.lines[1].count = std::numeric_limits<double>::quiet_NaN();

    EXPECT_EQ(trySave(*storage, record, {{0, "change", "{}"}}),
              path() + ": position 2 has a quantity out of range, which cannot be stored");
    EXPECT_EQ(unfinished(*storage), before);
    EXPECT_TRUE(journalOf(path(), record.id).isEmpty());
}

TEST_F(StorageSave, SumThatIsOutOfRange_IsRefused)
{
    const auto storage = opened();
    ReceiptRecord record = receiptOf(2);
    record.lines[0].article.price = greatestSum - record.lines[1].sum();
    save(*storage, record);
    record.lines[0].count = 1e5;
    EXPECT_EQ(trySave(*storage, record),
              path() + ": position 1 has a sum out of range, which cannot be stored");
    record.lines[0].count = 1.0;
    record.lines[0].article.price += 1;
    EXPECT_EQ(trySave(*storage, record),
              path() + ": its total is out of range, which cannot be stored");
}

TEST_F(StorageSave, RefusedFirstSave_LeavesTheRecordWithoutANumber)
{
    const auto storage = opened();
    ReceiptRecord record = receiptOf(1);
    record.lines[0].base = std::numeric_limits<double>::quiet_NaN();
    EXPECT_NE(trySave(*storage, record, {}), QString());
    EXPECT_EQ(record.id, 0);
}

TEST_F(StorageSave, AfterARefusedSave_TheNextStoresWhatDiffersFromTheStored)
{
    ReceiptRecord record = receiptOf(2);
    {
        const auto storage = opened();
        save(*storage, record);
        record.lines[0].count = 9.0;
        record.lines[1].count = std::numeric_limits<double>::quiet_NaN();
        EXPECT_NE(trySave(*storage, record, {}), QString());
        record.lines[1].count = 3.0;
        save(*storage, record);
    }
    EXPECT_EQ(unfinished(*opened()), record);
}

// They have most in common, which must not be taken for stored in both.
TEST_F(StorageSave, TwoAlikeReceiptsInTurn_BothAreKept)
{
    ReceiptRecord first = withEverything();
    ReceiptRecord second = first;
    {
        const auto storage = opened();
        save(*storage, first);
        save(*storage, second);
        first.lines.removeLast();
        save(*storage, first);
        second.lines[0].count = 8.0;
        save(*storage, second);
    }
    const auto storage = opened();
    EXPECT_EQ(must(storage->receipt(first.id)), first);
    EXPECT_EQ(must(storage->receipt(second.id)), second);
}

TEST_F(StorageSave, Journal_ComesBackInOrder)
{
    const QList<JournalEntry> opening{{0, "open", R"({"type":1})"}, {0, "add", "{}"}};
    const QList<JournalEntry> change{{0, "change", "{}"}, {2, "a", ""}, {1, "event", "\xff\x00z"}};
    ReceiptRecord record;
    {
        const auto storage = opened();
        save(*storage, record, opening);
        save(*storage, record, change);
    }
    EXPECT_EQ(journalOf(path(), record.id), opening + change);
}

TEST_F(StorageSave, Journals_AreKeptApart)
{
    const auto storage = opened();
    ReceiptRecord first;
    ReceiptRecord second;
    save(*storage, first, {{0, "first", "{}"}});
    save(*storage, second, {{0, "second", "{}"}});
    save(*storage, first, {{0, "third", "{}"}});
    EXPECT_EQ(journalOf(path(), second.id), (QList<JournalEntry>{{0, "second", "{}"}}));
}

TEST_F(StorageSave, UnknownReceipt_IsNothingAndNoFault)
{
    EXPECT_EQ(must(opened()->receipt(3)), std::nullopt);
}

TEST_F(StorageSave, NewDatabase_HasNoUnfinishedReceipt)
{
    EXPECT_EQ(unfinished(*opened()), std::nullopt);
}

class FinishedReceipts : public StorageTest, public testing::WithParamInterface<ReceiptState>
{
};

TEST_P(FinishedReceipts, Reopened_AreNotUnfinished)
{
    ReceiptRecord record = leaveUnfinished(1);
    record.state = GetParam();
    save(*opened(), record);
    EXPECT_EQ(unfinished(*opened()), std::nullopt);
}

TEST_P(FinishedReceipts, Reopened_AreKept)
{
    ReceiptRecord record = leaveUnfinished(1);
    record.state = GetParam();
    save(*opened(), record);
    EXPECT_EQ(must(opened()->receipt(record.id)), record);
}

INSTANTIATE_TEST_SUITE_P(States, FinishedReceipts,
                         testing::Values(ReceiptState::Closed, ReceiptState::Cancelled));

TEST_F(StorageSave, SeveralUnfinished_TheNewestComesBack)
{
    leaveUnfinished(1);
    const ReceiptRecord second = leaveUnfinished(2);
    ReceiptRecord third = leaveUnfinished(3);
    third.state = ReceiptState::Closed;
    save(*opened(), third);
    EXPECT_EQ(unfinished(*opened()), second);
}

} // namespace

} // namespace till
