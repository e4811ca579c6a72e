#include "contract/Checks.h"

#include "host/Action.h"
#include "host/ActionTrigger.h"
#include "host/EContext.h"
#include "host/Event.h"
#include "host/GoodsItem.h"
#include "host/ModifiersContainer.h"
#include "host/Quantity.h"

// The names are the adapter's; the numbers are what the host acts on.

namespace contract {

namespace {

Row number(const char *name, int seen, int needed)
{
    return {
        seen == needed,
        QStringLiteral("%1 is %2 and not %3").arg(QString::fromLatin1(name)).arg(seen).arg(needed)};
}

#define NUMBER(enumerator, needed) number(#enumerator, int(enumerator), needed)

Finding eventCodes()
{
    return judge({NUMBER(EActivityListener::eventPositionAdded, 19),
                  NUMBER(EActivityListener::eventPositionStorno, 21),
                  NUMBER(EActivityListener::eventModifierApplied, 26),
                  NUMBER(EActivityListener::eventError, 29),
                  NUMBER(EActivityListener::eventModifierApplied2, 252)});
}

Finding actionTypes()
{
    return judge({NUMBER(control::ApplyModifiers, 5), NUMBER(control::AddSoftCheck, 129),
                  NUMBER(control::StornoPosition, 132), NUMBER(control::Subtotal, 133),
                  NUMBER(control::Payment, 144), NUMBER(control::RemovePosition, 202),
                  NUMBER(control::SplitPositions, 233), NUMBER(control::UnitePositions, 234)});
}

Finding contexts()
{
    return judge({NUMBER(EContext::Receipt, 6)});
}

Finding answers()
{
    return judge(
        {NUMBER(EContext::Cancel, 0), NUMBER(EContext::Error, 1), NUMBER(EContext::Continue, 2)});
}

Finding triggerOrders()
{
    return judge({NUMBER(ActionTrigger::After, 0), NUMBER(ActionTrigger::Before, 1)});
}

Finding triggerPriorities()
{
    return judge({NUMBER(ActionTrigger::High, 1), NUMBER(ActionTrigger::Normal, 3),
                  NUMBER(ActionTrigger::Low, 5)});
}

Finding triggerResults()
{
    return judge({NUMBER(ActionTrigger::DefaultResult, 0)});
}

Finding modifierTypes()
{
    return judge({NUMBER(modifiers::Quantity, 3)});
}

Finding quantityModes()
{
    return judge({NUMBER(quantModeRecalculated, 7)});
}

Finding taraModes()
{
    return judge({NUMBER(Tmc::Tara, 1), NUMBER(Tmc::PackagingGoods, 2)});
}

#undef NUMBER

} // namespace

Checks numberChecks()
{
    return {
        {"Numbers.EventCodes", "events 19, 21, 26, 29 and 252 under their names",
         "what happens to a position is not noticed, or taken for something else", eventCodes},
        {"Numbers.ActionTypes", "actions 5, 129, 132, 133, 144, 202, 233 and 234 under their names",
         "a split is handled as a union, or a removal asked for as something else", actionTypes},
        {"Numbers.Context", "context 6 is the receipt", "no trigger is ever called", contexts},
        {"Numbers.Answers", "a trigger answers 0 to cancel, 1 to refuse, 2 to go on",
         "what the plugin refuses is carried out, and what it lets pass is not", answers},
        {"Numbers.TriggerOrder", "0 is after the action and 1 before it",
         "a quantity is refused when it has been applied already", triggerOrders},
        {"Numbers.TriggerPriority", "priorities 1, 3 and 5 under their names",
         "empty tara is asked about after other triggers have let the payment pass",
         triggerPriorities},
        {"Numbers.TriggerResult", "the result that is handed over with a trigger is 0",
         "the host takes the trigger for another kind", triggerResults},
        {"Numbers.QuantityModifier", "modifier 3 is the quantity",
         "a new quantity is neither seen nor set", modifierTypes},
        {"Numbers.QuantityMode", "mode 7 is a recalculated quantity",
         "the host takes the new amount for one of another kind", quantityModes},
        {"Numbers.TaraMode", "tara mode 1 is tara, 2 is goods poured into tara",
         "bottles are taken for what is poured, and the other way round", taraModes},
    };
}

} // namespace contract
