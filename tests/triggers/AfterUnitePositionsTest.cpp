#include "tests/triggers/TriggerTest.h"

namespace {

using Info = PackagingControl::PackagingInfo;

class AfterUnitePositions : public TriggerTest<TestPlugin>
{
protected:
    EContext::Result unite(const GoodsItemPtrList &deleted, const GoodsItemPtrList &changed)
    {
        return after(actions::unite(deleted, changed));
    }

    double freeIn(int tara) const { return plugin.getTaraByPosnum(tara)->freeCapacity; }
};

TEST_F(AfterUnitePositions, NothingWasUnited_LogsSavesOnceAndChangesNothing)
{
    plugin.putTara(1, "A", 10, 8);
    plugin.putGoods(2, {{"A", 2}});

    EXPECT_EQ(unite({}, {}), EContext::Continue);

    EXPECT_EQ(valuesOf(plugin.packagingList), (QList<Info>{{2, {{"A", 2}}}}));
    EXPECT_EQ(freeIn(1), 8);
    EXPECT_EQ(host.journal, savedOnce());
    EXPECT_EQ(log.lines(), QStringList{"INFO Обработка объединения позиций"});
}

TEST_F(AfterUnitePositions, ActionWithoutArguments_OnlySaves)
{
    plugin.putTara(1, "A", 10, 8);
    plugin.putGoods(2, {{"A", 2}});

    EXPECT_EQ(after(control::Action(control::UnitePositions, {})), EContext::Continue);

    EXPECT_EQ(valuesOf(plugin.packagingList), (QList<Info>{{2, {{"A", 2}}}}));
    EXPECT_EQ(freeIn(1), 8);
    EXPECT_EQ(host.journal, savedOnce());
}

TEST_F(AfterUnitePositions, DeletedGoods_AreForgottenAndGiveTheirCapacityBack)
{
    plugin.putTara(1, "A", 10, 5);
    plugin.putGoods(2, {{"A", 2}});
    plugin.putGoods(3, {{"A", 3}});

    unite({goods(2, 2)}, {});

    EXPECT_EQ(posnumsOf(plugin.packagingList), QList<int>{3});
    EXPECT_EQ(freeIn(1), 7);
    EXPECT_EQ(host.journal, savedOnce());
}

TEST_F(AfterUnitePositions, DeletedWithoutRecord_ChangesNothing)
{
    plugin.putTara(1, "A", 10, 5);
    plugin.putGoods(3, {{"A", 5}});
    unite({goods(2, 2)}, {});
    EXPECT_EQ(posnumsOf(plugin.packagingList), QList<int>{3});
    EXPECT_EQ(freeIn(1), 5);
}

TEST_F(AfterUnitePositions, ChangedGoods_FollowTheirBaseQuantity)
{
    plugin.putTara(1, "A", 10, 8);
    plugin.putGoods(2, {{"A", 2}});

    unite({}, {host.putPosition(2, Tmc::PackagingGoods, {}, 1, 6)});

    EXPECT_EQ(valuesOf(plugin.packagingList), (QList<Info>{{2, {{"A", 6}}}}));
    EXPECT_EQ(freeIn(1), 4);
}

TEST_F(AfterUnitePositions, TwoGoodsOfOneTara_TheSurvivorTakesWhatTheOtherGaveBack)
{
    plugin.putTara(1, "A", 5, 0);
    plugin.putGoods(2, {{"A", 2}});
    plugin.putGoods(3, {{"A", 3}});

    EXPECT_EQ(unite({goods(3, 3)}, {goods(2, 5)}), EContext::Continue);

    EXPECT_EQ(valuesOf(plugin.packagingList), (QList<Info>{{2, {{"A", 5}}}}));
    EXPECT_EQ(freeIn(1), 0);
    EXPECT_EQ(log.lines(),
              (QStringList{"INFO Обработка объединения позиций",
                           "INFO Изменение использованной позицией 2 ёмкости тары 1 на 3.000"}));
}

TEST_F(AfterUnitePositions, SeveralGroups_AllDeletedGiveBackBeforeTheFirstChangedTakes)
{
    plugin.putTara(1, "A", 6, 0);
    plugin.putGoods(2, {{"A", 1}});
    plugin.putGoods(3, {{"A", 1}});
    plugin.putGoods(4, {{"A", 4}});

    unite({goods(3, 1), goods(4, 4)}, {goods(2, 6)});

    EXPECT_EQ(valuesOf(plugin.packagingList), (QList<Info>{{2, {{"A", 6}}}}));
}

TEST_F(AfterUnitePositions, TwoChanged_TakeInTheirOrder)
{
    plugin.putTara(1, "A", 5, 3);
    plugin.putGoods(2, {{"A", 1}});
    plugin.putGoods(3, {{"A", 1}});

    unite({}, {goods(3, 3), goods(2, 3)});

    EXPECT_EQ(valuesOf(plugin.packagingList), (QList<Info>{{2, {{"A", 2}}}, {3, {{"A", 3}}}}));
}

TEST_F(AfterUnitePositions, PositionBothDeletedAndChanged_LosesItsRecordAndTakesAsUnknown)
{
    plugin.putTara(1, "A", 10, 8);
    plugin.putGoods(2, {{"A", 2}});
    const auto position = goods(2, 3);

    unite({position}, {position});

    EXPECT_EQ(plugin.packagingList.size(), 0);
    EXPECT_EQ(freeIn(1), 7);
}

class AfterUnitePositionsOfUnknown : public AfterUnitePositions,
                                     public testing::WithParamInterface<int>
{
};

TEST_P(AfterUnitePositionsOfUnknown, TakesCapacityThatNoRecordHolds)
{
    plugin.putTara(1, "A", 10, 8);
    plugin.putGoods(2, {{"A", 2}});
    const auto position = host.putPosition(3, GetParam(), 1.0, 4, 4);

    unite({}, {position});

    EXPECT_EQ(valuesOf(plugin.packagingList), (QList<Info>{{2, {{"A", 2}}}}));
    EXPECT_EQ(freeIn(1), 4);
    EXPECT_EQ(log.lines(),
              (QStringList{"INFO Обработка объединения позиций",
                           "INFO Изменение использованной позицией 0 ёмкости тары 1 на 4.000"}));
}

INSTANTIATE_TEST_SUITE_P(TaraMode, AfterUnitePositionsOfUnknown, testing::Values(0, 1, 2, 7));

TEST_F(AfterUnitePositions, TwoUnknown_EachStartsAnew)
{
    plugin.putTara(1, "A", 10, 10);
    unite({}, {host.putPosition(3, 0, {}, 2, 2), host.putPosition(4, 0, {}, 3, 3)});
    EXPECT_EQ(freeIn(1), 5);
    EXPECT_EQ(plugin.packagingList.size(), 0);
}

// Degraded arguments.

TEST_F(AfterUnitePositions, NullPositions_AreSkipped)
{
    plugin.putTara(1, "A", 10, 5);
    plugin.putGoods(2, {{"A", 2}});
    plugin.putGoods(3, {{"A", 3}});

    EXPECT_EQ(unite({nullptr, goods(3, 3)}, {nullptr, goods(2, 5)}), EContext::Continue);

    EXPECT_EQ(valuesOf(plugin.packagingList), (QList<Info>{{2, {{"A", 5}}}}));
    EXPECT_EQ(host.journal, savedOnce());
}

TEST_F(AfterUnitePositions, ArgumentsOfOtherTypes_AreEmptyLists)
{
    plugin.putTara(1, "A", 10, 8);
    plugin.putGoods(2, {{"A", 2}});
    const control::Action action(control::UnitePositions,
                                 {{"deletedPositions", "2"}, {"changedPositions", 5}});

    EXPECT_EQ(after(action), EContext::Continue);

    EXPECT_EQ(valuesOf(plugin.packagingList), (QList<Info>{{2, {{"A", 2}}}}));
    EXPECT_EQ(freeIn(1), 8);
    EXPECT_EQ(host.journal, savedOnce());
}

} // namespace
