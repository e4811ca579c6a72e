#include "tests/support/FakeHost.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Numbers.h"
#include "tests/support/Printers.h"
#include "tests/support/TestPlugin.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QtCore/QLocale>

namespace {

using Used = QMap<QString, double>;

//! Tara are numbered from 2 and named {a}, {b} …; the goods are position 9.
class Placement : public testing::Test
{
protected:
    Placement()
    {
        plugin.setDocument(host.receipt());
        host.journal.clear();
    }

    ~Placement() override { QLocale::setDefault(QLocale::c()); }

    //! Tara of these free capacities, each of capacity 10.
    void taraWithFree(const QList<double> &freeCapacities)
    {
        for (const double free : freeCapacities) {
            const auto index = static_cast<int>(plugin.taraList.size());
            plugin.putTara(2 + index, QString("{%1}").arg(QChar('a' + index)), 10.0, free);
        }
    }

    QList<double> freeCapacities() const
    {
        QList<double> result;
        for (const auto &tara : plugin.taraList)
            result << tara->freeCapacity;
        return result;
    }

    Used place(const Used &usedBefore, double newUsedCapacity)
    {
        const auto info = plugin.putGoods(9, usedBefore);
        plugin.modifyPackagingUsedCapacity(info, newUsedCapacity);
        return info->usedTara;
    }

    FakeHost host;
    LogCapture log;
    TestPlugin plugin;
};

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

// What is logged, what stays

TEST_F(Placement, EachMove_IsLoggedWithItsSignedAmount)
{
    taraWithFree({-2, -1.5});
    place({{"{a}", 2}, {"{b}", 3}}, 2.25);
    plugin.taraList[0]->freeCapacity = 0.125;
    plugin.taraList[1]->freeCapacity = 4;
    place({}, 12345.5);

    EXPECT_EQ(log.lines(),
              (QStringList{"INFO Изменение использованной позицией 9 ёмкости тары 2 на -2.000",
                           "INFO Изменение использованной позицией 9 ёмкости тары 3 на -0.750",
                           "INFO Изменение использованной позицией 9 ёмкости тары 2 на 0.125",
                           "INFO Изменение использованной позицией 9 ёмкости тары 3 на 4.000"}));
}

class LocaleOfThePlacementLog : public Placement, public testing::WithParamInterface<const char *>
{
};

TEST_P(LocaleOfThePlacementLog, DoesNotChangeTheNumbers)
{
    QLocale::setDefault(QLocale(GetParam()));
    plugin.putTara(1234567, "{a}", 10000.0, 10000.0);

    place({}, 1234.5);

    EXPECT_EQ(log.lines(), QStringList{"INFO Изменение использованной позицией 9 ёмкости тары "
                                       "1234567 на 1234.500"});
}

INSTANTIATE_TEST_SUITE_P(Locales, LocaleOfThePlacementLog,
                         testing::Values("ru_RU", "de_DE", "ar_EG"));

TEST_F(Placement, Filling_LeavesOtherGoodsAndTheHostAlone)
{
    taraWithFree({5});
    const auto other = plugin.putGoods(8, {{"{a}", 5}});

    place({}, 2);

    EXPECT_EQ(*other, (PackagingControl::PackagingInfo{8, {{"{a}", 5}}}));
    EXPECT_EQ(plugin.taraList[0]->capacity, 10.0);
    EXPECT_EQ(host.journal, QStringList());
}

TEST_F(Placement, CopyOfTheEntries_IsNotChangedWithThem)
{
    taraWithFree({5});
    const auto info = plugin.putGoods(9, {{"{a}", 1}});
    const Used copy = info->usedTara;
    const auto taras = plugin.taraList;

    plugin.modifyPackagingUsedCapacity(info, 2);

    EXPECT_EQ(copy, (Used{{"{a}", 1}}));
    EXPECT_EQ(info->usedTara, (Used{{"{a}", 2}}));
    EXPECT_EQ(taras[0]->freeCapacity, 4); // the record is shared, not copied
}

TEST_F(Placement, RecordThatIsInNoList_IsPlacedAllTheSame)
{
    taraWithFree({5});
    const auto info = plugin.getPackagingInfoByPosnum(99);

    plugin.modifyPackagingUsedCapacity(info, 2);

    EXPECT_EQ(*info, (PackagingControl::PackagingInfo{0, {{"{a}", 2}}}));
    EXPECT_THAT(plugin.packagingList, testing::IsEmpty());
}

TEST_F(Placement, TwoTaraOfOneIdentifier_ShareTheEntry)
{
    plugin.putTara(2, "{a}", 1, 1);
    plugin.putTara(3, "{a}", 5, 5);

    EXPECT_EQ(place({}, 4), (Used{{"{a}", 4}}));
    EXPECT_EQ(freeCapacities(), (QList<double>{0, 2}));
}

TEST_F(Placement, TheSameTaraTwiceInTheList_IsFilledOnce)
{
    plugin.putTara(2, "{a}", 1, 1);
    plugin.taraList.append(plugin.taraList[0]);

    EXPECT_EQ(place({}, 4), (Used{{"{a}", 1}}));
}

TEST_F(Placement, WithoutADocument_WorksAsEver)
{
    taraWithFree({5});
    plugin.disablePlugin();

    EXPECT_EQ(place({}, 2), (Used{{"{a}", 2}}));
}

// Numbers that are none

TEST_F(Placement, NeedThatIsNotANumber_MovesNothing)
{
    taraWithFree({5, -5});

    EXPECT_EQ(place({{"{b}", 1}}, notANumber), (Used{{"{b}", 1}}));
    EXPECT_EQ(freeCapacities(), (QList<double>{5, -5}));
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(Placement, TaraWithFreeThatIsNotANumber_IsPassed)
{
    taraWithFree({notANumber, 5});

    EXPECT_EQ(place({}, 2), (Used{{"{b}", 2}}));
}

TEST_F(Placement, EndlessNeed_FillsAllTara)
{
    taraWithFree({5, 3});

    EXPECT_EQ(place({}, infinity), (Used{{"{a}", 5}, {"{b}", 3}}));
    EXPECT_EQ(freeCapacities(), (QList<double>{0, 0}));
}

TEST_F(Placement, EndlessTara_TakesEverything)
{
    taraWithFree({infinity});

    EXPECT_EQ(place({}, 4), (Used{{"{a}", 4}}));
    EXPECT_EQ(freeCapacities(), (QList<double>{infinity}));
}

} // namespace
