#include "tests/memory/MemoryTest.h"

#include <gmock/gmock.h>

#include <QtCore/QSet>

namespace {

//! What is wrong with the list itself, or nothing.
template <typename Record>
QString faultOf(const QList<QSharedPointer<Record>> &records)
{
    QSet<int> numbers;
    for (const auto &record : records) {
        if (!record)
            return "a null record";
        numbers.insert(record->posnum);
    }
    return numbers.size() == records.size() ? QString() : "two records of one position";
}

//! What is stored under \a key, each element with the keys of a whole record.
void expectWholeRecords(const Document &receipt, const QString &key, const QStringList &fields)
{
    const QVariantList stored = receipt.pluginData().value("PackagingControl").value(key).toList();
    for (const QVariant &record : stored)
        EXPECT_EQ(fields, record.toMap().keys());
}

/*!
 * The receipt keeps both lists as they were at one of the \a moments. The plugin makes both before
 * it writes either, so that it never stops between the two writes. Only a receipt that has itself
 * no memory to take the second can be left with lists of two moments; whichever is written first,
 * the plugin cannot spare it that.
 */
void expectRecordsOfOneMoment(const WatchedReceipt &receipt, const QList<Records> &moments)
{
    using testing::Contains;
    using testing::Field;
    EXPECT_EQ(receipt.taras.finished, receipt.goods.begun);
    const Records kept = receipt.records();
    if (receipt.goods.begun == receipt.goods.finished) {
        EXPECT_THAT(moments, Contains(kept));
    } else {
        EXPECT_THAT(moments, Contains(Field(&Records::taras, kept.taras)));
        EXPECT_THAT(moments, Contains(Field(&Records::goods, kept.goods)));
    }
}

//! The document that is handed over anew gives the records that it holds, and all goes on.
void expectFreshStart(Shop &shop)
{
    shop.host.late = false;
    const auto receipt = shop.host.receipt();
    expectWholeRecords(*receipt, "taraInfo", {"capacity", "freeCapacity", "id", "posnum"});
    expectWholeRecords(*receipt, "packagingInfo", {"posnum", "usedTara"});

    shop.plugin.setDocument(shop.receipt);
    EXPECT_EQ(shop.receipt->records(), heldRecords(shop.plugin));
    EXPECT_TRUE(receipt->isSwitchedOn());

    const qsizetype known = shop.plugin.taraList.size();
    shop.host.addTara(90, 7.0);
    ASSERT_EQ(known + 1, shop.plugin.taraList.size());
    EXPECT_EQ(7.0, shop.plugin.taraList.constLast()->freeCapacity);
}

} // namespace

MemoryRunsOut::Undisturbed MemoryRunsOut::undisturbed()
{
    Shop shop;
    const std::function<void()> call = std::get<0>(GetParam()).prepare(shop);
    const bool wasBalanced = isBalanced(heldRecords(shop.plugin));
    shop.receipt->remembers = true;
    call();
    return {shop.receipt->saves, wasBalanced && isBalanced(heldRecords(shop.plugin))};
}

bool MemoryRunsOut::isReached(int k, const Undisturbed &undisturbed)
{
    SCOPED_TRACE("allocation " + std::to_string(k));
    const auto &[scene, duration] = GetParam();
    Shop shop;
    const std::function<void()> call = scene.prepare(shop);
    QList<Records> moments = undisturbed.saves;
    moments << shop.receipt->records();
    const shortage::Result result = shortage::run(k, duration, call);
    EXPECT_EQ(QString(), faultOf(shop.plugin.taraList));
    EXPECT_EQ(QString(), faultOf(shop.plugin.packagingList));
    // Not where the rules leave capacity taken by nobody, or the document came with such.
    if (undisturbed.isBalanced) {
        EXPECT_PRED1(isBalanced, heldRecords(shop.plugin));
    }
    if (scene.savesOnEveryExit && result.isThrown)
        moments << heldRecords(shop.plugin);
    expectRecordsOfOneMoment(*shop.receipt, moments);
    if (scene.expectAfter)
        scene.expectAfter(shop, result);
    expectFreshStart(shop);
    return result.isReached;
}

TEST_P(MemoryRunsOut, RecordsStayWhole_AndAFreshDocumentWorks)
{
    constexpr int endless = 10000; // no call makes that many
    const Undisturbed reference = undisturbed();
    int k = 1;
    while (isReached(k, reference) && !HasFailure() && k < endless)
        ++k;
    EXPECT_LT(1, k) << "the call allocates nothing: nothing was tried";
    EXPECT_LT(k, endless);
    RecordProperty("allocations", k - 1);
}
