#include "tests/triggers/TriggerTest.h"

namespace {

class AfterSplitPositions : public TriggerTest<TestPlugin>
{
protected:
    EContext::Result split(const QVariantList &elements) { return after(actions::split(elements)); }
};

TEST_F(AfterSplitPositions, NothingWasSplit_LogsSavesOnceAndChangesNothing)
{
    plugin.putTara(1, "A", 10, 8);
    plugin.putGoods(2, {{"A", 2}});
    const auto taras = valuesOf(plugin.taraList);
    const auto goods = valuesOf(plugin.packagingList);

    EXPECT_EQ(split({}), EContext::Continue);

    EXPECT_EQ(valuesOf(plugin.taraList), taras);
    EXPECT_EQ(valuesOf(plugin.packagingList), goods);
    EXPECT_EQ(host.journal, savedOnce());
    EXPECT_EQ(log.lines(), QStringList{"INFO Обработка разбиения позиции"});
}

TEST_F(AfterSplitPositions, ActionWithoutArguments_OnlySaves)
{
    plugin.putGoods(2);
    EXPECT_EQ(after(control::Action(control::SplitPositions, {})), EContext::Continue);
    EXPECT_EQ(posnumsOf(plugin.packagingList), QList<int>{2});
    EXPECT_EQ(host.journal, savedOnce());
}

TEST_F(AfterSplitPositions, RemovedSource_IsForgottenAndOnlyThePiecesAreRecorded)
{
    plugin.putTara(1, "A", 10, 5);
    plugin.putGoods(2, {{"A", 5}});
    const auto source = goods(2, 5);

    EXPECT_EQ(split({actions::splitOf(source, {goods(3, 2), goods(4, 3)}, true)}),
              EContext::Continue);

    using Info = PackagingControl::PackagingInfo;
    EXPECT_EQ(valuesOf(plugin.packagingList), (QList<Info>{{3, {{"A", 2}}}, {4, {{"A", 3}}}}));
    EXPECT_EQ(plugin.taraList[0]->freeCapacity, 5);
    EXPECT_EQ(source->getGroupId(), QString());
}

TEST_F(AfterSplitPositions, RemovedSource_GivesItsCapacityBackEvenWithoutPieces)
{
    plugin.putTara(1, "A", 10, 5);
    plugin.putGoods(2, {{"A", 5}});

    split({actions::splitOf(goods(2, 5), {}, true)});

    EXPECT_EQ(plugin.packagingList.size(), 0);
    EXPECT_EQ(plugin.taraList[0]->freeCapacity, 10);
}

TEST_F(AfterSplitPositions, KeptSource_IsRecordedAnewBeforeThePieces)
{
    plugin.putTara(1, "A", 2, 0);
    plugin.putTara(9, "B", 10, 7);
    plugin.putGoods(2, {{"A", 2}, {"B", 3}});

    split({actions::splitOf(goods(2, 2), {goods(3, 3)}, false)});

    using Info = PackagingControl::PackagingInfo;
    EXPECT_EQ(valuesOf(plugin.packagingList), (QList<Info>{{2, {{"A", 2}}}, {3, {{"B", 3}}}}));
    EXPECT_EQ(plugin.taraList[1]->freeCapacity, 7);
}

TEST_F(AfterSplitPositions, KeptSource_LosesItsPlaceAmongTheRecords)
{
    plugin.putGoods(2);
    plugin.putGoods(5);
    split({actions::splitOf(goods(2, 1), {goods(3, 1)}, false)});
    EXPECT_EQ(posnumsOf(plugin.packagingList), (QList<int>{5, 2, 3}));
}

TEST_F(AfterSplitPositions, RemovedIsMissing_KeepsTheSource)
{
    auto element = actions::splitOf(goods(2, 1), {goods(3, 1)}, true);
    element.remove("removed");
    split({element});
    EXPECT_EQ(posnumsOf(plugin.packagingList), (QList<int>{2, 3}));
}

TEST_F(AfterSplitPositions, RemovedIsText_IsReadAsBoolean)
{
    auto gone = actions::splitOf(goods(2, 1), {goods(3, 1)}, false);
    gone["removed"] = "true";
    auto kept = actions::splitOf(goods(4, 1), {goods(5, 1)}, true);
    kept["removed"] = "false";
    split({gone, kept});
    EXPECT_EQ(posnumsOf(plugin.packagingList), (QList<int>{3, 4, 5}));
}

TEST_F(AfterSplitPositions, SourceHasAGroup_ThePiecesJoinIt)
{
    const auto source = goods(2, 1);
    source->setGroupId("the group");
    const auto piece = goods(3, 1);
    piece->setGroupId("another");

    split({actions::splitOf(source, {piece}, true)});

    EXPECT_EQ(piece->getGroupId(), "the group");
}

TEST_F(AfterSplitPositions, SourceHasNoGroup_AllShareANewOne)
{
    const auto source = goods(2, 1);
    const GoodsItemPtrList pieces{goods(3, 1), goods(4, 1)};

    split({actions::splitOf(source, pieces, false)});

    EXPECT_EQ(source->getGroupId().size(), 38);
    EXPECT_EQ(pieces[0]->getGroupId(), source->getGroupId());
    EXPECT_EQ(pieces[1]->getGroupId(), source->getGroupId());
}

TEST_F(AfterSplitPositions, TwoSplits_MakeAGroupEachAndSaveOnce)
{
    const auto first = goods(2, 1);
    const auto second = goods(4, 1);

    split({actions::splitOf(first, {goods(3, 1)}, false),
           actions::splitOf(second, {goods(5, 1)}, false)});

    EXPECT_NE(first->getGroupId(), second->getGroupId());
    EXPECT_EQ(posnumsOf(plugin.packagingList), (QList<int>{2, 3, 4, 5}));
    EXPECT_EQ(host.journal, savedOnce());
}

// Were the second source forgotten before the first pieces are placed, those would find its room.
TEST_F(AfterSplitPositions, TwoSplits_FinishTheFirstBeforeTheSecondStarts)
{
    plugin.putTara(1, "A", 4, 0);
    plugin.putGoods(2, {{"A", 1}});
    plugin.putGoods(4, {{"A", 3}});

    split({actions::splitOf(goods(2, 1), {goods(3, 4)}, true),
           actions::splitOf(goods(4, 3), {goods(5, 3)}, true)});

    using Info = PackagingControl::PackagingInfo;
    EXPECT_EQ(valuesOf(plugin.packagingList), (QList<Info>{{3, {{"A", 1}}}, {5, {{"A", 3}}}}));
}

TEST_F(AfterSplitPositions, SecondSplitOfAPiece_StartsFromItsRecord)
{
    plugin.putTara(1, "A", 10, 6);
    plugin.putGoods(2, {{"A", 4}});
    const auto piece = goods(3, 4);

    split({actions::splitOf(goods(2, 4), {piece}, true),
           actions::splitOf(piece, {goods(4, 1), goods(5, 3)}, true)});

    EXPECT_EQ(posnumsOf(plugin.packagingList), (QList<int>{4, 5}));
    EXPECT_EQ(plugin.taraList[0]->freeCapacity, 6);
}

class AfterSplitPositionsOfAnyArticle : public AfterSplitPositions,
                                        public testing::WithParamInterface<int>
{
};

TEST_P(AfterSplitPositionsOfAnyArticle, PiecesAreRecordedAsGoodsAndTakeCapacity)
{
    plugin.putTara(1, "A", 10, 10);
    const auto source = host.putPosition(2, GetParam(), 1.0, 3, 3);
    const auto piece = host.putPosition(3, GetParam(), 1.0, 2, 2);
    log.clear();

    split({actions::splitOf(source, {piece}, false)});

    using Info = PackagingControl::PackagingInfo;
    EXPECT_EQ(valuesOf(plugin.packagingList), (QList<Info>{{2, {{"A", 3}}}, {3, {{"A", 2}}}}));
    EXPECT_EQ(plugin.taraList.size(), 1);
    EXPECT_EQ(plugin.taraList[0]->freeCapacity, 5);
    EXPECT_EQ(log.lines(),
              (QStringList{"INFO Обработка разбиения позиции",
                           "INFO Изменение использованной позицией 2 ёмкости тары 1 на 3.000",
                           "INFO Изменение использованной позицией 3 ёмкости тары 1 на 2.000"}));
}

INSTANTIATE_TEST_SUITE_P(TaraMode, AfterSplitPositionsOfAnyArticle, testing::Values(0, 1, 2, 7));

// Base quantity and count differ: what is poured is the base quantity.
TEST_F(AfterSplitPositions, Pieces_TakeTheirBaseQuantity)
{
    plugin.putTara(1, "A", 10, 10);
    const auto piece = host.putPosition(3, Tmc::PackagingGoods, {}, 1, 6);
    split({actions::splitOf(goods(2, 1), {piece}, true)});
    EXPECT_EQ(plugin.taraList[0]->freeCapacity, 4);
}

// Degraded elements.

TEST_F(AfterSplitPositions, NullSource_SkipsThatSplitOnly)
{
    const auto stray = goods(3, 1);
    const auto source = goods(4, 1);

    EXPECT_EQ(split({actions::splitOf(nullptr, {stray}, false),
                     actions::splitOf(source, {goods(5, 1)}, false)}),
              EContext::Continue);

    EXPECT_EQ(posnumsOf(plugin.packagingList), (QList<int>{4, 5}));
    EXPECT_EQ(stray->getGroupId(), QString());
    EXPECT_EQ(host.journal, savedOnce());
}

TEST_F(AfterSplitPositions, NullPieces_AreSkipped)
{
    split({actions::splitOf(goods(2, 1), {nullptr, goods(3, 1), nullptr}, false)});
    EXPECT_EQ(posnumsOf(plugin.packagingList), (QList<int>{2, 3}));
}

TEST_F(AfterSplitPositions, ElementsThatAreNoMaps_AreSkipped)
{
    split({5, "text", QVariant(), actions::splitOf(goods(2, 1), {goods(3, 1)}, true)});
    EXPECT_EQ(posnumsOf(plugin.packagingList), QList<int>{3});
}

TEST_F(AfterSplitPositions, ResultOfAnotherType_GivesNoPieces)
{
    auto element = actions::splitOf(goods(2, 1), {}, false);
    element["result"] = 5;
    split({element});
    EXPECT_EQ(posnumsOf(plugin.packagingList), QList<int>{2});
}

TEST_F(AfterSplitPositions, SourceOfAnotherType_SkipsTheSplit)
{
    auto element = actions::splitOf(goods(2, 1), {goods(3, 1)}, false);
    element["source"] = "position 2";
    split({element});
    EXPECT_EQ(plugin.packagingList.size(), 0);
}

TEST_F(AfterSplitPositions, KeysOfAnElement_AreReadExactly)
{
    auto element = actions::splitOf(goods(2, 1), {goods(3, 1)}, false);
    element["REMOVED"] = true;
    element["Removed"] = true;
    const QVariantMap capitals{{"Source", element["source"]}, {"Result", element["result"]}};
    split({element, capitals});
    EXPECT_EQ(posnumsOf(plugin.packagingList), (QList<int>{2, 3}));
}

} // namespace
