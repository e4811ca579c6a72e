#include "tests/events/PlacementFixture.h"
#include "tests/support/Numbers.h"

// What placing goods logs, what it leaves alone, and numbers that are none.

namespace {

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
