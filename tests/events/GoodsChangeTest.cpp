#include "tests/events/ReceiptEvents.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using GoodsChange = ReceiptEvents;

class GoodsChangeByCode : public GoodsChange,
                          public testing::WithParamInterface<EActivityListener::Event>
{
};

TEST_P(GoodsChangeByCode, Goods_ArePlacedByTheirNewQuantity)
{
    standsTara(2, "A", 5.0, 4.0);
    standsGoods(7, 1.0, {{"A", 1.0}});

    host.changeQuantity(7, 3, GetParam());

    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{2, "A", 5.0, 2.0}));
    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{7, {{"A", 3.0}}}));
    EXPECT_EQ(host.journal, savedOnce());
}

INSTANTIATE_TEST_SUITE_P(Codes, GoodsChangeByCode,
                         testing::Values(EActivityListener::eventModifierApplied,
                                         EActivityListener::eventModifierApplied2));

TEST_F(GoodsChange, Goods_PourBaseQuantity)
{
    plugin.putTara(2, "A", 500.0, 500.0);
    plugin.putGoods(7);

    publishChanged(host.putPosition(7, Tmc::PackagingGoods, QVariant(), 100, 4));

    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{7, {{"A", 4.0}}}));
}

TEST_F(GoodsChange, GoodsGrownBeyondAllTara_FillItAndLeaveTheRestUnplaced)
{
    standsTara(2, "A", 2.0, 1.0);
    standsTara(3, "B", 2.0, 2.0);
    standsGoods(7, 1.0, {{"A", 1.0}});

    host.changeQuantity(7, 10);

    EXPECT_THAT(valuesOf(plugin.taraList),
                ElementsAre(TaraInfo{2, "A", 2.0, 0.0}, TaraInfo{3, "B", 2.0, 0.0}));
    EXPECT_THAT(valuesOf(plugin.packagingList),
                ElementsAre(PackagingInfo{7, {{"A", 2.0}, {"B", 2.0}}}));
    EXPECT_EQ(position(7)->getBquant(), 10.0);
    EXPECT_TRUE(host.errors.isEmpty());
}

TEST_F(GoodsChange, ShrunkGoodsInTaraWithRoom_KeepTheirShare)
{
    standsTara(2, "A", 5.0, 2.0);
    standsGoods(7, 3.0, {{"A", 3.0}});

    host.changeQuantity(7, 1);

    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{2, "A", 5.0, 2.0}));
    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{7, {{"A", 3.0}}}));
    EXPECT_EQ(host.journal, savedOnce());
}

TEST_F(GoodsChange, GoodsWithoutRecord_TakeCapacityButGetNoRecord)
{
    plugin.putTara(2, "A", 5.0, 5.0);

    publishChanged(host.putPosition(7, Tmc::PackagingGoods, QVariant(), 2, 2));

    EXPECT_THAT(plugin.packagingList, IsEmpty());
    EXPECT_EQ(plugin.taraList[0]->freeCapacity, 3.0);
    EXPECT_EQ(host.journal, savedOnce());
}

TEST_F(GoodsChange, OtherMode_OnlySaves)
{
    plugin.putTara(4, "A", 5.0, 5.0);
    plugin.putGoods(4);

    publishChanged(host.putPosition(4, Tmc::NoTara, 1.5, 2, 2));

    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{4, "A", 5.0, 5.0}));
    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{4, {}}));
    EXPECT_EQ(log.lines(), QStringList());
    EXPECT_EQ(host.journal, savedOnce());
}

} // namespace
