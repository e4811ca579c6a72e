// What a cashier can do: each command refuses what is wrong with it, and leaves the rest to its
// action.

#include "till/register/Register.h"

#include "host/ActionArguments.h"
#include "host/Quantity.h"
#include "till/language/TillMessages.h"
#include "till/receipt/Limits.h"

#include <QtCore/QSet>

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

QString number(int posnum)
{
    return QString::number(posnum);
}

} // namespace

Outcome Register::open(int type)
{
    if (isInHand())
        return Outcome::mistake("a receipt is open already: pay or cancel it first");
    takeUp(QSharedPointer<Receipt>::create(type));
    return perform(control::Action(control::OpenReceipt, {{"receiptType", type}}));
}

Outcome Register::add(const QString &code, double count)
{
    if (!isInHand())
        return Outcome::mistake("no receipt is open");
    const auto article = m_catalogue.find(code);
    if (!article)
        return Outcome::mistake("no article \"" + code + "\" in the catalogue");
    if (count <= 0)
        return Outcome::mistake("the quantity must be above 0");
    if (const QString fault = m_receipt->limitFault(article->data, count); !fault.isEmpty())
        return Outcome::mistake(fault);
    return perform(control::Action(control::AddPosition,
                                   {{argument::article, code}, {argument::count, count}}));
}

Outcome Register::changeCount(int posnum, double count)
{
    if (const Outcome check = checkPosition(posnum); !check)
        return check;
    if (count < 0)
        return Outcome::mistake("the quantity must not be below 0");
    const auto line = m_receipt->line(posnum);
    const QString fault = m_receipt->limitFault(line->article(), count, line.get());
    if (!fault.isEmpty())
        return Outcome::mistake(fault);
    const double base = count * line->article().pack;
    m_services.modifiers().set(modifiers::Quantity,
                               QVariant::fromValue(Quantity(base, quantModeNone)));
    return perform(onPosition(control::ApplyModifiers, posnum));
}

Outcome Register::storno(int posnum)
{
    if (const Outcome check = checkPosition(posnum); !check)
        return check;
    return perform(onPosition(control::StornoPosition, posnum));
}

Outcome Register::split(int posnum, const QList<double> &parts)
{
    if (const Outcome check = checkPosition(posnum); !check)
        return check;
    double left = m_receipt->line(posnum)->getCquant();
    for (const double part : parts) {
        if (part <= 0)
            return Outcome::mistake("each part must be above 0");
        left -= part;
    }
    if (toText(left).startsWith(QLatin1Char('-')))
        return Outcome::mistake("position " + number(posnum) + " holds less than the parts");
    const control::Action action = onPosition(control::SplitPositions, posnum);
    action.setArgument(argument::parts, toVariants(parts));
    return perform(action);
}

Outcome Register::unite(const QList<int> &posnums)
{
    QSet<int> seen;
    double count = 0.0;
    for (const int posnum : posnums) {
        if (const Outcome check = checkPosition(posnum); !check)
            return check;
        if (seen.contains(posnum))
            return Outcome::mistake("position " + number(posnum) + " is named twice");
        seen.insert(posnum);
        if (!(m_receipt->line(posnum)->article() == m_receipt->line(posnums[0])->article()))
            return Outcome::mistake("positions " + number(posnums[0]) + " and " + number(posnum)
                                    + " are of different articles");
        count += m_receipt->line(posnum)->getCquant();
    }
    if (const QString fault = countFault(count); !fault.isEmpty())
        return Outcome::mistake(fault);
    return perform(
        control::Action(control::UnitePositions, {{argument::positions, toVariants(posnums)}}));
}

Outcome Register::attachOrder(const QString &orderNumber)
{
    if (!isInHand())
        return Outcome::mistake("no receipt is open");
    if (m_receipt->getOrder())
        return Outcome::mistake("the receipt has order " + m_receipt->getOrder()->number
                                + " already");
    return perform(control::Action(control::AddSoftCheck, {{argument::order, orderNumber}}));
}

Outcome Register::addSoftCheck(const QString &softCheckNumber)
{
    if (!isInHand())
        return Outcome::mistake("no receipt is open");
    if (m_receipt->softChecks().contains(softCheckNumber))
        return Outcome::mistake("the receipt has soft-check " + softCheckNumber + " already");
    return perform(
        control::Action(control::AddSoftCheck, {{argument::softCheck, softCheckNumber}}));
}

Outcome Register::subtotal()
{
    if (!isInHand())
        return Outcome::mistake("no receipt is open");
    if (m_receipt->getPositionList().isEmpty())
        return refuse(messages::tillReceiptEmpty());
    return perform(control::Action(control::Subtotal, {}));
}

Outcome Register::pay(std::optional<Kopecks> tendered)
{
    if (!isInHand())
        return Outcome::mistake("no receipt is open");
    if (m_receipt->getPositionList().isEmpty())
        return refuse(messages::tillReceiptEmpty());
    m_journal.begin();
    EContext::Result result = EContext::Continue;
    if (m_receipt->state() != ReceiptState::Subtotal)
        result = run(control::Action(control::Payment, {}));
    const Kopecks due = m_receipt->total();
    const bool isEnough = !tendered || *tendered >= due;
    if (result == EContext::Continue && isEnough)
        result =
            run(control::Action(control::CloseReceipt, {{"tendered", tendered.value_or(due)}}));
    const bool isShort = result == EContext::Continue && !isEnough;
    if (isShort)
        show(messages::tillNotEnoughMoney());
    // Both actions are one command: they are stored together, so that no end comes between them.
    const Outcome outcome = keep(result);
    return outcome && isShort ? Outcome::refused(messages::tillNotEnoughMoney().key()) : outcome;
}

Outcome Register::cancel()
{
    if (!isInHand())
        return Outcome::mistake("no receipt is open");
    m_journal.begin();
    if (!ask(messages::tillCancelReceipt(), messages::tillYes(), messages::tillNo()))
        return keep(EContext::Cancel);
    return keep(run(control::Action(control::CancelReceipt, {})));
}

Outcome Register::checkPosition(int posnum) const
{
    if (!isInHand())
        return Outcome::mistake("no receipt is open");
    if (!m_receipt->line(posnum))
        return Outcome::mistake("the receipt has no position " + number(posnum));
    if (!m_receipt->getPositionByPosnum(posnum))
        return Outcome::mistake("position " + number(posnum) + " is stornoed");
    return Outcome::done();
}

} // namespace till
