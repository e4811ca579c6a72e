#include "tests/till/storage/StorageFixture.h"

#include <limits>

namespace till {

namespace {

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

} // namespace

} // namespace till
