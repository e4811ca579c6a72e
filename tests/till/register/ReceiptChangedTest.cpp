#include "host/Action.h"
#include "host/ActionArguments.h"
#include "host/ActionQueueController.h"
#include "host/Singleton.h"
#include "tests/till/support/TestFront.h"
#include "tests/till/support/TillFixture.h"

#include <optional>

// A front is told when there may be something else to draw, once a command.

namespace till {

namespace {

class ReceiptChanged : public TillTest
{
protected:
    ReceiptChanged()
    {
        front.asked = [](const Question &) { return true; };
    }

    //! How often it is told of \a step.
    int told(const std::function<void()> &step)
    {
        int count = 0;
        const auto seen = till->onReceiptChanged([&] { ++count; });
        step();
        return count;
    }
    int told(const Command &command)
    {
        return told([&] { till->cashRegister().carryOut(command); });
    }

    TestFront front;
    const InstalledFront installed{till->front(), front};
};

TEST_F(ReceiptChanged, IsToldOnceACommand_HoweverManyActionsItTakes)
{
    EXPECT_EQ(told(command::Open{}), 1);
    EXPECT_EQ(told(command::Add{"CAN3"}), 1);
    EXPECT_EQ(told(command::Add{"BEER", 2}), 1);
    EXPECT_EQ(told(command::Storno{1}), 1); // the goods go with their tara
    EXPECT_EQ(told(command::Add{"CHIPS"}), 1);
    EXPECT_EQ(told(command::Pay{}), 1); // two actions
}

TEST_F(ReceiptChanged, IsNotToldOfAMistake)
{
    EXPECT_EQ(told(command::Add{"CHIPS"}), 0);
    done({"open"});
    EXPECT_EQ(told(command::Open{}), 0);
    EXPECT_EQ(told(command::Add{"NOTHING"}), 0);
    EXPECT_EQ(told(command::Storno{7}), 0);
}

TEST_F(ReceiptChanged, IsToldOfWhatAPluginDoesOutsideACommand)
{
    done({"open", "add CHIPS"});
    const control::Action storno(control::StornoPosition, {});
    control::args::Core(storno).setPositionNumber(1);
    EXPECT_EQ(told([&] { Singleton<ActionQueueController>::instance()->runAction(storno); }), 1);
    EXPECT_TRUE(receipt()->getPositionList().isEmpty());
}

TEST_F(ReceiptChanged, IsToldWhenTheTillGoesOffAndTakesTheReceiptUpAgain)
{
    done({"open"});
    QList<bool> hasReceipt;
    const auto seen = till->onReceiptChanged(
        [&] { hasReceipt.append(till->isOn() && till->cashRegister().receipt()); });
    must(till->stop());
    EXPECT_EQ(hasReceipt, QList<bool>({false}));
    must(till->start());
    EXPECT_EQ(hasReceipt, QList<bool>({false, true}));
    must(till->set("A:b", "c"));
    EXPECT_EQ(hasReceipt, QList<bool>({false, true, false, true}));
}

TEST_F(ReceiptChanged, Observer_SeesTheReceiptStoredAndMayGiveNoCommand)
{
    std::optional<qsizetype> positions;
    std::optional<Outcome> outcome;
    done({"open"});
    const auto seen = till->onReceiptChanged([&] {
        positions = receipt()->getPositionList().size();
        outcome = till->cashRegister().carryOut(command::Cancel{});
    });
    done({"add CHIPS"});
    EXPECT_EQ(positions, 1);
    EXPECT_EQ(outcome->reason.key(), QString("tillBusy"));
}

} // namespace

} // namespace till
