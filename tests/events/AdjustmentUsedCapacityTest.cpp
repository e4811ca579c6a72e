#include "tests/events/PlacementFixture.h"
#include "tests/support/Numbers.h"

namespace {

// Filling

TEST_F(Placement, GoodsThatGrow_PassFullTaraThoughTheyUseIt)
{
    taraWithFree({0, 10});

    EXPECT_EQ(place({{"{a}", 2}}, 5), (Used{{"{a}", 2}, {"{b}", 3}}));
    EXPECT_EQ(freeCapacities(), (QList<double>{0, 7}));
}

TEST_F(Placement, Goods_FillTheFirstTaraFirst)
{
    taraWithFree({1, 10, 10});

    EXPECT_EQ(place({}, 5), (Used{{"{a}", 1}, {"{b}", 4}}));
    EXPECT_EQ(freeCapacities(), (QList<double>{0, 6, 10}));
}

TEST_F(Placement, Goods_PreferNeitherTheBestFitNorTheTaraTheyUse)
{
    taraWithFree({10, 4, 10});

    EXPECT_EQ(place({{"{c}", 1}}, 5), (Used{{"{a}", 4}, {"{c}", 1}}));
}

TEST_F(Placement, GoodsThatFindNoPlace_AreDroppedWithoutAWord)
{
    taraWithFree({2, 1});

    EXPECT_EQ(place({}, 4), (Used{{"{a}", 2}, {"{b}", 1}}));
    EXPECT_EQ(freeCapacities(), (QList<double>{0, 0}));
    EXPECT_EQ(log.lines().size(), 2);
}

TEST_F(Placement, NoTara_NothingHappens)
{
    EXPECT_EQ(place({}, 4), Used());
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(Placement, OverFullTara_TakesNothingMore)
{
    taraWithFree({-2, 3});

    EXPECT_EQ(place({}, 1), (Used{{"{b}", 1}}));
    EXPECT_EQ(freeCapacities(), (QList<double>{-2, 2}));
}

TEST_F(Placement, FreeOfExactlyWhatIsNeeded_IsTakenWhole)
{
    taraWithFree({5, 5});

    EXPECT_EQ(place({}, 5), (Used{{"{a}", 5}}));
    EXPECT_EQ(freeCapacities(), (QList<double>{0, 5}));
}

TEST_F(Placement, EntryThatIsThere_IsAddedTo)
{
    taraWithFree({5});

    EXPECT_EQ(place({{"{a}", 2}}, 3.5), (Used{{"{a}", 3.5}}));
}

TEST_F(Placement, EntryBelowZero_CountsAsNeed)
{
    taraWithFree({5});

    EXPECT_EQ(place({{"{a}", -2}}, 1), (Used{{"{a}", 1}}));
    EXPECT_EQ(freeCapacities(), (QList<double>{2}));
}

TEST_F(Placement, EntryOfAnUnknownTara_CountsAsUsed)
{
    taraWithFree({5});

    EXPECT_EQ(place({{"{gone}", 2}}, 3), (Used{{"{a}", 1}, {"{gone}", 2}}));
}

// Releasing

TEST_F(Placement, GoodsThatShrink_LeaveTaraThatIsNotOverFull)
{
    taraWithFree({0, 7});

    EXPECT_EQ(place({{"{a}", 2}, {"{b}", 3}}, 1), (Used{{"{a}", 2}, {"{b}", 3}}));
    EXPECT_EQ(freeCapacities(), (QList<double>{0, 7}));
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(Placement, GoodsThatShrink_RelieveOverFullTaraAndKeepTheEntryOfZero)
{
    taraWithFree({-2, 7});

    EXPECT_EQ(place({{"{a}", 2}, {"{b}", 3}}, 3), (Used{{"{a}", 0}, {"{b}", 3}}));
    EXPECT_EQ(freeCapacities(), (QList<double>{0, 7}));
}

TEST_F(Placement, OverFullTaraThatTheGoodsDoNotUse_StaysOverFull)
{
    taraWithFree({-2, -3});

    EXPECT_EQ(place({{"{b}", 5}}, 1), (Used{{"{b}", 2}}));
    EXPECT_EQ(freeCapacities(), (QList<double>{-2, 0}));
}

TEST_F(Placement, Release_GivesNoMoreThanTheGoodsShrink)
{
    taraWithFree({-3});

    EXPECT_EQ(place({{"{a}", 5}}, 4), (Used{{"{a}", 4}}));
    EXPECT_EQ(freeCapacities(), (QList<double>{-2}));
}

TEST_F(Placement, Release_GivesNoMoreThanTheTaraIsOver)
{
    taraWithFree({-3});

    EXPECT_EQ(place({{"{a}", 5}}, 0), (Used{{"{a}", 2}}));
    EXPECT_EQ(freeCapacities(), (QList<double>{0}));
}

TEST_F(Placement, Release_MayLeaveTheEntryNegative)
{
    taraWithFree({-4});

    EXPECT_EQ(place({{"{a}", 1}, {"{gone}", 9}}, 2), (Used{{"{a}", -3}, {"{gone}", 9}}));
    EXPECT_EQ(freeCapacities(), (QList<double>{0}));
}

TEST_F(Placement, EntryOfZero_IsAUseToReleaseFrom)
{
    taraWithFree({-4});

    EXPECT_EQ(place({{"{a}", 0}, {"{gone}", 9}}, 8), (Used{{"{a}", -1}, {"{gone}", 9}}));
}

TEST_F(Placement, SeveralOverFullTara_AreRelievedInTheirOrder)
{
    taraWithFree({-1, -2, -3});

    EXPECT_EQ(place({{"{a}", 5}, {"{b}", 5}, {"{c}", 5}}, 11),
              (Used{{"{a}", 4}, {"{b}", 3}, {"{c}", 4}}));
    EXPECT_EQ(freeCapacities(), (QList<double>{0, 0, -2}));
}

TEST_F(Placement, OverFullTaraAsFarAsTheGoodsShrink_IsRelievedWhole)
{
    taraWithFree({-2});

    EXPECT_EQ(place({{"{a}", 5}}, 3), (Used{{"{a}", 3}}));
    EXPECT_EQ(freeCapacities(), (QList<double>{0}));
}

// The tolerance

TEST_F(Placement, NeedBelowTheTolerance_MovesNothing)
{
    taraWithFree({5});

    EXPECT_EQ(place({}, justBelow), Used());
    EXPECT_EQ(place({}, -justBelow), Used());
}

TEST_F(Placement, NeedOfExactlyTheTolerance_MovesNothing)
{
    taraWithFree({5, -5});

    EXPECT_EQ(place({}, tolerance), Used());
    EXPECT_EQ(place({{"{b}", 0}}, -tolerance), (Used{{"{b}", 0}}));
}

TEST_F(Placement, NeedAboveTheTolerance_IsPoured)
{
    taraWithFree({5});

    EXPECT_EQ(place({}, justAbove), (Used{{"{a}", justAbove}}));
}

TEST_F(Placement, SurplusAboveTheTolerance_IsReleased)
{
    taraWithFree({-5});

    EXPECT_EQ(place({{"{a}", 0}}, -justAbove), (Used{{"{a}", -justAbove}}));
}

TEST_F(Placement, TaraWithFreeOfTheTolerance_IsPassed)
{
    taraWithFree({tolerance, 5});

    EXPECT_EQ(place({}, 1), (Used{{"{b}", 1}}));
}

TEST_F(Placement, TaraWithFreeAboveTheTolerance_TakesThatMuch)
{
    taraWithFree({justAbove, 5});

    EXPECT_EQ(place({}, 1), (Used{{"{a}", justAbove}, {"{b}", 1 - justAbove}}));
}

TEST_F(Placement, TaraOverFullByTheTolerance_IsPassed)
{
    taraWithFree({-tolerance});

    EXPECT_EQ(place({{"{a}", 5}}, 1), (Used{{"{a}", 5}}));
}

TEST_F(Placement, TaraOverFullByMoreThanTheTolerance_IsRelieved)
{
    taraWithFree({-justAbove});

    EXPECT_EQ(place({{"{a}", 5}}, 1), (Used{{"{a}", 5 - justAbove}}));
    EXPECT_EQ(freeCapacities(), (QList<double>{0}));
}

TEST_F(Placement, RestBelowTheTolerance_EndsTheWalk)
{
    taraWithFree({1, 5});

    EXPECT_EQ(place({}, 1.0004), (Used{{"{a}", 1}}));
    EXPECT_EQ(freeCapacities(), (QList<double>{0, 5}));
}

TEST_F(Placement, Entries_AreTakenOffOneByOneInTheOrderOfTheirKeys)
{
    taraWithFree({10});

    // (1e16 - 1e16) - 1 leaves something; with the 1 first it would be lost in the large number.
    EXPECT_EQ(place({{"{x}", 1e16}, {"{y}", -1}}, 1e16).value("{a}"), 1.0);
    EXPECT_EQ(place({{"{x}", -1}, {"{y}", 1e16}}, 1e16).value("{a}"), 0.0);
}

} // namespace
