#include "host/ActionArguments.h"
#include "host/Quantity.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

//! A bottle of 1.5 that is full, in a host that reports late what it was asked to do.
class LateHost : public testing::Test
{
protected:
    LateHost()
    {
        m_plugin.init();
        m_plugin.setDocument(m_host.receipt());
        m_host.addTara(bottle, 1.5);
        m_host.addGoods(beer, 1.5);
        m_host.late = true;
    }

    //! The cashier changes the bottle's quantity; true when the plugin lets it happen.
    bool changeBottle(double count)
    {
        m_host.modifiers().set(modifiers::Quantity,
                               QVariant::fromValue(Quantity(count, quantModeNone)));
        const control::Action action(control::ApplyModifiers, {});
        control::args::Core(action).setPositionNumber(bottle);
        if (FakeHost::trigger(m_plugin, ActionTrigger::Before, action) != EContext::Continue)
            return false;
        m_host.changeQuantity(bottle, count);
        return true;
    }

    double beerQuantity() const { return m_host.receipt()->getPositionByPosnum(beer)->getBquant(); }
    double capacity() const { return m_plugin.taraList.constFirst()->capacity; }
    double freeCapacity() const { return m_plugin.taraList.constFirst()->freeCapacity; }
    QList<double> poured() const { return m_plugin.packagingList.constFirst()->usedTara.values(); }

    static constexpr int bottle = 1;
    static constexpr int beer = 2;
    FakeHost m_host;
    TestPlugin m_plugin;
};

TEST_F(LateHost, TaraChangedThreeTimesBeforeTheFirstAnswer_GoodsFillItOnce)
{
    for (const double count : {2, 3, 4})
        m_host.changeQuantity(bottle, count);
    m_host.deliverLate();
    EXPECT_DOUBLE_EQ(beerQuantity(), 6.0);
    EXPECT_DOUBLE_EQ(capacity(), 6.0);
    EXPECT_DOUBLE_EQ(freeCapacity(), 0.0);
    EXPECT_THAT(poured(), ElementsAre(6.0));
}

TEST_F(LateHost, TaraShrunkThreeTimesBeforeTheFirstAnswer_GoodsLeaveItOnce)
{
    m_host.late = false;
    m_host.changeQuantity(bottle, 4);
    m_host.late = true;
    for (const double count : {3, 2, 1})
        m_host.changeQuantity(bottle, count);
    EXPECT_DOUBLE_EQ(freeCapacity(), -4.5);
    m_host.deliverLate();
    EXPECT_DOUBLE_EQ(beerQuantity(), 1.5);
    EXPECT_DOUBLE_EQ(freeCapacity(), 0.0);
    EXPECT_THAT(poured(), ElementsAre(1.5));
}

TEST_F(LateHost, TaraGrownAndShrunkBackBeforeTheFirstAnswer_IsAsBefore)
{
    for (const double count : {2, 3, 1})
        m_host.changeQuantity(bottle, count);
    m_host.deliverLate();
    EXPECT_DOUBLE_EQ(beerQuantity(), 1.5);
    EXPECT_DOUBLE_EQ(freeCapacity(), 0.0);
    EXPECT_THAT(poured(), ElementsAre(1.5));
}

TEST_F(LateHost, GoodsChangedThreeTimesBeforeTheFirstReport_ArePlacedOnce)
{
    m_host.addTara(3, 10);
    const auto position = m_host.receipt()->getPositionByPosnum(beer);
    position->setBquant(5);
    for (int report = 0; report < 3; ++report)
        m_host.publish(EActivityListener::eventModifierApplied2, position);
    EXPECT_EQ(m_plugin.taraList.constLast()->freeCapacity, 6.5);
    EXPECT_DOUBLE_EQ(freeCapacity(), 0.0);
}

// The bottle has grown and its goods have not followed yet: it is partly filled for the time being.
TEST_F(LateHost, CashierChangesTheTaraAgainBeforeTheAnswer_IsRefusedUntilItCame)
{
    ASSERT_TRUE(changeBottle(2));
    EXPECT_FALSE(changeBottle(3));
    ASSERT_EQ(m_host.errors.size(), 1);
    EXPECT_EQ(m_host.errors[0].value("errorText", {}).value<tr::Tr>().key(),
              "packingControlTaraAlmostFull");
    EXPECT_DOUBLE_EQ(capacity(), 3.0);
    m_host.deliverLate();
    EXPECT_TRUE(changeBottle(3));
}

TEST_F(LateHost, GoodsStornoReportedTwice_GivesTheirCapacityBackOnce)
{
    m_host.late = false;
    const auto position = m_host.receipt()->getPositionByPosnum(beer);
    m_host.storno(beer);
    m_host.publish(EActivityListener::eventPositionStorno, position);
    EXPECT_DOUBLE_EQ(freeCapacity(), 1.5);
    EXPECT_THAT(m_plugin.packagingList, IsEmpty());
}

// The bottle is gone with what it held; what was to be poured into it stays without a tara.
TEST_F(LateHost, TaraStornoedBeforeTheAnswerToItsChange_LeavesNothingBehind)
{
    m_host.changeQuantity(bottle, 2);
    m_host.storno(bottle);
    m_host.deliverLate();
    EXPECT_THAT(m_plugin.taraList, IsEmpty());
    EXPECT_DOUBLE_EQ(beerQuantity(), 1.5);
    EXPECT_THAT(poured(), IsEmpty());
}

} // namespace
