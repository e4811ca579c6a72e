#include "tests/events/ReceiptEvents.h"

namespace {

using testing::ElementsAre;

class PositionAdd : public ReceiptEvents
{
protected:
    void publishAdded(const QSharedPointer<GoodsItem> &position)
    {
        host.publish(EActivityListener::eventPositionAdded, position);
    }

    void expectNothingHappened() const
    {
        EXPECT_TRUE(plugin.taraList.isEmpty());
        EXPECT_TRUE(plugin.packagingList.isEmpty());
        EXPECT_EQ(log.lines(), QStringList());
        EXPECT_EQ(host.journal, QStringList());
    }
};

TEST_F(PositionAdd, Tara_RecordsCapacityAndSaves)
{
    host.addTara(2, 0.5, 3);

    ASSERT_EQ(plugin.taraList.size(), 1);
    EXPECT_EQ(plugin.taraList[0]->posnum, 2);
    EXPECT_EQ(plugin.taraList[0]->capacity, 1.5);
    EXPECT_EQ(plugin.taraList[0]->freeCapacity, 1.5);
    EXPECT_EQ(log.lines(), QStringList{"INFO Добавлена тара"});
    EXPECT_EQ(host.journal, savedOnce());
    expectSavedRecordsAreThoseOf(plugin);
}

TEST_F(PositionAdd, Goods_RecordsWhatIsPouredAndSaves)
{
    plugin.putTara(2, "A", 5.0, 5.0);

    host.addGoods(3, 4.5);

    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{3, {{"A", 4.5}}}));
    EXPECT_EQ(plugin.taraList[0]->freeCapacity, 0.5);
    EXPECT_EQ(log.lines(),
              (QStringList{"INFO Добавлен товар, отпускаемый в тару",
                           "INFO Изменение использованной позицией 3 ёмкости тары 2 на 4.500"}));
    EXPECT_EQ(host.journal, savedOnce());
    expectSavedRecordsAreThoseOf(plugin);
}

TEST_F(PositionAdd, Tara_TakesCapacityFromCountOfPieces)
{
    publishAdded(host.putPosition(2, Tmc::Tara, 0.5, 3, 100));

    EXPECT_EQ(plugin.taraList[0]->capacity, 1.5);
}

TEST_F(PositionAdd, Goods_PourBaseQuantity)
{
    plugin.putTara(2, "A", 500.0, 500.0);

    publishAdded(host.putPosition(3, Tmc::PackagingGoods, QVariant(), 100, 4));

    EXPECT_EQ(plugin.packagingList[0]->usedTara, (QMap<QString, double>{{"A", 4.0}}));
}

TEST_F(PositionAdd, KnownTara_IsResizedInsteadOfRecordedAgain)
{
    plugin.putTara(2, "A", 0.5, 0.25);

    host.addTara(2, 0.5, 3);

    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{2, "A", 1.5, 1.25}));
    EXPECT_EQ(log.lines(),
              (QStringList{"INFO Добавлена тара", "INFO Изменение ёмкости тары 0.500 -> 1.500"}));
    EXPECT_EQ(host.journal, savedOnce());
}

TEST_F(PositionAdd, KnownGoods_ArePlacedAnewInTheirRecord)
{
    plugin.putTara(2, "A", 5.0, 4.0);
    plugin.putGoods(3, {{"A", 1.0}});

    host.addGoods(3, 3.0);

    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{3, {{"A", 3.0}}}));
    EXPECT_EQ(plugin.taraList[0]->freeCapacity, 2.0);
}

TEST_F(PositionAdd, GoodsBeforeAnyTara_AreRecordedWithoutTara)
{
    host.addGoods(3, 3.0);

    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{3, {}}));
    EXPECT_EQ(log.lines(), QStringList{"INFO Добавлен товар, отпускаемый в тару"});
    EXPECT_EQ(host.journal, savedOnce());
}

TEST_F(PositionAdd, TaraAfterGoods_StaysEmpty)
{
    host.addGoods(3, 3.0);

    host.addTara(2, 5.0);

    EXPECT_EQ(plugin.taraList[0]->freeCapacity, 5.0);
    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{3, {}}));
}

TEST_F(PositionAdd, GoodsOfThree_FillTaraOfTwoAndThenTaraOfFive)
{
    plugin.putTara(1, "A", 2.0, 2.0);
    plugin.putTara(2, "B", 5.0, 5.0);

    host.addGoods(3, 3.0);

    EXPECT_THAT(valuesOf(plugin.taraList),
                ElementsAre(TaraInfo{1, "A", 2.0, 0.0}, TaraInfo{2, "B", 5.0, 4.0}));
    EXPECT_THAT(valuesOf(plugin.packagingList),
                ElementsAre(PackagingInfo{3, {{"A", 2.0}, {"B", 1.0}}}));
}

TEST_F(PositionAdd, GoodsThatDoNotFit_KeepWhatFittedAndRefuseNothing)
{
    plugin.putTara(2, "A", 2.0, 2.0);

    host.addGoods(3, 3.0);

    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{3, {{"A", 2.0}}}));
    EXPECT_EQ(position(3)->getBquant(), 3.0);
    EXPECT_TRUE(host.errors.isEmpty());
    EXPECT_EQ(host.journal, savedOnce());
}

TEST_F(PositionAdd, RecordsKeepOrderOfEvents)
{
    host.addTara(7, 1.0);
    host.addTara(2, 1.0);
    host.addGoods(9, 1.0);
    host.addGoods(4, 1.0);

    EXPECT_EQ(plugin.taraList[0]->posnum, 7);
    EXPECT_EQ(plugin.taraList[1]->posnum, 2);
    EXPECT_EQ(plugin.packagingList[0]->posnum, 9);
    EXPECT_EQ(plugin.packagingList[1]->posnum, 4);
}

class PositionAddOfOtherMode : public PositionAdd, public testing::WithParamInterface<int>
{
};

TEST_P(PositionAddOfOtherMode, ChangesLogsAndSavesNothing)
{
    publishAdded(host.putPosition(4, GetParam(), 1.0, 3, 3));

    expectNothingHappened();
}

INSTANTIATE_TEST_SUITE_P(Modes, PositionAddOfOtherMode, testing::Values(0, 3, -1, 12));

TEST_F(PositionAdd, PositionUnknownToTheDocument_DoesNothing)
{
    const auto unknown = host.putPosition(2, Tmc::Tara, 1.0, 1, 1);
    host.receipt()->removePosition(2);

    publishAdded(unknown);

    expectNothingHappened();
}

TEST_F(PositionAdd, EventGivesTheNumberAndTheDocumentThePosition)
{
    host.putPosition(2, Tmc::Tara, 5.0, 1, 1);
    const auto tmc = QSharedPointer<Tmc>::create(Tmc::PackagingGoods, QVariant(99.0));

    publishAdded(QSharedPointer<GoodsItem>::create(2, tmc));

    ASSERT_EQ(plugin.taraList.size(), 1);
    EXPECT_EQ(plugin.taraList[0]->capacity, 5.0);
    EXPECT_TRUE(plugin.packagingList.isEmpty());
}

TEST_F(PositionAdd, CapacityThatIsNoNumber_CountsAsNone)
{
    publishAdded(host.putPosition(2, Tmc::Tara, QString("a bucket"), 3, 3));

    ASSERT_EQ(plugin.taraList.size(), 1);
    EXPECT_EQ(plugin.taraList[0]->capacity, 0.0);
}

TEST_F(PositionAdd, WithoutDocument_DoesNothing)
{
    const auto tara = host.putPosition(2, Tmc::Tara, 1.0, 1, 1);
    plugin.disablePlugin();

    plugin.handleEvent(Event(EActivityListener::eventPositionAdded)
                           .addArgument("position", QVariant::fromValue(tara)));

    expectNothingHappened();
}

} // namespace
