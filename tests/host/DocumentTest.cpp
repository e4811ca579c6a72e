#include "tests/host/Position.h"
#include "tests/support/Printers.h"

#include "host/Document.h"
#include "host/DocumentWatcher.h"

#include <gtest/gtest.h>

namespace {

TEST(Position, NewPosition_HasItsNumberAndNothingElse)
{
    const GoodsItemPtr item = position(7);

    EXPECT_EQ(item->getPosnum(), 7);
    EXPECT_EQ(item->getBquant(), 0.0);
    EXPECT_EQ(item->getCquant(), 0.0);
    EXPECT_EQ(item->getGroupId(), QString());
}

TEST(Position, BothQuantities_AreKeptApart)
{
    const GoodsItemPtr item = position(7);
    item->setBquant(4.5);
    item->setCquant(3);

    EXPECT_EQ(item->getBquant(), 4.5);
    EXPECT_EQ(item->getCquant(), 3.0);
}

TEST(Position, Group_IsKept)
{
    const GoodsItemPtr item = position(7);
    item->setGroupId("{a}");

    EXPECT_EQ(item->getGroupId(), "{a}");
}

TEST(Position, CatalogueRecord_IsTheOneGiven)
{
    const auto tmc = QSharedPointer<Tmc>::create(Tmc::Tara, 5);
    GoodsItem item(1, tmc);

    EXPECT_EQ(item.getTmc(), tmc.get());
}

TEST(Position, CatalogueRecord_OutlivesTheCatalogue)
{
    const GoodsItemPtr item = position(1, Tmc::PackagingGoods);

    EXPECT_EQ(item->getTmc()->getTaraMode(), 2);
}

class TaraCapacity : public testing::TestWithParam<QVariant>
{
};

TEST_P(TaraCapacity, Position_ShowsWhateverTheCatalogueHolds)
{
    const GoodsItemPtr item = position(1, Tmc::Tara, GetParam());

    EXPECT_EQ(item->getTmcTaraCapacity(), GetParam());
    EXPECT_EQ(item->getTmcTaraCapacity().isValid(), GetParam().isValid());
}

INSTANTIATE_TEST_SUITE_P(Each, TaraCapacity,
                         testing::Values(QVariant(), QVariant(0.5), QVariant("2,5"), QVariant(-1)));

TEST(Receipt, NewDocument_IsAnEmptySaleWithoutOrder)
{
    const Document document;

    EXPECT_EQ(document.getType(), 1);
    EXPECT_TRUE(document.getOrder().isNull());
    EXPECT_TRUE(document.getPositionList().isEmpty());
    EXPECT_TRUE(document.isSwitchedOn());
    EXPECT_TRUE(document.pluginData().isEmpty());
}

TEST(Receipt, OtherType_IsKept)
{
    EXPECT_EQ(Document(Document::Return).getType(), 2);
    EXPECT_EQ(Document(40).getType(), 40);
}

TEST(Receipt, Order_IsAttachedAndDetached)
{
    Document document;
    const auto order = QSharedPointer<Order>::create();

    document.setOrder(order);
    EXPECT_EQ(document.getOrder(), order);

    document.setOrder(nullptr);
    EXPECT_TRUE(document.getOrder().isNull());
}

TEST(Receipt, Positions_KeepTheirOrder)
{
    Document document;
    const GoodsItemPtrList positions{position(3), position(1), position(2)};
    for (const GoodsItemPtr &item : positions)
        document.addPosition(item);

    EXPECT_EQ(document.getPositionList(), positions);
}

TEST(Receipt, PositionByNumber_IsTheVeryOne)
{
    Document document;
    const GoodsItemPtr second = position(2);
    document.addPosition(position(1));
    document.addPosition(second);

    EXPECT_EQ(document.getPositionByPosnum(2), second);
}

TEST(Receipt, AbsentNumber_IsNull)
{
    Document document;
    document.addPosition(position(1));

    EXPECT_TRUE(document.getPositionByPosnum(2).isNull());
    EXPECT_TRUE(document.getPositionByPosnum(0).isNull());
}

TEST(Receipt, RemovedPosition_IsGoneFromListAndLookup)
{
    Document document;
    const GoodsItemPtr kept = position(1);
    document.addPosition(kept);
    document.addPosition(position(2));

    EXPECT_TRUE(document.removePosition(2));
    EXPECT_TRUE(document.getPositionByPosnum(2).isNull());
    EXPECT_EQ(document.getPositionList(), GoodsItemPtrList{kept});
}

TEST(Receipt, RemovalOfAnAbsentPosition_IsFalse)
{
    Document document;
    document.addPosition(position(1));

    EXPECT_FALSE(document.removePosition(2));
    EXPECT_EQ(document.getPositionList().size(), 1);
}

TEST(Receipt, Switch_FollowsWhatWasSaidLast)
{
    Document document;

    document.setDocumentSwitch(false);
    EXPECT_FALSE(document.isSwitchedOn());

    document.setDocumentSwitch(true);
    EXPECT_TRUE(document.isSwitchedOn());
}

TEST(ReceiptPluginData, NothingStored_IsTheDefault)
{
    EXPECT_EQ(Document().getPluginData("plugin", "key", "default"), "default");
    EXPECT_FALSE(Document().getPluginData("plugin", "key", QVariant()).isValid());
}

TEST(ReceiptPluginData, OtherKeyStored_IsTheDefault)
{
    Document document;
    document.setPluginData("plugin", "other", 1);

    EXPECT_EQ(document.getPluginData("plugin", "key", 5), 5);
}

TEST(ReceiptPluginData, Stored_IsReadBack)
{
    Document document;
    const QVariant value = QVariantList{1, "two", QVariantMap{{"three", 3.0}}};
    document.setPluginData("plugin", "key", value);

    EXPECT_EQ(document.getPluginData("plugin", "key", QVariant()), value);
}

TEST(ReceiptPluginData, StoredAgain_ReplacesTheFirst)
{
    Document document;
    document.setPluginData("plugin", "key", 1);
    document.setPluginData("plugin", "key", 2);

    EXPECT_EQ(document.getPluginData("plugin", "key", 0), 2);
}

TEST(ReceiptPluginData, SameKeyOfTwoPlugins_IsKeptApart)
{
    Document document;
    document.setPluginData("one", "key", 1);
    document.setPluginData("other", "key", 2);

    EXPECT_EQ(document.getPluginData("one", "key", 0), 1);
    EXPECT_EQ(document.getPluginData("other", "key", 0), 2);
}

TEST(ReceiptPluginData, WholeStore_IsByPluginThenKey)
{
    Document document;
    document.setPluginData("one", "a", 1);
    document.setPluginData("one", "b", 2);
    document.setPluginData("other", "a", 3);

    const Document::PluginData expected{{"one", {{"a", 1}, {"b", 2}}}, {"other", {{"a", 3}}}};
    EXPECT_EQ(document.pluginData(), expected);
}

struct Watcher : DocumentWatcher
{
    QSharedPointer<AbstractDocument> held() const { return document; }
};

TEST(Watcher, NewWatcher_HoldsNothing)
{
    EXPECT_TRUE(Watcher().held().isNull());
}

TEST(Watcher, SetDocument_HoldsTheLastOne)
{
    Watcher watcher;
    const QSharedPointer<AbstractDocument> first(new Document);
    const QSharedPointer<AbstractDocument> second(new Document);

    watcher.setDocument(first);
    EXPECT_EQ(watcher.held(), first);

    watcher.setDocument(second);
    EXPECT_EQ(watcher.held(), second);
}

TEST(Watcher, NullDocument_LetsGo)
{
    Watcher watcher;
    QSharedPointer<AbstractDocument> document(new Document);
    const QWeakPointer<AbstractDocument> alive = document;
    watcher.setDocument(document);
    document.reset();
    EXPECT_FALSE(alive.isNull());

    watcher.setDocument(nullptr);

    EXPECT_TRUE(watcher.held().isNull());
    EXPECT_TRUE(alive.isNull());
}

TEST(Watcher, SetToWhatItHolds_KeepsIt)
{
    Watcher watcher;
    watcher.setDocument(QSharedPointer<AbstractDocument>(new Document(3)));

    watcher.setDocument(watcher.held());

    EXPECT_EQ(watcher.held()->getType(), 3);
}

} // namespace
