#include "contract/Checks.h"
#include "contract/Stage.h"

#include "host/ActionArguments.h"
#include "host/Session.h"

namespace contract {

namespace {

bool isQuantitySet()
{
    return Singleton<Session>::instance()->getModifiers()->isSet(modifiers::Quantity);
}

//! What a trigger before a change of the tara saw.
struct Guarded
{
    int tara = 0;
    int calls = 0;
    int posnum = 0;
    double count = 0.0;
    bool isSet = false;
    bool isDone = false;
};

Guarded guardChange(Stage &stage, EContext::Result answer)
{
    Guarded seen;
    stage.probe.watch(control::ApplyModifiers, ActionTrigger::Before,
                      [&](const control::Action &action) {
                          ++seen.calls;
                          seen.posnum = control::args::Core(action).positionNumber();
                          seen.isSet = isQuantitySet();
                          seen.count = stage.position(seen.tara)->getCquant();
                          return answer;
                      });
    stage.begin();
    seen.tara = stage.tara();
    seen.isDone = stage.driver->change(seen.tara, 3.0);
    return seen;
}

Finding calledBefore(Stage &stage)
{
    const Guarded seen = guardChange(stage, EContext::Continue);
    return judge({{seen.calls == 1, QStringLiteral("called %1 times").arg(seen.calls)},
                  {seen.posnum == seen.tara,
                   QStringLiteral("about position %1 and not %2").arg(seen.posnum).arg(seen.tara)},
                  amount("the count when it was called", seen.count, 2.0)});
}

Finding quantityIsSeen(Stage &stage)
{
    const Guarded seen = guardChange(stage, EContext::Continue);
    return judge({flag(seen.isSet, "isSet(Quantity) says no")});
}

Finding refusalStops(Stage &stage)
{
    const Guarded seen = guardChange(stage, EContext::Error);
    if (seen.calls == 0)
        throw NotOffered{"change"};
    return judge({flag(!seen.isDone, "the change was made nevertheless"),
                  amount("the count afterwards", stage.position(seen.tara)->getCquant(), 2.0)});
}

Finding modifiersAreCleared(Stage &stage)
{
    stage.begin();
    const int tara = stage.tara();
    stage.driver->change(tara, 3.0);
    return judge({flag(!isQuantitySet(), "the quantity is still set after the change")});
}

Finding byPriority(Stage &stage)
{
    QString called;
    const auto note = [&called](QLatin1Char letter) {
        return [&called, letter](const control::Action &) {
            called.append(letter);
            return EContext::Continue;
        };
    };
    const auto type = control::ApplyModifiers;
    const auto before = ActionTrigger::Before;
    stage.probe.watch(type, before, note(QLatin1Char('5')), ActionTrigger::Low);
    stage.probe.watch(type, before, note(QLatin1Char('1')), ActionTrigger::High);
    stage.probe.watch(type, before, note(QLatin1Char('3')), ActionTrigger::Normal);
    stage.begin();
    stage.driver->change(stage.tara(), 3.0);
    return judge({{called == QLatin1String("135"),
                   QStringLiteral("called in the order \"%1\"").arg(called)}});
}

//! How often a trigger at the subtotal was called, and whether the subtotal was reached.
struct Subtotal
{
    int calls = 0;
    bool isReached = false;
};

Subtotal goToSubtotal(Stage &stage, EContext::Result answer)
{
    Subtotal seen;
    stage.probe.watch(control::Subtotal, ActionTrigger::Before, [&](const control::Action &) {
        ++seen.calls;
        return answer;
    });
    stage.begin();
    stage.tara();
    seen.isReached = stage.driver->subtotal();
    return seen;
}

Finding subtotalIsGuarded(Stage &stage)
{
    const Subtotal seen = goToSubtotal(stage, EContext::Continue);
    return judge({{seen.calls == 1, QStringLiteral("called %1 times").arg(seen.calls)}});
}

Finding subtotalIsCancelled(Stage &stage)
{
    const Subtotal seen = goToSubtotal(stage, EContext::Cancel);
    if (seen.calls == 0)
        throw NotOffered{"subtotal"};
    return judge({flag(!seen.isReached, "the subtotal was reached nevertheless")});
}

Finding softCheckIsTold(Stage &stage)
{
    int calls = 0;
    stage.probe.watch(control::AddSoftCheck, ActionTrigger::After, [&](const control::Action &) {
        ++calls;
        return EContext::Continue;
    });
    stage.begin();
    stage.driver->addSoftCheck();
    return judge({{calls == 1, QStringLiteral("called %1 times").arg(calls)}});
}

} // namespace

Checks triggerChecks()
{
    return {
        {"Triggers.Before", "a trigger is called before its action, with the position's number",
         "shared tara is not guarded against a new quantity", onStage<calledBefore>},
        {"Triggers.QuantityIsSet", "the new quantity is among the modifiers before action 5",
         "shared tara is not guarded against a new quantity", onStage<quantityIsSeen>},
        {"Triggers.RefusalStops", "an action that a trigger refuses is not carried out",
         "the quantity of shared tara is changed after all", onStage<refusalStops>},
        {"Triggers.ModifiersAreCleared", "the host clears the modifiers after an action",
         "a quantity is applied to the next position, too", onStage<modifiersAreCleared>},
        {"Triggers.Priority", "of an action's triggers the smaller priority number is called first",
         "empty tara is asked about after other triggers have let the payment pass",
         onStage<byPriority>},
        {"Triggers.Subtotal", "a trigger before action 133 is called at subtotal",
         "empty tara is sold without a question", onStage<subtotalIsGuarded>},
        {"Triggers.SubtotalIsCancelled", "a subtotal that a trigger cancels is not reached",
         "empty tara is sold against the cashier's word", onStage<subtotalIsCancelled>},
        {"Triggers.SoftCheck", "a trigger after action 129 is called for a soft-check",
         "the plugin goes on changing a receipt with a soft-check", onStage<softCheckIsTold>},
    };
}

} // namespace contract
