#include "host/Action.h"
#include "host/ActionArguments.h"
#include "host/ActionQueueController.h"
#include "host/EContext.h"
#include "host/Singleton.h"
#include "tests/till/support/TestFront.h"
#include "tests/till/support/TillFixture.h"

// A question, a message or a note may run an event loop, and so bring the next command in the
// middle of one.

namespace till {

namespace {

QList<Command> everyCommand()
{
    return {command::Open{},
            command::Add{"BAG"},
            command::ChangeCount{2, 5},
            command::Storno{2},
            command::Split{2, {0.5}},
            command::Unite{{1, 2}},
            command::AttachOrder{"A"},
            command::AddSoftCheck{"1"},
            command::Subtotal{},
            command::Pay{},
            command::Cancel{}};
}

class Busy : public TillTest
{
protected:
    Busy() { done({"open", "add CHIPS 2", "add CHIPS 3"}); }

    Outcome carryOut(const Command &command) { return till->cashRegister().carryOut(command); }

    //! Every question is answered with a yes, once \a attempt was made.
    void whenAsked(const std::function<void()> &attempt)
    {
        front.asked = [attempt](const Question &) {
            attempt();
            return true;
        };
    }

    void expectBusy(const Outcome &outcome)
    {
        ++attempts;
        EXPECT_EQ(outcome.kind, Outcome::RefusedByRegister);
        EXPECT_EQ(outcome.reason.key(), QString("tillBusy"));
    }
    void tryEveryCommand()
    {
        for (const Command &command : everyCommand())
            expectBusy(carryOut(command));
    }
    //! The storno of the first position was all that happened.
    void expectNothingElse()
    {
        EXPECT_GT(attempts, 0);
        expect({"position 1 stornoed", "position 2 live quantity 3", "positions 1", "state open",
                "control active"});
        EXPECT_EQ(notesOf("command").size(), notesOf("outcome").size());
    }

    int attempts = 0;
    TestFront front;
    const InstalledFront installed{till->front(), front};
};

TEST_F(Busy, CommandWithinAQuestion_IsRefused)
{
    whenAsked([this] { tryEveryCommand(); });
    heard.clear();
    EXPECT_TRUE(carryOut(command::Storno{1}));
    EXPECT_EQ(noted("command", "text"), QVariantList({"storno 1"}));
    expectNothingElse();
    EXPECT_EQ(attempts, everyCommand().size());
}

TEST_F(Busy, SwitchingWithinAQuestion_IsRefused)
{
    QStringList said;
    whenAsked([&] {
        said.append(
            {faultText(till->start()), faultText(till->stop()), faultText(till->set("A:b", "c"))});
        ++attempts;
    });
    EXPECT_TRUE(carryOut(command::Storno{1}));
    EXPECT_EQ(said, QStringList(3, "a command is under way"));
    EXPECT_TRUE(till->isOn());
    EXPECT_FALSE(till->setup().settings.contains("A:b"));
    expectNothingElse();
}

TEST_F(Busy, LineWithinAQuestion_IsRefused)
{
    auto attempting = notes.subscribe([this](const QJsonObject &note) {
        if (note.value("kind").toString() != "question")
            return;
        for (const char *line : {"open", "restart", "set A:b c", "expect state open", "help", ""})
            expectBusy(run(line));
    });
    done({"answer yes", "storno 1"});
    attempting.reset();
    EXPECT_TRUE(commands->hasTouchedReceipt());
    expectNothingElse();
}

TEST_F(Busy, CommandWithinAMessage_IsRefused)
{
    front.shown = [this](const tr::Tr &) { tryEveryCommand(); };
    EXPECT_EQ(carryOut(command::Pay{1}).reason.key(), QString("tillNotEnoughMoney"));
    EXPECT_EQ(attempts, everyCommand().size());
    expect({"positions 2", "state subtotal"});
}

TEST_F(Busy, CommandWithinANote_IsRefused)
{
    whenAsked([] {});
    auto attempting = notes.subscribe([this](const QJsonObject &) { tryEveryCommand(); });
    EXPECT_TRUE(carryOut(command::Storno{1}));
    attempting.reset();
    expectNothingElse();
}

TEST_F(Busy, ActionThatAPluginQueuesOutsideACommand_LetsNoneIn)
{
    whenAsked([this] { tryEveryCommand(); });
    const control::Action storno(control::StornoPosition, {});
    control::args::Core(storno).setPositionNumber(1);
    EXPECT_EQ(Singleton<ActionQueueController>::instance()->runAction(storno), EContext::Continue);
    expectNothingElse();
}

TEST_F(Busy, Front_CanAsk)
{
    QList<bool> busy;
    const auto ask = [&] { busy.append({till->isBusy(), till->cashRegister().isBusy()}); };
    whenAsked(ask);
    ask();
    EXPECT_TRUE(carryOut(command::Storno{1}));
    ask();
    EXPECT_EQ(busy, QList<bool>({false, false, true, true, false, false}));
}

TEST_F(Busy, CommandAfterAMistakeOrARefusal_IsCarriedOut)
{
    mistake("add NOTHING");
    refused("pay 1");
    done({"add CHIPS", "pay 1000", "open"});
}

} // namespace

} // namespace till
