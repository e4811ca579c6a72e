#include "tests/host/NotifiedListener.h"
#include "tests/support/Printers.h"

#include "host/ActivityNotifier.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

using EActivityListener::eventPositionAdded;
using EActivityListener::eventPositionStorno;

//! Three listeners of event 19, told in that order; each can be made to act while it is told.
class NotifierWhileNotifying : public testing::Test
{
protected:
    NotifierWhileNotifying()
    {
        for (auto *listener : {first.get(), second.get(), third.get()})
            notifier.subscribe(listener, {eventPositionAdded});
    }

    void publish(EActivityListener::Event code) { notifier.notify(Event(code)); }

    std::unique_ptr<NotifiedListener> make(const char *name)
    {
        return std::make_unique<NotifiedListener>(name, journal);
    }

    QStringList journal;
    ActivityNotifier notifier;
    std::unique_ptr<NotifiedListener> first = make("first");
    std::unique_ptr<NotifiedListener> second = make("second");
    std::unique_ptr<NotifiedListener> third = make("third");
};

TEST_F(NotifierWhileNotifying, NewListener_GetsTheNextEventFirst)
{
    const auto fourth = make("fourth");
    first->onNextEvent([&] { notifier.subscribe(fourth.get(), {eventPositionAdded}); });

    publish(eventPositionAdded);
    EXPECT_EQ(journal, (QStringList{"first 19", "second 19", "third 19"}));

    journal.clear();
    publish(eventPositionAdded);
    EXPECT_EQ(journal, (QStringList{"first 19", "second 19", "third 19", "fourth 19"}));
}

TEST_F(NotifierWhileNotifying, ManyNewListeners_LoseNobody)
{
    std::vector<std::unique_ptr<NotifiedListener>> more;
    first->onNextEvent([&] {
        for (int i = 0; i < 100; ++i) {
            more.push_back(make("more"));
            notifier.subscribe(more.back().get(), {eventPositionAdded});
        }
    });

    publish(eventPositionAdded);

    EXPECT_EQ(journal, (QStringList{"first 19", "second 19", "third 19"}));
}

TEST_F(NotifierWhileNotifying, KnownListenerTakingTheCode_GetsTheNextEventFirst)
{
    const auto late = make("late");
    notifier.subscribe(late.get(), {eventPositionStorno});
    first->onNextEvent([&] { notifier.subscribe(late.get(), {eventPositionAdded}); });

    publish(eventPositionAdded);
    EXPECT_EQ(journal, (QStringList{"first 19", "second 19", "third 19"}));

    journal.clear();
    publish(eventPositionAdded);
    EXPECT_EQ(journal, (QStringList{"first 19", "second 19", "third 19", "late 19"}));
}

TEST_F(NotifierWhileNotifying, LaterListenerDisabled_MissesTheEventOnItsWay)
{
    first->onNextEvent([&] { notifier.disableListener(second.get()); });

    publish(eventPositionAdded);

    EXPECT_EQ(journal, (QStringList{"first 19", "third 19"}));
}

TEST_F(NotifierWhileNotifying, LaterListenerEnabled_GetsTheEventOnItsWay)
{
    notifier.disableListener(third.get());
    first->onNextEvent([&] { notifier.enableListener(third.get()); });

    publish(eventPositionAdded);

    EXPECT_EQ(journal, (QStringList{"first 19", "second 19", "third 19"}));
}

TEST_F(NotifierWhileNotifying, EarlierListenerEnabled_WaitsForTheNextEvent)
{
    notifier.disableListener(first.get());
    second->onNextEvent([&] { notifier.enableListener(first.get()); });

    publish(eventPositionAdded);
    EXPECT_EQ(journal, (QStringList{"second 19", "third 19"}));

    journal.clear();
    publish(eventPositionAdded);
    EXPECT_EQ(journal, (QStringList{"first 19", "second 19", "third 19"}));
}

TEST_F(NotifierWhileNotifying, ListenerDestroysItself_OthersAreTold)
{
    second->onNextEvent([&] { second.reset(); });

    publish(eventPositionAdded);
    publish(eventPositionAdded);

    EXPECT_EQ(journal, (QStringList{"first 19", "second 19", "third 19", "first 19", "third 19"}));
}

TEST_F(NotifierWhileNotifying, EarlierListenerDestroyed_OthersAreToldOnce)
{
    second->onNextEvent([&] { first.reset(); });

    publish(eventPositionAdded);

    EXPECT_EQ(journal, (QStringList{"first 19", "second 19", "third 19"}));
}

TEST_F(NotifierWhileNotifying, EveryListenerDestroyed_NobodyElseIsTold)
{
    first->onNextEvent([&] {
        third.reset();
        second.reset();
        first.reset();
    });

    publish(eventPositionAdded);
    publish(eventPositionAdded);

    EXPECT_EQ(journal, QStringList{"first 19"});
}

TEST_F(NotifierWhileNotifying, SubscriptionAfterADestruction_LosesNobody)
{
    const auto fourth = make("fourth");
    second->onNextEvent([&] {
        first.reset();
        notifier.subscribe(fourth.get(), {eventPositionAdded});
    });

    publish(eventPositionAdded);
    EXPECT_EQ(journal, (QStringList{"first 19", "second 19", "third 19"}));

    journal.clear();
    publish(eventPositionAdded);
    EXPECT_EQ(journal, (QStringList{"second 19", "third 19", "fourth 19"}));
}

TEST_F(NotifierWhileNotifying, NestedEventOfTheSameCode_ReachesEverybodyTwice)
{
    first->onNextEvent([&] { publish(eventPositionAdded); });

    publish(eventPositionAdded);

    EXPECT_EQ(journal, (QStringList{"first 19", "first 19", "second 19", "third 19", "second 19",
                                    "third 19"}));
}

TEST_F(NotifierWhileNotifying, DisabledInANestedEvent_MissesTheOuterToo)
{
    notifier.subscribe(first.get(), {eventPositionStorno});
    second->onNextEvent([&] {
        first->onNextEvent([&] { notifier.disableListener(third.get()); });
        publish(eventPositionStorno);
    });

    publish(eventPositionAdded);

    EXPECT_EQ(journal, (QStringList{"first 19", "second 19", "first 21"}));
}

TEST_F(NotifierWhileNotifying, DestroyedInANestedEvent_IsPassedOverByTheOuter)
{
    notifier.subscribe(first.get(), {eventPositionStorno});
    second->onNextEvent([&] {
        first->onNextEvent([&] { third.reset(); });
        publish(eventPositionStorno);
    });

    publish(eventPositionAdded);

    EXPECT_EQ(journal, (QStringList{"first 19", "second 19", "first 21"}));
}

TEST_F(NotifierWhileNotifying, SubscribedInANestedEvent_GetsNeitherOfTheTwo)
{
    const auto fourth = make("fourth");
    notifier.subscribe(first.get(), {eventPositionStorno});
    second->onNextEvent([&] {
        first->onNextEvent([&] {
            notifier.subscribe(fourth.get(), {eventPositionAdded, eventPositionStorno});
        });
        publish(eventPositionStorno);
    });

    publish(eventPositionAdded);

    EXPECT_EQ(journal, (QStringList{"first 19", "second 19", "first 21", "third 19"}));
}

} // namespace
