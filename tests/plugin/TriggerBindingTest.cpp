#include "host/Quantity.h"
#include "tests/plugin/RecordingHost.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Printers.h"

#include "host/ActionArguments.h"

#include <gtest/gtest.h>

namespace {

// Each callback is known by what it does, as the host sees it.
class TriggerBinding : public testing::Test
{
protected:
    TriggerBinding()
    {
        host.config().set("PackagingControl:allowSaleEmptyTara", false);
        plugin.init();
        plugin.setDocument(host.receipt());
        log.clear();
    }

    EContext::Result call(control::EActionType type, ActionTrigger::Order order, int posnum = 0)
    {
        host.journal.clear();
        const control::Action action(type, {});
        if (posnum)
            control::args::Core(action).setPositionNumber(posnum);
        return FakeHost::trigger(plugin, order, action);
    }

    FakeHost host;
    LogCapture log;
    TestPlugin plugin;
};

TEST_F(TriggerBinding, ApplyModifiers_IsTheModifierCheck)
{
    host.putPosition(2, Tmc::Tara, 5.0, 1, 1);
    plugin.putTara(2, "{a}", 5.0, 2.0);
    host.modifiers().set(modifiers::Quantity, QVariant::fromValue(Quantity(2, EQuantMode(7))));

    EXPECT_EQ(call(control::ApplyModifiers, ActionTrigger::Before, 2), EContext::Error);

    EXPECT_EQ(host.journal, QStringList{"error packingControlTaraAlmostFull"});
}

TEST_F(TriggerBinding, SplitPositions_IsTheSplitFollowUp)
{
    EXPECT_EQ(call(control::SplitPositions, ActionTrigger::After), EContext::Continue);

    EXPECT_EQ(log.lines(), QStringList{"INFO Обработка разбиения позиции"});
}

TEST_F(TriggerBinding, UnitePositions_IsTheUniteFollowUp)
{
    EXPECT_EQ(call(control::UnitePositions, ActionTrigger::After), EContext::Continue);

    EXPECT_EQ(log.lines(), QStringList{"INFO Обработка объединения позиций"});
}

TEST_F(TriggerBinding, Subtotal_IsTheEmptyTaraQuestion)
{
    plugin.putTara(2, "{a}", 5.0, 5.0);

    EXPECT_EQ(call(control::Subtotal, ActionTrigger::Before), EContext::Cancel);

    EXPECT_EQ(host.journal, QStringList{"ask packingControlSaleEmptyTara"});
}

TEST_F(TriggerBinding, Payment_IsTheEmptyTaraQuestion)
{
    plugin.putTara(2, "{a}", 5.0, 5.0);

    EXPECT_EQ(call(control::Payment, ActionTrigger::Before), EContext::Cancel);

    EXPECT_EQ(host.journal, QStringList{"ask packingControlSaleEmptyTara"});
}

TEST_F(TriggerBinding, AddSoftCheck_IsTheSuspension)
{
    EXPECT_EQ(call(control::AddSoftCheck, ActionTrigger::After), EContext::Continue);

    EXPECT_EQ(log.lines(),
              QStringList{"INFO Добавлен софт-чек или заказ, работа плагина приостановлена"});
    EXPECT_EQ(plugin.heldDocument(), nullptr);
}

TEST_F(TriggerBinding, OtherMoment_CallsNothing)
{
    plugin.putTara(2, "{a}", 5.0, 5.0);

    for (const auto type :
         {control::SplitPositions, control::UnitePositions, control::AddSoftCheck})
        call(type, ActionTrigger::Before);
    for (const auto type : {control::ApplyModifiers, control::Subtotal, control::Payment})
        call(type, ActionTrigger::After);

    EXPECT_EQ(log.lines(), QStringList());
    EXPECT_EQ(host.journal, QStringList());
    EXPECT_EQ(plugin.heldDocument(), host.receipt());
}

TEST_F(TriggerBinding, TwoPlugins_AreEachBoundToTheirOwn)
{
    TestPlugin other;
    other.init();
    other.setDocument(host.receipt());

    call(control::AddSoftCheck, ActionTrigger::After);

    EXPECT_EQ(plugin.heldDocument(), nullptr);
    EXPECT_EQ(other.heldDocument(), host.receipt());
}

} // namespace
