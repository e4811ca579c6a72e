#include "host/ActionArguments.h"
#include "host/Event.h"
#include "tests/support/InstalledServices.h"
#include "tests/till/support/TillFixture.h"

// What other registers got wrong when their host was slow or reported twice, in the till, whose own
// host is neither: here its action queue carries actions out later, and an event comes again.

namespace till {

namespace {

//! Says that every action is done, and does it when told to.
class LateQueue : public ActionQueueController
{
public:
    int runAction(const control::Action &action) override
    {
        m_asked.append({action, pending()->value(modifiers::Quantity)});
        return EContext::Continue;
    }

    qsizetype asked() const { return m_asked.size(); }

    //! Carries out what was asked for, in order, with the quantity that was asked for.
    void deliver()
    {
        for (const Asked &asked : std::exchange(m_asked, {})) {
            if (asked.quantity.isValid())
                pending()->set(modifiers::Quantity, asked.quantity);
            EXPECT_EQ(m_inTime.before().runAction(asked.action), EContext::Continue);
        }
    }

private:
    struct Asked
    {
        control::Action action;
        QVariant quantity;
    };

    static ModifiersContainer *pending() { return Singleton<Session>::instance()->getModifiers(); }

    const Installed<ActionQueueController> m_inTime{this};
    QList<Asked> m_asked;
};

class LateTill : public TillTest
{
protected:
    //! The host reports once more what happened to a position.
    static void reportAgain(EActivityListener::Event code, const GoodsItemPtr &position)
    {
        Singleton<ActivityNotifier>::instance()->notify(
            Event(code).addArgument("position", QVariant::fromValue(position)));
    }
};

// The bottle has grown and its beer has not followed yet: it is partly filled for the time being,
// so that it cannot change again.
TEST_F(LateTill, QuantityChangedThreeTimesBeforeTheFirstAnswer_IsFollowedOnce)
{
    done({"open", "add PET15", "add BEER 1.5"});
    {
        LateQueue queue;
        done({"qty 1 2"});
        refused("qty 1 3");
        refused("qty 1 4");
        EXPECT_EQ(queue.asked(), 1);
        expect({"tara 1 capacity 3 free 1.5", "goods 2 in 1 1.5", "position 2 quantity 1.5"});
        queue.deliver();
    }
    expect({"tara 1 capacity 3 free 0", "goods 2 in 1 3", "position 2 quantity 3", "records 1 1"});
    done({"qty 1 3"});
    expect({"tara 1 capacity 4.5 free 0", "goods 2 in 1 4.5", "position 2 quantity 4.5"});
}

TEST_F(LateTill, GoodsChangedThreeTimesBeforeTheFirstAnswer_EndAsTheAnswerSays)
{
    done({"open", "add PET15", "add BEER 1.5"});
    LateQueue queue;
    done({"qty 1 2", "qty 2 2", "qty 2 1", "qty 2 2.5"});
    expect({"tara 1 capacity 3 free 0.5", "goods 2 in 1 2.5"});
    queue.deliver();
    expect({"tara 1 capacity 3 free 0", "goods 2 in 1 3", "position 2 quantity 3", "records 1 1"});
}

TEST_F(LateTill, GoodsStornoedTwice_GiveTheirCapacityBackOnce)
{
    done({"open", "add CAN3", "add BEER 2", "add DARK 0.5"});
    const GoodsItemPtr beer = receipt()->line(2);
    done({"answer yes", "storno 2"});
    reportAgain(EActivityListener::eventPositionStorno, beer);
    expect({"tara 1 capacity 3 free 2.5", "goods 2 none", "goods 3 in 1 0.5", "records 1 1"});

    done({"restart"});
    reportAgain(EActivityListener::eventPositionStorno, beer);
    expect({"tara 1 capacity 3 free 2.5", "goods 2 none", "goods 3 in 1 0.5", "records 1 1"});
}

} // namespace

} // namespace till
