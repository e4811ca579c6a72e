#include "tests/memory/MemoryTest.h"

#include <gmock/gmock.h>

#include <QtCore/QSet>

namespace {

//! Reads every record through, which a damaged one does not survive. What is wrong, or nothing.
template <typename Record>
QString faultOf(const QList<QSharedPointer<Record>> &records)
{
    QSet<int> numbers;
    for (const auto &record : records) {
        if (!record)
            return "a null record";
        if (Record(*record) != *record)
            return "a record that is not itself";
        numbers.insert(record->posnum);
    }
    return numbers.size() == records.size() ? QString() : "two records of one position";
}

template <typename Record>
QList<Record> valuesOf(const QList<QSharedPointer<Record>> &records)
{
    QList<Record> values;
    for (const auto &record : records)
        values.append(*record);
    return values;
}

//! What is stored under \a key, each element with the keys of a whole record.
void expectWholeRecords(const Document &receipt, const QString &key, const QStringList &fields)
{
    const QVariantList stored = receipt.pluginData().value("PackagingControl").value(key).toList();
    for (const QVariant &record : stored)
        EXPECT_EQ(fields, record.toMap().keys());
}

//! The document that is handed over anew gives the records that it holds, and all goes on.
void expectFreshStart(Shop &shop)
{
    shop.host.late = false;
    const auto receipt = shop.host.receipt();
    expectWholeRecords(*receipt, "taraInfo", {"capacity", "freeCapacity", "id", "posnum"});
    expectWholeRecords(*receipt, "packagingInfo", {"posnum", "usedTara"});

    shop.plugin.setDocument(receipt);
    TestPlugin other;
    other.setDocument(receipt);
    EXPECT_EQ(valuesOf(other.taraList), valuesOf(shop.plugin.taraList));
    EXPECT_EQ(valuesOf(other.packagingList), valuesOf(shop.plugin.packagingList));
    EXPECT_TRUE(receipt->isSwitchedOn());

    const qsizetype known = shop.plugin.taraList.size();
    shop.host.addTara(90, 7.0);
    ASSERT_EQ(known + 1, shop.plugin.taraList.size());
    EXPECT_EQ(7.0, shop.plugin.taraList.constLast()->freeCapacity);
}

} // namespace

bool MemoryRunsOut::isReached(int k)
{
    SCOPED_TRACE("allocation " + std::to_string(k));
    const auto &[scene, duration] = GetParam();
    Shop shop;
    const std::function<void()> call = scene.prepare(shop);
    const shortage::Result result = shortage::run(k, duration, call);
    EXPECT_EQ(QString(), faultOf(shop.plugin.taraList));
    EXPECT_EQ(QString(), faultOf(shop.plugin.packagingList));
    expectFreshStart(shop);
    return result.isReached;
}

TEST_P(MemoryRunsOut, RecordsStayWhole_AndAFreshDocumentWorks)
{
    constexpr int endless = 10000; // no call makes that many
    int k = 1;
    while (isReached(k) && !HasFailure() && k < endless)
        ++k;
    EXPECT_LT(1, k) << "the call allocates nothing: nothing was tried";
    EXPECT_LT(k, endless);
    RecordProperty("allocations", k - 1);
}
