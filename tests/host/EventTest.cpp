#include "tests/host/Position.h"
#include "tests/support/Printers.h"

#include "host/Event.h"
#include "host/Tr.h"

#include <gtest/gtest.h>

namespace {

using EActivityListener::eventError;
using EActivityListener::eventPositionAdded;
using EActivityListener::eventPositionStorno;

TEST(EventValue, NewEvent_HasItsCodeAndNoArguments)
{
    const Event event(eventError);

    EXPECT_EQ(event.getCode(), eventError);
    EXPECT_TRUE(event.arguments().isEmpty());
}

TEST(EventValue, DefaultEvent_HasNoCode)
{
    EXPECT_EQ(Event().getCode(), EActivityListener::eventNone);
}

TEST(EventValue, UnnamedCode_IsKept)
{
    EXPECT_EQ(Event(static_cast<EActivityListener::Event>(70000)).getCode(), 70000);
}

TEST(EventValue, InvalidArgument_IsPresent)
{
    Event event(eventError);
    event.addArgument("forCustomer", QVariant());

    EXPECT_FALSE(event.value("forCustomer", true).isValid());
    EXPECT_TRUE(event.arguments().contains("forCustomer"));
}

TEST(EventValue, KeyInOtherLetters_IsAnotherKey)
{
    Event event(eventError);
    event.addArgument("forCustomer", false);

    EXPECT_EQ(event.value("forcustomer", true), true);
}

TEST(EventValue, ArgumentAddedAgain_IsReplaced)
{
    Event event(eventError);
    event.addArgument("forCustomer", false);
    event.addArgument("forCustomer", true);

    EXPECT_EQ(event.value("forCustomer", false), true);
    EXPECT_EQ(event.arguments().size(), 1);
}

TEST(EventValue, Copy_IsIndependent)
{
    Event event(eventError);
    const Event copy = event;
    event.addArgument("a", 1);

    EXPECT_TRUE(copy.arguments().isEmpty());
}

TEST(EventValue, Position_IsTheVeryOne)
{
    const GoodsItemPtr item = position(3);
    Event event(eventPositionAdded);
    event.addArgument("position", QVariant::fromValue(item));

    EXPECT_EQ(event.value("position", QVariant()).value<GoodsItemPtr>(), item);
}

TEST(EventValue, Message_IsReadBack)
{
    const tr::Tr message("key", "Текст");
    Event event(eventError);
    event.addArgument("errorText", message);

    EXPECT_EQ(event.value("errorText", QVariant()).value<tr::Tr>(), message);
}

// Expected equal exactly when the rows say so; `!=` is asked too, and in both directions.
void expectEquality(const Event &one, const Event &other, bool equal)
{
    EXPECT_EQ(one == other, equal);
    EXPECT_EQ(other == one, equal);
    EXPECT_EQ(one != other, !equal);
    EXPECT_EQ(other != one, !equal);
}

TEST(EventEquality, OrderOfAdding_DoesNotMatter)
{
    expectEquality(Event(eventError).addArgument("a", 1).addArgument("b", 2),
                   Event(eventError).addArgument("b", 2).addArgument("a", 1), true);
}

TEST(EventEquality, OtherCode_Differs)
{
    expectEquality(Event(eventPositionAdded), Event(eventPositionStorno), false);
}

TEST(EventEquality, OtherKey_Differs)
{
    expectEquality(Event(eventError).addArgument("a", 1), Event(eventError).addArgument("b", 1),
                   false);
}

TEST(EventEquality, OneArgumentMore_Differs)
{
    expectEquality(Event(eventError), Event(eventError).addArgument("a", 1), false);
}

TEST(EventEquality, SamePosition_IsEqual)
{
    const QVariant item = QVariant::fromValue(position(1));
    expectEquality(Event(eventPositionAdded).addArgument("position", item),
                   Event(eventPositionAdded).addArgument("position", item), true);
}

TEST(EventEquality, OtherPositionOfTheSameNumber_Differs)
{
    expectEquality(
        Event(eventPositionAdded).addArgument("position", QVariant::fromValue(position(1))),
        Event(eventPositionAdded).addArgument("position", QVariant::fromValue(position(1))), false);
}

TEST(EventEquality, Messages_AreComparedByContent)
{
    expectEquality(Event(eventError).addArgument("errorText", tr::Tr("k", "t")),
                   Event(eventError).addArgument("errorText", tr::Tr("k", "t")), true);
    expectEquality(Event(eventError).addArgument("errorText", tr::Tr("k", "t")),
                   Event(eventError).addArgument("errorText", tr::Tr("k", "u")), false);
}

} // namespace
