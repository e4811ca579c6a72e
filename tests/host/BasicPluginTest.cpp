#include "tests/support/Printers.h"

#include "host/BasicPlugin.h"

#include <gtest/gtest.h>

class ActionHandler
{
};

namespace {

using control::Subtotal;
using control::UnitePositions;

//! Triggers are told apart by their name, which their callback writes into the journal.
class Plugin : public testing::Test
{
protected:
    void add(const QString &name, control::EActionType actionType,
             ActionTrigger::Order order = ActionTrigger::Before,
             ActionTrigger::Priority priority = ActionTrigger::Normal,
             EContext::Code context = EContext::Receipt)
    {
        const auto write = [this, name](const control::Action &) {
            journal << name;
            return EContext::Continue;
        };
        plugin.addTrigger(ActionTrigger(context, actionType, order, write,
                                        ActionTrigger::DefaultResult, priority));
    }

    QStringList names(const QList<ActionTrigger> &triggers)
    {
        journal.clear();
        for (const ActionTrigger &trigger : triggers)
            trigger.call(control::Action(trigger.getActionType(), {}));
        return journal;
    }

    QStringList active(control::EActionType actionType,
                       ActionTrigger::Order order = ActionTrigger::Before,
                       EContext::Code context = EContext::Receipt)
    {
        return names(plugin.activeTriggers(context, actionType, order));
    }

    QStringList journal;
    BasicPlugin plugin;
};

constexpr auto elsewhere = static_cast<EContext::Code>(1);

TEST_F(Plugin, NothingAdded_HasNoTriggers)
{
    EXPECT_TRUE(plugin.triggers().isEmpty());
    EXPECT_EQ(active(Subtotal), QStringList());
}

TEST_F(Plugin, Triggers_AreListedInOrderOfRegistration)
{
    add("late", Subtotal, ActionTrigger::Before, ActionTrigger::Low);
    add("early", Subtotal, ActionTrigger::Before, ActionTrigger::High);
    add("other", UnitePositions, ActionTrigger::After);

    EXPECT_EQ(names(plugin.triggers()), (QStringList{"late", "early", "other"}));
}

TEST_F(Plugin, SameTriggerTwice_IsKeptTwice)
{
    add("twin", Subtotal);
    plugin.addTrigger(plugin.triggers().constFirst());

    EXPECT_EQ(active(Subtotal), (QStringList{"twin", "twin"}));
}

TEST_F(Plugin, ActiveTriggers_AreOfTheAskedActionOnly)
{
    add("subtotal", Subtotal);
    add("unite", UnitePositions);

    EXPECT_EQ(active(UnitePositions), QStringList{"unite"});
}

TEST_F(Plugin, ActiveTriggers_AreOfTheAskedOrderOnly)
{
    add("before", Subtotal, ActionTrigger::Before);
    add("after", Subtotal, ActionTrigger::After);

    EXPECT_EQ(active(Subtotal, ActionTrigger::Before), QStringList{"before"});
    EXPECT_EQ(active(Subtotal, ActionTrigger::After), QStringList{"after"});
}

TEST_F(Plugin, ActiveTriggers_AreOfTheAskedContextOnly)
{
    add("receipt", Subtotal);
    add("elsewhere", Subtotal, ActionTrigger::Before, ActionTrigger::Normal, elsewhere);

    EXPECT_EQ(active(Subtotal), QStringList{"receipt"});
    EXPECT_EQ(active(Subtotal, ActionTrigger::Before, elsewhere), QStringList{"elsewhere"});
}

TEST_F(Plugin, ActiveTriggers_RunBySmallestPriorityNumber)
{
    add("5", Subtotal, ActionTrigger::Before, ActionTrigger::Low);
    add("1", Subtotal, ActionTrigger::Before, ActionTrigger::High);
    add("3", Subtotal, ActionTrigger::Before, ActionTrigger::Normal);

    EXPECT_EQ(active(Subtotal), (QStringList{"1", "3", "5"}));
}

TEST_F(Plugin, EqualPriority_KeepsTheOrderOfRegistration)
{
    // More than a sort would leave in place by chance.
    QStringList low;
    QStringList high;
    for (int i = 0; i < 50; ++i) {
        low << QStringLiteral("low %1").arg(i);
        add(low.constLast(), Subtotal, ActionTrigger::Before, ActionTrigger::Low);
        high << QStringLiteral("high %1").arg(i);
        add(high.constLast(), Subtotal, ActionTrigger::Before, ActionTrigger::High);
    }

    EXPECT_EQ(active(Subtotal), high + low);
}

TEST_F(Plugin, DisabledActionType_HasNoActiveTriggers)
{
    add("before", Subtotal, ActionTrigger::Before);
    add("after", Subtotal, ActionTrigger::After);
    plugin.disableTriggers({Subtotal});

    EXPECT_EQ(active(Subtotal, ActionTrigger::Before), QStringList());
    EXPECT_EQ(active(Subtotal, ActionTrigger::After), QStringList());
}

TEST_F(Plugin, DisabledActionType_LeavesTheOthers)
{
    add("unite", UnitePositions);
    plugin.disableTriggers({Subtotal});

    EXPECT_EQ(active(UnitePositions), QStringList{"unite"});
}

TEST_F(Plugin, DisabledTriggers_AreStillListed)
{
    add("subtotal", Subtotal);
    plugin.disableTriggers({Subtotal});

    EXPECT_EQ(names(plugin.triggers()), QStringList{"subtotal"});
}

TEST_F(Plugin, TriggerAddedToADisabledType_IsNotActive)
{
    plugin.disableTriggers({Subtotal});
    add("subtotal", Subtotal);

    EXPECT_EQ(active(Subtotal), QStringList());
}

TEST_F(Plugin, DisabledOneAfterAnother_AllAreOff)
{
    add("subtotal", Subtotal);
    add("unite", UnitePositions);
    plugin.disableTriggers({Subtotal});
    plugin.disableTriggers({UnitePositions});

    EXPECT_EQ(active(Subtotal), QStringList());
    EXPECT_EQ(active(UnitePositions), QStringList());
}

TEST_F(Plugin, EnableTriggers_EndsEveryDisabling)
{
    add("subtotal", Subtotal);
    add("unite", UnitePositions);
    plugin.disableTriggers({Subtotal});
    plugin.disableTriggers({Subtotal, UnitePositions});
    plugin.enableTriggers();

    EXPECT_EQ(active(Subtotal), QStringList{"subtotal"});
    EXPECT_EQ(active(UnitePositions), QStringList{"unite"});
}

TEST_F(Plugin, Init_Succeeds)
{
    EXPECT_TRUE(plugin.init());
}

TEST_F(Plugin, Deinit_KeepsTheTriggers)
{
    add("subtotal", Subtotal);
    plugin.deinit();

    EXPECT_EQ(active(Subtotal), QStringList{"subtotal"});
}

TEST_F(Plugin, Feature_MatchesOnceSet)
{
    EXPECT_FALSE(plugin.isFeatureMatched("tara"));

    plugin.setFeature("tara");

    EXPECT_TRUE(plugin.isFeatureMatched("tara"));
    EXPECT_FALSE(plugin.isFeatureMatched("Tara"));
    EXPECT_FALSE(plugin.isFeatureMatched(QString()));
}

TEST_F(Plugin, Handlers_AddNoTriggers)
{
    plugin.addHandler(ActionHandler());

    EXPECT_TRUE(plugin.triggers().isEmpty());
}

TEST_F(Plugin, InterfaceIdentifier_FindsThePartOfAnObject)
{
    struct Object : QObject, BasicPlugin
    {
        void *qt_metacast(const char *name) override
        {
            return qstrcmp(name, BasicPlugin_iid) == 0 ? static_cast<BasicPlugin *>(this) : nullptr;
        }
    } object;

    EXPECT_EQ(qobject_cast<BasicPlugin *>(static_cast<QObject *>(&object)), &object);
}

} // namespace
