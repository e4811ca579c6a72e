#include "tests/host/NotifiedListener.h"
#include "tests/support/Printers.h"

#include "host/ActivityNotifier.h"

#include <gtest/gtest.h>

#include <new>

namespace {

using EActivityListener::eventModifierApplied2;
using EActivityListener::eventPositionAdded;
using EActivityListener::eventPositionStorno;

class Notifier : public testing::Test
{
protected:
    void publish(EActivityListener::Event code) { notifier.notify(Event(code)); }

    QStringList journal;
    ActivityNotifier notifier;
    NotifiedListener first{"first", journal};
    NotifiedListener second{"second", journal};
    NotifiedListener third{"third", journal};
};

TEST_F(Notifier, NobodySubscribed_NobodyIsTold)
{
    publish(eventPositionAdded);

    EXPECT_EQ(journal, QStringList());
}

TEST_F(Notifier, CodeWithoutAName_IsDelivered)
{
    notifier.subscribe(&first, {777});

    publish(static_cast<EActivityListener::Event>(777));

    EXPECT_EQ(journal, QStringList{"first 777"});
}

TEST_F(Notifier, NoCodes_NothingIsDelivered)
{
    notifier.subscribe(&first, {});

    publish(eventPositionAdded);

    EXPECT_EQ(journal, QStringList());
}

TEST_F(Notifier, Delivery_HandsOverTheVeryEvent)
{
    struct Keeper : BaseActivityListener
    {
        Keeper()
            : BaseActivityListener(nullptr)
        {
        }
        void handleEvent(const Event &event) override { seen = &event; }
        const Event *seen = nullptr;
    } keeper;
    notifier.subscribe(&keeper, {eventPositionAdded});
    const Event event(eventPositionAdded);

    notifier.notify(event);

    EXPECT_EQ(keeper.seen, &event);
}

TEST_F(Notifier, Listeners_AreToldInOrderOfSubscription)
{
    notifier.subscribe(&third, {eventPositionAdded});
    notifier.subscribe(&first, {eventPositionAdded});
    notifier.subscribe(&second, {eventPositionAdded});

    publish(eventPositionAdded);

    EXPECT_EQ(journal, (QStringList{"third 19", "first 19", "second 19"}));
}

TEST_F(Notifier, SecondSubscription_AddsCodes)
{
    notifier.subscribe(&first, {eventPositionAdded});
    notifier.subscribe(&first, {eventPositionStorno});

    publish(eventPositionAdded);
    publish(eventPositionStorno);

    EXPECT_EQ(journal, (QStringList{"first 19", "first 21"}));
}

TEST_F(Notifier, SameSubscriptionTwice_DeliversOnce)
{
    notifier.subscribe(&first, {eventPositionAdded});
    notifier.subscribe(&first, {eventPositionAdded});

    publish(eventPositionAdded);

    EXPECT_EQ(journal, QStringList{"first 19"});
}

TEST_F(Notifier, SecondSubscription_KeepsThePlace)
{
    notifier.subscribe(&first, {eventPositionAdded});
    notifier.subscribe(&second, {eventPositionStorno});
    notifier.subscribe(&first, {eventPositionStorno});

    publish(eventPositionStorno);

    EXPECT_EQ(journal, (QStringList{"first 21", "second 21"}));
}

TEST_F(Notifier, SecondSubscription_DoesNotEnable)
{
    notifier.subscribe(&first, {eventPositionAdded});
    notifier.disableListener(&first);
    notifier.subscribe(&first, {eventPositionStorno});

    publish(eventPositionAdded);
    publish(eventPositionStorno);

    EXPECT_EQ(journal, QStringList());
}

TEST_F(Notifier, EnabledAgain_IsToldAtItsOldPlace)
{
    notifier.subscribe(&first, {eventPositionAdded});
    notifier.subscribe(&second, {eventPositionAdded});
    notifier.disableListener(&first);
    notifier.enableListener(&first);

    publish(eventPositionAdded);

    EXPECT_EQ(journal, (QStringList{"first 19", "second 19"}));
}

TEST_F(Notifier, EnabledAgain_GetsNothingOfThePause)
{
    notifier.subscribe(&first, {eventPositionAdded, eventPositionStorno});
    notifier.disableListener(&first);
    publish(eventPositionAdded);
    notifier.enableListener(&first);

    publish(eventPositionStorno);

    EXPECT_EQ(journal, QStringList{"first 21"});
}

TEST_F(Notifier, DisabledTwice_OneEnableSuffices)
{
    notifier.subscribe(&first, {eventPositionAdded});
    notifier.disableListener(&first);
    notifier.disableListener(&first);
    notifier.enableListener(&first);

    publish(eventPositionAdded);

    EXPECT_EQ(journal, QStringList{"first 19"});
}

TEST_F(Notifier, UnknownListener_CannotBeEnabledIntoTheList)
{
    notifier.disableListener(&first);
    notifier.enableListener(&first);

    publish(eventPositionAdded);

    EXPECT_EQ(journal, QStringList());
}

TEST_F(Notifier, NullListener_IsIgnoredEverywhere)
{
    notifier.subscribe(&first, {eventPositionAdded});
    notifier.subscribe(nullptr, {eventPositionAdded});
    notifier.disableListener(nullptr);
    notifier.enableListener(nullptr);

    publish(eventPositionAdded);

    EXPECT_EQ(journal, QStringList{"first 19"});
}

TEST_F(Notifier, ReservedOperations_ChangeNothing)
{
    notifier.subscribe(&first, {eventPositionAdded});
    notifier.reservedOperation1();
    notifier.reservedOperation2();

    publish(eventPositionAdded);

    EXPECT_EQ(journal, QStringList{"first 19"});
}

TEST_F(Notifier, DestroyedListener_IsForgotten)
{
    {
        NotifiedListener gone("gone", journal);
        notifier.subscribe(&gone, {eventPositionAdded});
    }
    notifier.subscribe(&first, {eventPositionAdded});

    publish(eventPositionAdded);

    EXPECT_EQ(journal, QStringList{"first 19"});
}

//! Two listeners, one after the other, at one address.
class NotifierWithReusedAddress : public Notifier
{
protected:
    NotifierWithReusedAddress()
    {
        auto *old = new (place) NotifiedListener("old", journal);
        notifier.subscribe(old, {eventPositionAdded});
        notifier.disableListener(old);
        old->~NotifiedListener();
        fresh = new (place) NotifiedListener("fresh", journal);
    }
    ~NotifierWithReusedAddress() override { fresh->~NotifiedListener(); }

    alignas(NotifiedListener) unsigned char place[sizeof(NotifiedListener)];
    NotifiedListener *fresh;
};

TEST_F(NotifierWithReusedAddress, NewListener_DoesNotInheritTheSubscription)
{
    notifier.enableListener(fresh);

    publish(eventPositionAdded);

    EXPECT_EQ(journal, QStringList());
}

TEST_F(NotifierWithReusedAddress, NewSubscription_StartsEnabled)
{
    notifier.subscribe(fresh, {eventPositionAdded});

    publish(eventPositionAdded);

    EXPECT_EQ(journal, QStringList{"fresh 19"});
}

TEST_F(Notifier, TwoNotifiers_KnowNothingOfEachOther)
{
    ActivityNotifier other;
    other.subscribe(&first, {eventPositionAdded});

    publish(eventPositionAdded);

    EXPECT_EQ(journal, QStringList());
}

} // namespace
