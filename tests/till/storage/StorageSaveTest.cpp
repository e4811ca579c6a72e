#include "tests/till/storage/StorageFixture.h"
#include "till/receipt/Limits.h"

#include <limits>

namespace till {

namespace {

class StorageSave : public StorageTest
{
};

//! Receipts that between them use every field in every way.
struct Case
{
    std::string name;
    ReceiptRecord record;
};

void PrintTo(const Case &row, std::ostream *out)
{
    *out << row.name;
}

class StoredReceipts : public StorageTest, public testing::WithParamInterface<Case>
{
};

LineRecord oddLine()
{
    const ArticleData article{QString::fromUtf8("Ж-1'\"%1"),
                              QString::fromUtf8("Пиво «Тёмное» \U0001F37A\n; DROP TABLE x"),
                              greatestSum,
                              -7,
                              0.1 + 0.2,
                              0.001,
                              QString::fromUtf8("л")};
    return {std::numeric_limits<int>::max() - 1, article, 1.0 / 3.0, -1e9, "{group}", true};
}

ReceiptRecord withEverything()
{
    ReceiptRecord record{0,
                         Document::Return,
                         ReceiptState::Subtotal,
                         "order 5",
                         {"10", "", "9", "9"},
                         std::numeric_limits<int>::max(),
                         {lineOf(3), oddLine(), lineOf(1, -2.5)},
                         {}};
    record.pluginData["PackagingControl"]["taraInfo"] = QVariantList{QVariantMap{{"posnum", 1}}};
    record.pluginData["PackagingControl"][""] = 5;
    record.pluginData["another"]["taraInfo"] = "text";
    return record;
}

TEST_P(StoredReceipts, SaveAndReopen_GivesTheSameRecord)
{
    ReceiptRecord record = GetParam().record;
    save(*opened(), record);

    EXPECT_EQ(unfinished(*opened()), record);
}

TEST_P(StoredReceipts, ReplacingAnother_GivesTheSameRecord)
{
    ReceiptRecord record = receiptOf(2);
    record.order = "old";
    record.softChecks = QStringList{"old", "old", "old", "old", "old"};
    record.pluginData["PackagingControl"]["taraInfo"] = "old";
    record.pluginData["PackagingControl"]["old"] = "old";
    record.pluginData["old"]["taraInfo"] = "old";
    {
        const auto storage = opened();
        save(*storage, record);
        const qint64 id = record.id;
        record = GetParam().record;
        record.id = id;
        save(*storage, record);
    }

    EXPECT_EQ(unfinished(*opened()), record);
}

TEST_P(StoredReceipts, ReplacingAfterReopen_GivesTheSameRecord)
{
    ReceiptRecord record = withEverything();
    save(*opened(), record);
    const qint64 id = record.id;
    record = GetParam().record;
    record.id = id;
    save(*opened(), record);

    EXPECT_EQ(unfinished(*opened()), record);
}

ReceiptRecord with(void (*change)(ReceiptRecord &))
{
    ReceiptRecord record;
    change(record);
    return record;
}

INSTANTIATE_TEST_SUITE_P(
    Table, StoredReceipts,
    testing::Values(
        Case{"Empty", {}}, Case{"Everything", withEverything()},
        Case{"Type", with([](ReceiptRecord &r) { r.type = -3; })},
        Case{"AtSubtotal", with([](ReceiptRecord &r) { r.state = ReceiptState::Subtotal; })},
        Case{"Order", with([](ReceiptRecord &r) { r.order = QString::fromUtf8("№ 7"); })},
        Case{"SoftChecks", with([](ReceiptRecord &r) {
                 r.softChecks = QStringList{"b", "a"};
             })},
        Case{"NumbersUsedUp", with([](ReceiptRecord &r) { r.nextPosnum = 1000; })},
        Case{"ManyLines", with([](ReceiptRecord &r) {
                 r.nextPosnum = 301;
                 for (int posnum = 1; posnum <= 300; ++posnum)
                     r.lines.append(lineOf(posnum, posnum / 8.0));
             })},
        Case{"NullTexts", with([](ReceiptRecord &r) {
                 r.softChecks.append(QString());
                 r.nextPosnum = 2;
                 r.lines.append({1, {{}, {}, 0, 0, 0.0, 1.0, {}}, 0.0, 0.0, {}, false});
                 r.pluginData[QString()][QString()] = 1;
             })},
        Case{"NulInText", with([](ReceiptRecord &r) { r.order = QString::fromUtf8("a\0b", 3); })}),
    [](const auto &test) { return test.param.name; });

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
    EXPECT_EQ(storage->save(record, {{0, "open", "{}"}}), path() + ": there is no receipt 7");
    EXPECT_EQ(storage->journal(7), QList<JournalEntry>());
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

    EXPECT_EQ(storage->save(record, {{0, "change", "{}"}}),
              path() + ": position 2 has a quantity out of range, which cannot be stored");
    EXPECT_EQ(unfinished(*storage), before);
    EXPECT_TRUE(storage->journal(record.id).isEmpty());
}

TEST_F(StorageSave, RefusedFirstSave_LeavesTheRecordWithoutANumber)
{
    const auto storage = opened();
    ReceiptRecord record = receiptOf(1);
    record.lines[0].base = std::numeric_limits<double>::quiet_NaN();
    EXPECT_NE(storage->save(record, {}), QString());
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
        EXPECT_NE(storage->save(record, {}), QString());
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
    QString error;
    EXPECT_EQ(storage->receipt(first.id, &error), first);
    EXPECT_EQ(storage->receipt(second.id, &error), second);
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
    EXPECT_EQ(opened()->journal(record.id), opening + change);
}

TEST_F(StorageSave, Journals_AreKeptApart)
{
    const auto storage = opened();
    ReceiptRecord first;
    ReceiptRecord second;
    save(*storage, first, {{0, "first", "{}"}});
    save(*storage, second, {{0, "second", "{}"}});
    save(*storage, first, {{0, "third", "{}"}});
    EXPECT_EQ(storage->journal(second.id), (QList<JournalEntry>{{0, "second", "{}"}}));
}

TEST_F(StorageSave, JournalOfUnknownReceipt_IsEmpty)
{
    EXPECT_TRUE(opened()->journal(3).isEmpty());
}

TEST_F(StorageSave, UnknownReceipt_IsNothingWithoutAnError)
{
    QString error = "old";
    EXPECT_FALSE(opened()->receipt(3, &error));
    EXPECT_EQ(error, QString());
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
    QString error;
    EXPECT_EQ(opened()->receipt(record.id, &error), record);
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
