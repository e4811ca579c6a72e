// What a cashier can do: each command leaves what is its own to its action.

#include "till/register/Register.h"

#include "host/ActionArguments.h"
#include "host/Quantity.h"
#include "till/language/TillMessages.h"

namespace till {

namespace {

control::Action onPosition(control::EActionType type, int posnum)
{
    const control::Action action(type, {});
    control::args::Core(action).setPositionNumber(posnum);
    return action;
}

template <typename Value>
QVariantList toVariants(const QList<Value> &values)
{
    QVariantList list;
    for (const Value &value : values)
        list.append(value);
    return list;
}

} // namespace

Outcome Register::execute(const command::Open &open)
{
    takeUp(QSharedPointer<Receipt>::create(open.type));
    return perform(control::Action(control::OpenReceipt, {{"receiptType", open.type}}));
}

Outcome Register::execute(const command::Add &add)
{
    return perform(control::Action(
        control::AddPosition, {{argument::article, add.article}, {argument::count, add.count}}));
}

Outcome Register::execute(const command::ChangeCount &change)
{
    const double base = change.count * m_receipt->line(change.posnum)->article().pack;
    m_services.modifiers().set(modifiers::Quantity,
                               QVariant::fromValue(Quantity(base, quantModeNone)));
    const control::Action action = onPosition(control::ApplyModifiers, change.posnum);
    action.setArgument(argument::count, change.count);
    return perform(action);
}

Outcome Register::execute(const command::Storno &storno)
{
    return perform(onPosition(control::StornoPosition, storno.posnum));
}

Outcome Register::execute(const command::Split &split)
{
    const control::Action action = onPosition(control::SplitPositions, split.posnum);
    action.setArgument(argument::parts, toVariants(split.parts));
    return perform(action);
}

Outcome Register::execute(const command::Unite &unite)
{
    return perform(control::Action(control::UnitePositions,
                                   {{argument::positions, toVariants(unite.posnums)}}));
}

Outcome Register::execute(const command::AttachOrder &order)
{
    return perform(control::Action(control::AddSoftCheck, {{argument::order, order.number}}));
}

Outcome Register::execute(const command::AddSoftCheck &softCheck)
{
    return perform(
        control::Action(control::AddSoftCheck, {{argument::softCheck, softCheck.number}}));
}

Outcome Register::execute(const command::Subtotal &)
{
    return perform(control::Action(control::Subtotal, {}));
}

Outcome Register::execute(const command::Pay &pay)
{
    EContext::Result result = EContext::Continue;
    if (m_receipt->state() != ReceiptState::Subtotal)
        result = run(control::Action(control::Payment, {}));
    const Kopecks due = m_receipt->total();
    const Kopecks tendered = pay.tendered.value_or(due);
    if (result == EContext::Continue && tendered < due)
        return refuseShort(due - tendered);
    if (result == EContext::Continue)
        result = run(control::Action(control::CloseReceipt, {{"tendered", tendered}}));
    // Both actions are one command: they are stored together, so that no end comes between them.
    Outcome outcome = keep(result);
    if (outcome && pay.tendered)
        outcome.change = tendered - due;
    return outcome;
}

Outcome Register::refuseShort(Kopecks missing)
{
    Outcome outcome = refuse(messages::tillNotEnoughMoney());
    if (outcome.kind != Outcome::Failed)
        outcome.missing = missing;
    return outcome;
}

Outcome Register::execute(const command::Cancel &)
{
    if (!ask({messages::tillCancelReceipt(), messages::tillYes(), messages::tillNo()}))
        return keep(EContext::Cancel);
    return perform(control::Action(control::CancelReceipt, {}));
}

} // namespace till
