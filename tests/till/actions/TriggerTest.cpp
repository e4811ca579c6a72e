#include "host/ActionArguments.h"
#include "host/BaseActivityListener.h"
#include "host/BasicPlugin.h"
#include "host/DocumentWatcher.h"
#include "host/EContext.h"
#include "host/Quantity.h"
#include "host/Session.h"
#include "host/Singleton.h"
#include "tests/till/support/TillFixture.h"
#include "till/language/TillMessages.h"

// The order of triggers and what they can do, with a plugin that only writes down.

namespace till {

namespace {

//! Has the triggers that a test gives it, and writes down when they run.
class ScribePlugin : public BaseActivityListener, public BasicPlugin, public DocumentWatcher
{
public:
    ScribePlugin()
        : BaseActivityListener(nullptr)
    {
    }

    void handleEvent(const Event &) override {}

    void add(const QString &name, control::EActionType type, ActionTrigger::Order order,
             ActionTrigger::Priority priority, EContext::Result result = EContext::Continue)
    {
        const auto run = [this, name, result](const control::Action &) {
            ran.append(name);
            const bool isSet =
                Singleton<Session>::instance->getModifiers()->isSet(modifiers::Quantity);
            quantitySet.append(isSet);
            return result;
        };
        addTrigger(ActionTrigger(EContext::Receipt, type, order, run, ActionTrigger::DefaultResult,
                                 priority));
    }

    QStringList ran;
    QList<bool> quantitySet;
};

//! A register of its own around the scribe.
class Triggers : public TillTest
{
protected:
    Triggers()
    {
        must(till->stop());
        storage = must(Storage::open(":memory:"));
        m_register = std::make_unique<Register>(
            Register::Parts{till->catalogue(), *storage, &loaded, settings, notes});
        EXPECT_TRUE(m_register->carryOut(command::Open{}));
        EXPECT_TRUE(m_register->carryOut(command::Add{"CHIPS", 2}));
    }
    ~Triggers() override { m_register.reset(); }

    Register &cashRegister() { return *m_register; }
    Outcome carryOut(const Command &command) { return m_register->carryOut(command); }
    ModifiersContainer &modifiers() { return *Singleton<Session>::instance->getModifiers(); }

    ScribePlugin plugin;
    const LoadedPlugin loaded{{}, &plugin, &plugin, &plugin, &plugin};
    std::unique_ptr<Storage> storage;
    Config settings;

private:
    std::unique_ptr<Register> m_register;
};

TEST_F(Triggers, Run_BeforeByPriorityThenAfterByPriority)
{
    using T = ActionTrigger;
    plugin.add("after low", control::ApplyModifiers, T::After, T::Low);
    plugin.add("before normal", control::ApplyModifiers, T::Before, T::Normal);
    plugin.add("after high", control::ApplyModifiers, T::After, T::High);
    plugin.add("before high", control::ApplyModifiers, T::Before, T::High);
    plugin.add("before normal too", control::ApplyModifiers, T::Before, T::Normal);
    plugin.add("of another", control::Subtotal, T::Before, T::High);
    EXPECT_TRUE(carryOut(command::ChangeCount{1, 3}));
    EXPECT_EQ(plugin.ran, QStringList({"before high", "before normal", "before normal too",
                                       "after high", "after low"}));
}

TEST_F(Triggers, FirstThatDoesNotContinue_StopsTheAction)
{
    plugin.add("stops", control::Subtotal, ActionTrigger::Before, ActionTrigger::High,
               EContext::Error);
    plugin.add("later", control::Subtotal, ActionTrigger::Before, ActionTrigger::Low);
    plugin.add("after", control::Subtotal, ActionTrigger::After, ActionTrigger::High);
    EXPECT_EQ(carryOut(command::Subtotal{}).kind, Outcome::RefusedByPlugin);
    EXPECT_EQ(plugin.ran, QStringList("stops"));
    EXPECT_EQ(cashRegister().receipt()->state(), ReceiptState::Open);
    EXPECT_EQ(notesOf("result").last().value("result").toInt(), EContext::Error);
}

TEST_F(Triggers, RefusalWithoutAMessage_HasNoReason)
{
    EXPECT_EQ(carryOut(command::Pay{1}).reason, (Message{messages::tillNotEnoughMoney(), {}}));
    plugin.add("stops", control::SplitPositions, ActionTrigger::Before, ActionTrigger::High,
               EContext::Error);
    const Outcome outcome = carryOut(command::Split{1, {1}});
    EXPECT_EQ(outcome.kind, Outcome::RefusedByPlugin);
    EXPECT_EQ(outcome.reason, Message());
}

TEST_F(Triggers, Cancel_StopsTheActionToo)
{
    plugin.add("stops", control::Payment, ActionTrigger::Before, ActionTrigger::High,
               EContext::Cancel);
    EXPECT_EQ(carryOut(command::Pay{}).kind, Outcome::Declined);
    EXPECT_EQ(cashRegister().receipt()->state(), ReceiptState::Open);
    EXPECT_EQ(notesOf("result").last().value("result").toInt(), EContext::Cancel);
}

TEST_F(Triggers, CancelOfOneThatAskedNobody_HasNoReason)
{
    EXPECT_EQ(carryOut(command::Storno{1}).reason.quoted, messages::tillStornoPosition());
    plugin.add("stops", control::Payment, ActionTrigger::Before, ActionTrigger::High,
               EContext::Cancel);
    EXPECT_EQ(carryOut(command::Pay{}).reason, Message());
}

TEST_F(Triggers, AfterTheAction_NothingIsStopped)
{
    plugin.add("refuses", control::Subtotal, ActionTrigger::After, ActionTrigger::High,
               EContext::Error);
    plugin.add("runs", control::Subtotal, ActionTrigger::After, ActionTrigger::Low);
    EXPECT_TRUE(carryOut(command::Subtotal{}));
    EXPECT_EQ(plugin.ran, QStringList({"refuses", "runs"}));
}

TEST_F(Triggers, EachPoint_IsPassedByItsCommand)
{
    const QList<control::EActionType> types{control::ApplyModifiers, control::SplitPositions,
                                            control::UnitePositions, control::Subtotal,
                                            control::AddSoftCheck};
    const auto named = [](control::EActionType type) { return QString::number(type); };
    for (const auto type : types)
        plugin.add(named(type), type, ActionTrigger::Before, ActionTrigger::High);
    EXPECT_TRUE(carryOut(command::ChangeCount{1, 3}));
    EXPECT_TRUE(carryOut(command::Split{1, {1}}));
    EXPECT_TRUE(carryOut(command::Unite{{1, 2}}));
    EXPECT_TRUE(carryOut(command::AddSoftCheck{"1"}));
    EXPECT_TRUE(carryOut(command::AttachOrder{"2"}));
    EXPECT_TRUE(carryOut(command::Subtotal{}));
    EXPECT_EQ(plugin.ran,
              QStringList({named(control::ApplyModifiers), named(control::SplitPositions),
                           named(control::UnitePositions), named(control::AddSoftCheck),
                           named(control::AddSoftCheck), named(control::Subtotal)}));
}

TEST_F(Triggers, Modifiers_AreSetForTheChangeAndClearedAfterIt)
{
    plugin.add("before", control::ApplyModifiers, ActionTrigger::Before, ActionTrigger::High);
    EXPECT_TRUE(carryOut(command::ChangeCount{1, 3}));
    EXPECT_EQ(plugin.quantitySet, QList<bool>({true}));
    EXPECT_FALSE(modifiers().isSet(modifiers::Quantity));
}

TEST_F(Triggers, Modifiers_AreClearedAfterARefusalToo)
{
    plugin.add("no", control::ApplyModifiers, ActionTrigger::Before, ActionTrigger::High,
               EContext::Error);
    EXPECT_FALSE(carryOut(command::ChangeCount{1, 3}));
    EXPECT_FALSE(modifiers().isSet(modifiers::Quantity));
}

TEST_F(Triggers, Modifiers_AreClearedAfterEachOtherAction)
{
    const auto clears = [this](const Command &command) {
        modifiers().set(modifiers::Quantity, QVariant::fromValue(Quantity(1, quantModeNone)));
        EXPECT_TRUE(carryOut(command));
        return !modifiers().isSet(modifiers::Quantity);
    };
    EXPECT_TRUE(clears(command::Add{"CHIPS", 1}));
    EXPECT_TRUE(clears(command::Split{1, {1}}));
    EXPECT_TRUE(clears(command::Unite{{1, 3}}));
    EXPECT_TRUE(clears(command::AddSoftCheck{"1"}));
    EXPECT_TRUE(clears(command::Subtotal{}));
    EXPECT_TRUE(clears(command::Pay{}));
}

} // namespace

} // namespace till
