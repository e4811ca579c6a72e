#include "tests/events/ReceiptEvents.h"

#include <stdexcept>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/*!
 * Tara "A" that holds 1 of each of the goods 5 (2 in all) and 6 (1 in all), and what else may
 * happen while it is stornoed: `meanwhile` runs once, when the host carried out the first action.
 */
class InterruptedStorno : public ReceiptEvents
{
protected:
    InterruptedStorno()
    {
        standsTara(2, "A", 2.0, 0.0);
        standsTara(3, "B", 5.0, 4.0);
        standsGoods(5, 2.0, {{"A", 1.0}, {"B", 1.0}});
        standsGoods(6, 1.0, {{"A", 1.0}});
    }

    void storno(std::function<void()> meanwhile)
    {
        const ActionInterceptor interceptor(
            [&meanwhile](const control::Action &action, ActionQueueController &queue) {
                const int result = queue.runAction(action);
                if (const auto interruption = std::exchange(meanwhile, nullptr))
                    interruption();
                return result;
            });
        host.storno(2);
    }
};

TEST_F(InterruptedStorno, NothingMeanwhile_ReducesBoth)
{
    storno(nullptr);

    EXPECT_EQ(host.asked(),
              (QStringList{"switch off", "change 5 to 1.000", "remove 6", "switch on", "loyalty"}));
}

// The plugin is taken off the receipt.

TEST_F(InterruptedStorno, Suspension_SwitchesTheReceiptBackOnAndAsksForNothingMore)
{
    storno([this] { plugin.setDocument(nullptr); });

    EXPECT_EQ(plugin.heldDocument(), nullptr);
    EXPECT_TRUE(host.receipt()->isSwitchedOn());
    EXPECT_EQ(host.asked(),
              (QStringList{"switch off", "change 5 to 1.000", "switch on", "loyalty"}));
    EXPECT_THAT(valuesOf(plugin.packagingList),
                ElementsAre(PackagingInfo{5, {{"B", 1.0}}}, PackagingInfo{6, {{"A", 1.0}}}));
}

TEST_F(InterruptedStorno, Suspension_SavesNothingMore)
{
    storno([this] {
        plugin.disablePlugin();
        host.journal.clear();
    });

    EXPECT_EQ(host.journal, (QStringList{"switch on", "loyalty"}));
}

TEST_F(InterruptedStorno, SuspensionByTheLastWhoHasTheReceipt_KeepsItToTheEnd)
{
    const QWeakPointer<AbstractDocument> receipt = host.receipt();
    const LoyaltyOfReceipts loyalty;

    storno([this] {
        host.newReceipt();
        plugin.disablePlugin();
        host.journal.clear();
    });

    EXPECT_EQ(host.journal, QStringList{"switch on"});
    ASSERT_EQ(loyalty.told.size(), 1);
    EXPECT_NE(loyalty.told[0], nullptr);
    EXPECT_EQ(loyalty.told[0], receipt.toStrongRef());
}

TEST_F(InterruptedStorno, AddedOrder_CountsAsSuspension)
{
    storno([this] {
        FakeHost::trigger(plugin, ActionTrigger::After, control::Action(control::AddSoftCheck, {}));
    });

    EXPECT_EQ(plugin.heldDocument(), nullptr);
    EXPECT_TRUE(host.receipt()->isSwitchedOn());
}

TEST_F(InterruptedStorno, AnotherReceipt_LeavesTheFirstOneSwitchedOn)
{
    const auto first = host.receipt();
    const LoyaltyOfReceipts loyalty;

    storno([this] {
        host.newReceipt();
        plugin.setDocument(host.receipt());
    });

    EXPECT_TRUE(first->isSwitchedOn());
    EXPECT_EQ(loyalty.told, QList<QSharedPointer<AbstractDocument>>{first});
    EXPECT_EQ(plugin.heldDocument(), host.receipt());
}

TEST_F(InterruptedStorno, AnotherReceipt_KeepsItsPositionsAndRecords)
{
    storno([this] {
        host.newReceipt();
        host.putPosition(6, Tmc::PackagingGoods, QVariant(), 1, 1);
        host.receipt()->setPluginData(
            "PackagingControl", "packagingInfo",
            QVariantList{QVariantMap{{"posnum", 6}, {"usedTara", QVariantMap{{"own", 1.0}}}}});
        plugin.setDocument(host.receipt());
    });

    EXPECT_NE(position(6), nullptr);
    EXPECT_THAT(plugin.taraList, IsEmpty());
    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{6, {{"own", 1.0}}}));
    expectSavedRecordsAreThoseOf(plugin);
}

TEST_F(InterruptedStorno, SameReceiptSetAgain_ReducesTheRest)
{
    storno([this] { plugin.setDocument(host.receipt()); });

    EXPECT_EQ(host.asked(),
              (QStringList{"switch off", "change 5 to 1.000", "remove 6", "switch on", "loyalty"}));
    EXPECT_EQ(position(6), nullptr);
    // Of the goods 5 the entry left the record that the walk held, not the one restored meanwhile.
    EXPECT_THAT(valuesOf(plugin.packagingList),
                ElementsAre(PackagingInfo{5, {{"A", 1.0}, {"B", 1.0}}}));
}

// The receipt changes besides.

TEST_F(InterruptedStorno, OtherGoodsStornoed_AreNotAskedForAnyMore)
{
    storno([this] { host.storno(6); });

    EXPECT_EQ(host.asked(),
              (QStringList{"switch off", "change 5 to 1.000", "switch on", "loyalty"}));
    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{5, {{"B", 1.0}}}));
}

TEST_F(InterruptedStorno, OtherGoodsGrown_AreReducedFromTheirNewQuantity)
{
    storno([this] { host.changeQuantity(6, 3); });

    // 2 more were wanted, and tara "B" had room for them
    EXPECT_EQ(position(6)->getBquant(), 2.0);
    EXPECT_THAT(valuesOf(plugin.packagingList),
                ElementsAre(PackagingInfo{5, {{"B", 1.0}}}, PackagingInfo{6, {{"B", 2.0}}}));
    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{3, "B", 5.0, 2.0}));
}

TEST_F(InterruptedStorno, GoodsAdded_AreNotPouredIntoTheStornoedTara)
{
    storno([this] { host.addGoods(8, 9.0); });

    EXPECT_THAT(valuesOf(plugin.packagingList),
                ElementsAre(PackagingInfo{5, {{"B", 1.0}}}, PackagingInfo{8, {{"B", 4.0}}}));
    expectSavedRecordsAreThoseOf(plugin);
}

TEST_F(InterruptedStorno, ManyPositionsAdded_StayInTheRecords)
{
    storno([this] {
        for (int posnum = 10; posnum < 60; posnum += 2) {
            host.addTara(posnum, 1.0);
            host.addGoods(posnum + 1, 1.0);
        }
    });

    EXPECT_EQ(plugin.taraList.size(), 1 + 25);
    EXPECT_EQ(plugin.packagingList.size(), 1 + 25);
    expectSavedRecordsAreThoseOf(plugin);
}

TEST_F(InterruptedStorno, OtherTaraStornoed_RunsItsOwnCascade)
{
    storno([this] { host.storno(3); });

    EXPECT_THAT(plugin.taraList, IsEmpty());
    EXPECT_THAT(plugin.packagingList, IsEmpty());
    EXPECT_EQ(position(5), nullptr);
    EXPECT_EQ(position(6), nullptr);
    EXPECT_TRUE(host.receipt()->isSwitchedOn());
    expectSavedRecordsAreThoseOf(plugin);
}

TEST_F(InterruptedStorno, SameTaraStornoedAgain_OnlyLogsAndSaves)
{
    const auto tara = position(2);

    storno([this, tara] { host.publish(EActivityListener::eventPositionStorno, tara); });

    EXPECT_EQ(host.asked(),
              (QStringList{"switch off", "change 5 to 1.000", "remove 6", "switch on", "loyalty"}));
    EXPECT_EQ(log.lines().filter("При удалении позиции: 2").size(), 2);
}

TEST_F(InterruptedStorno, SameNumberAddedAsNewTara_IsNotTakenForTheOldOne)
{
    storno([this] { host.addTara(2, 7.0); });

    ASSERT_EQ(plugin.taraList.size(), 2);
    EXPECT_EQ(plugin.taraList[1]->posnum, 2);
    EXPECT_EQ(plugin.taraList[1]->freeCapacity, 7.0);
    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{5, {{"B", 1.0}}}));
}

TEST_F(InterruptedStorno, HostException_PassesToTheHost)
{
    EXPECT_THROW(storno([] { throw std::runtime_error("the printer is on fire"); }),
                 std::runtime_error);

    ASSERT_EQ(plugin.taraList.size(), 1);
    EXPECT_EQ(plugin.taraList[0]->id, "B");
}

} // namespace
