#include "tests/events/ReceiptEvents.h"
#include "tests/support/Numbers.h"

#include <QtCore/QLocale>

#include <cmath>
#include <limits>

namespace {

//! Goods of position 3 in a receipt, known to the plugin.
class PositionQuantity : public ReceiptEvents
{
protected:
    ~PositionQuantity() override { QLocale::setDefault(QLocale::c()); }

    //! Goods whose count of pieces has nothing to do with their base quantity.
    void putGoods(int posnum, double quantity)
    {
        host.putPosition(posnum, Tmc::PackagingGoods, QVariant(), 1000, quantity);
        plugin.putGoods(posnum);
    }
};

TEST_F(PositionQuantity, UnknownPosition_FalseWithoutAWord)
{
    plugin.putGoods(3);

    EXPECT_FALSE(plugin.changeGoodsBy(-1));
    EXPECT_EQ(log.lines(), QStringList());
    EXPECT_EQ(host.journal, QStringList());
}

TEST_F(PositionQuantity, UnknownPositionAndNoChange_FalseToo)
{
    plugin.putGoods(3);

    EXPECT_FALSE(plugin.changeGoodsBy(0));
}

TEST_F(PositionQuantity, NoDocument_FalseWithoutAWord)
{
    putGoods(3, 5);
    plugin.disablePlugin();

    EXPECT_FALSE(plugin.changeGoodsBy(-1));
    EXPECT_FALSE(plugin.changeGoodsBy(0));
    EXPECT_EQ(log.lines(), QStringList());
    EXPECT_EQ(host.journal, QStringList());
}

TEST_F(PositionQuantity, BlankRecord_False)
{
    EXPECT_FALSE(plugin.modifyPackagingPositionQuantity(plugin.getPackagingInfoByPosnum(99), -1.0));
}

class NoChange : public PositionQuantity, public testing::WithParamInterface<double>
{
};

TEST_P(NoChange, TrueWithoutAskingTheHost)
{
    putGoods(3, 5);
    host.receipt()->getPositionByPosnum(3)->setGroupId("{group}");

    EXPECT_TRUE(plugin.changeGoodsBy(GetParam()));
    EXPECT_EQ(log.lines(), QStringList());
    EXPECT_EQ(host.journal, QStringList());
    EXPECT_FALSE(host.modifiers().isSet(modifiers::Quantity));
    EXPECT_EQ(host.receipt()->getPositionByPosnum(3)->getGroupId(), "{group}");
}

INSTANTIATE_TEST_SUITE_P(BelowTheTolerance, NoChange,
                         testing::Values(0.0, -0.0, 0.0004, -0.0004, justBelow, -justBelow,
                                         std::numeric_limits<double>::denorm_min()));

TEST_F(PositionQuantity, NothingLeftAndNoChange_IsNotRemoved)
{
    putGoods(3, 0);

    EXPECT_TRUE(plugin.changeGoodsBy(0.0004));
    EXPECT_EQ(host.journal, QStringList());
}

TEST_F(PositionQuantity, ChangeOfExactlyTheTolerance_IsMade)
{
    putGoods(3, 5);

    EXPECT_TRUE(plugin.changeGoodsBy(tolerance));
    EXPECT_EQ(log.lines().first(), "INFO Изменение количества позиции 3, размещенной в таре, на "
                                   "0.001, в связи с изменением тары");
}

TEST_F(PositionQuantity, Change_AddsToTheBaseQuantity)
{
    putGoods(3, 5);

    EXPECT_TRUE(plugin.changeGoodsBy(-1.5));
    EXPECT_EQ(host.journal.first(), "change 3 to 3.500");
}

TEST_F(PositionQuantity, Growth_IsAskedForToo)
{
    putGoods(3, 5);

    EXPECT_TRUE(plugin.changeGoodsBy(2.25));
    EXPECT_EQ(host.journal.first(), "change 3 to 7.250");
    EXPECT_EQ(log.lines().first(), "INFO Изменение количества позиции 3, размещенной в таре, на "
                                   "2.250, в связи с изменением тары");
}

TEST_F(PositionQuantity, ChangeToNothing_IsARemoval)
{
    putGoods(3, 5);

    EXPECT_TRUE(plugin.changeGoodsBy(-5));
    EXPECT_EQ(host.journal.first(), "remove 3");
}

TEST_F(PositionQuantity, ChangeToLessThanNothing_IsARemoval)
{
    putGoods(3, 5);

    EXPECT_TRUE(plugin.changeGoodsBy(-7));
    EXPECT_EQ(host.journal.first(), "remove 3");
}

TEST_F(PositionQuantity, ExactlyTheToleranceLeft_IsARemoval)
{
    putGoods(3, 0.001);

    EXPECT_TRUE(plugin.changeGoodsBy(-tolerance)); // 0.001 less 0.0005 is 0.0005 exactly
    EXPECT_EQ(host.journal.first(), "remove 3");
}

TEST_F(PositionQuantity, JustAboveTheToleranceLeft_IsAChange)
{
    putGoods(3, std::nextafter(0.001, 1.0));

    EXPECT_TRUE(plugin.changeGoodsBy(-tolerance));
    EXPECT_EQ(host.journal.first(), "change 3 to 0.001");
}

TEST_F(PositionQuantity, QuantityThatIsNotANumber_IsNotAboveTheTolerance)
{
    putGoods(3, notANumber);

    EXPECT_TRUE(plugin.changeGoodsBy(1));
    EXPECT_EQ(host.journal.first(), "remove 3");
}

TEST_F(PositionQuantity, TwoRecordsOfOneNumber_BothMeanTheSamePosition)
{
    putGoods(3, 5);
    const auto second = plugin.putGoods(3);

    EXPECT_TRUE(plugin.modifyPackagingPositionQuantity(second, -1));
    EXPECT_EQ(host.journal.first(), "change 3 to 4.000");
}

TEST_F(PositionQuantity, RefusedChange_LeavesTheRecords)
{
    putGoods(3, 5);
    plugin.putTara(2, "{a}", 10, 5);
    plugin.packagingList[0]->usedTara = {{"{a}", 5}};
    host.refuseEverything = true;

    EXPECT_FALSE(plugin.changeGoodsBy(-1));
    EXPECT_FALSE(plugin.changeGoodsBy(-5));
    EXPECT_EQ(*plugin.taraList[0], (PackagingControl::TaraInfo{2, "{a}", 10, 5}));
    EXPECT_EQ(*plugin.packagingList[0], (PackagingControl::PackagingInfo{3, {{"{a}", 5}}}));
}

TEST_F(PositionQuantity, RecordsFollow_OnlyWhenTheHostReports)
{
    putGoods(3, 5);
    plugin.putTara(2, "{a}", 10, 5);
    plugin.packagingList[0]->usedTara = {{"{a}", 5}};
    host.late = true;

    EXPECT_TRUE(plugin.changeGoodsBy(1));
    EXPECT_EQ(plugin.taraList[0]->freeCapacity, 5);
    EXPECT_EQ(plugin.packagingList[0]->usedTara.value("{a}"), 5);

    host.deliverLate();
    EXPECT_EQ(plugin.taraList[0]->freeCapacity, 4);
    EXPECT_EQ(plugin.packagingList[0]->usedTara.value("{a}"), 6);
}

TEST_F(PositionQuantity, RecordThatTheRemovalTakesOutOfTheList_MayBeHandedInFromThere)
{
    putGoods(3, 5);

    // The reference dies with the list's entry while the host reports the removal.
    EXPECT_TRUE(plugin.modifyPackagingPositionQuantity(plugin.packagingList.constFirst(), -5));
    EXPECT_THAT(plugin.packagingList, testing::IsEmpty());
}

class LocaleOfTheQuantityLog : public PositionQuantity,
                               public testing::WithParamInterface<const char *>
{
};

TEST_P(LocaleOfTheQuantityLog, DoesNotChangeTheNumbers)
{
    QLocale::setDefault(QLocale(GetParam()));
    putGoods(1234567, 50000);

    plugin.changeGoodsBy(-12345.5);

    EXPECT_EQ(log.lines().first(), "INFO Изменение количества позиции 1234567, размещенной в "
                                   "таре, на -12345.500, в связи с изменением тары");
}

INSTANTIATE_TEST_SUITE_P(Locales, LocaleOfTheQuantityLog,
                         testing::Values("ru_RU", "de_DE", "ar_EG"));

} // namespace
