#include "contract/Checks.h"

#include "host/Action.h"
#include "host/ActionArguments.h"
#include "host/Event.h"
#include "host/Quantity.h"
#include "host/Session.h"

#include <QtCore/QList>

// What carries values between host and plugin: events, actions, modifiers.

namespace contract {

namespace {

QString text(const QVariant &value)
{
    return value.isValid() ? value.toString() : QStringLiteral("nothing");
}

Finding eventValue()
{
    Event event(EActivityListener::eventError);
    event.addArgument(QStringLiteral("someKey"), 5);
    const QVariant stored = event.value(QStringLiteral("someKey"), 7);
    return judge({{stored == QVariant(5), QStringLiteral("%1 under the key").arg(text(stored))}});
}

Finding eventDefault()
{
    const Event event(EActivityListener::eventError);
    const QVariant absent = event.value(QStringLiteral("someKey"), 7);
    const QVariant invalid = event.value(QStringLiteral("someKey"), QVariant());
    return judge(
        {{absent == QVariant(7), QStringLiteral("%1 and not the default").arg(text(absent))},
         {!invalid.isValid(), QStringLiteral("%1 and not nothing").arg(text(invalid))}});
}

//! Written into, not copied: how events copy is another question.
void write(Event &event, int argument)
{
    event.addArgument(QStringLiteral("k"), argument);
}

Finding eventEquality()
{
    Event one(EActivityListener::eventError);
    Event same(EActivityListener::eventError);
    Event differs(EActivityListener::eventError);
    write(one, 1);
    write(same, 1);
    write(differs, 2);
    return judge({{one == same, QStringLiteral("equal events differ")},
                  {!(one == differs), QStringLiteral("events of other arguments are equal")}});
}

control::Action emptyAction()
{
    return control::Action(control::AddSoftCheck, {});
}

Finding sharedArguments()
{
    const control::Action action = emptyAction();
    control::args::Core(action).setPositionNumber(3);
    const int seen = control::args::Core(action).positionNumber();
    return judge({{seen == 3, QStringLiteral("position %1 after 3 was set").arg(seen)}});
}

Finding sharedByCopies()
{
    const control::Action action = emptyAction();
    const QList<control::Action> copies = {action};
    control::args::Core(action).setPositionNumber(3);
    const int needed = control::args::Core(action).positionNumber();
    const int seen = control::args::Core(copies.first()).positionNumber();
    return judge(
        {{seen == needed,
          QStringLiteral("position %1 in a copy and %2 in the action").arg(seen).arg(needed)}});
}

Finding separateActions()
{
    const control::Action one = emptyAction();
    const control::Action two = emptyAction();
    control::args::Core(one).setPositionNumber(3);
    const int before = control::args::Core(one).positionNumber();
    control::args::Core(two).setPositionNumber(4);
    const int after = control::args::Core(one).positionNumber();
    return judge(
        {{after == before, QStringLiteral("position %1 became %2 when another action was set")
                               .arg(before)
                               .arg(after)}});
}

Finding exactKeys()
{
    const control::Action action(control::SplitPositions,
                                 {{QStringLiteral("someKey"), 1}, {QStringLiteral("somekey"), 2}});
    const QVariant exact = action.getArguments().value(QStringLiteral("someKey"));
    const QVariant lower = action.getArguments().value(QStringLiteral("somekey"));
    return judge(
        {{exact == QVariant(1), QStringLiteral("%1 under the exact key").arg(text(exact))},
         {lower == QVariant(2), QStringLiteral("%1 under the lower-case key").arg(text(lower))}});
}

ModifiersContainer &pending()
{
    return *Singleton<Session>::instance()->getModifiers();
}

void setQuantity()
{
    pending().set(modifiers::Quantity, QVariant::fromValue(Quantity(2.5, quantModeRecalculated)));
}

Finding quantityIsSet()
{
    pending().clearAll();
    setQuantity();
    return judge({{pending().isSet(modifiers::Quantity), QStringLiteral("isSet says no")}});
}

Finding quantityIsCleared()
{
    setQuantity();
    pending().clearAll();
    return judge({{!pending().isSet(modifiers::Quantity), QStringLiteral("isSet says yes")}});
}

} // namespace

Checks carrierChecks()
{
    return {
        {"Event.Value", "an event gives what was stored under a key",
         "the position of an event is not found", eventValue},
        {"Event.Default", "an event gives the default where nothing was stored",
         "an event without a position is taken for one about some position", eventDefault},
        {"Event.Equality", "events are equal when codes and arguments are",
         "queued events are mixed up", eventEquality},
        {"Action.Shared", "accessors over one const action share its arguments",
         "the host is asked to change position 0", sharedArguments},
        {"Action.SharedByCopies", "copies of an action share its arguments",
         "what the host adds to an action is not seen by the plugin", sharedByCopies},
        {"Action.Separate", "actions that were made apart do not share their arguments",
         "a change meant for one position is made to another", separateActions},
        {"Action.ExactKeys", "keys that differ in case are two keys",
         "pieces of a split are read from the wrong argument", exactKeys},
        {"Modifiers.Set", "a quantity that was set is seen through isSet",
         "shared tara is not guarded against a new quantity", quantityIsSet},
        {"Modifiers.Cleared", "after clearAll no quantity is set",
         "a refused quantity is applied to the next position", quantityIsCleared},
    };
}

} // namespace contract
