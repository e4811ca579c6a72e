// What a cashier can do: each command refuses what is wrong with it, and leaves the rest to its
// action.

#include "till/register/Register.h"

#include "host/ActionArguments.h"
#include "host/Quantity.h"
#include "till/language/Nearest.h"
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

//! Of a code that no article has.
Outcome noArticle(const QString &code, const Catalogue &catalogue)
{
    QStringList codes;
    const auto articles = catalogue.articles();
    for (const auto &article : articles)
        codes.append(article->data.code);
    const QString meant = nearest(code, codes);
    return meant.isEmpty() ? Outcome::mistake(messages::tillNoArticle(), {code})
                           : Outcome::mistake(messages::tillNoArticleButNear(), {code, meant});
}

//! Of a command that would leave \a count in a position, and so exceed a limit.
Outcome aboveLimit(double count)
{
    if (!isCount(count))
        return Outcome::mistake(messages::tillCountTooGreat(), {toText(greatestCount)});
    return Outcome::mistake(messages::tillSumTooGreat(), {toText(greatestSum)});
}

} // namespace

Outcome Register::execute(const command::Open &open)
{
    if (hasUnfinishedReceipt())
        return Outcome::mistake(messages::tillReceiptIsOpen());
    takeUp(QSharedPointer<Receipt>::create(open.type));
    return perform(control::Action(control::OpenReceipt, {{"receiptType", open.type}}));
}

Outcome Register::execute(const command::Add &add)
{
    if (!hasUnfinishedReceipt())
        return Outcome::mistake(messages::tillNoReceipt());
    const auto article = m_catalogue.find(add.article);
    if (!article)
        return noArticle(add.article, m_catalogue);
    if (add.count <= 0)
        return Outcome::mistake(messages::tillCountTooSmall());
    if (!m_receipt->hasPlaceFor(article->data, add.count))
        return aboveLimit(add.count);
    return perform(control::Action(
        control::AddPosition, {{argument::article, add.article}, {argument::count, add.count}}));
}

Outcome Register::execute(const command::ChangeCount &change)
{
    if (const Outcome check = checkPosition(change.posnum); !check)
        return check;
    if (change.count < 0)
        return Outcome::mistake(messages::tillCountNegative());
    const auto line = m_receipt->line(change.posnum);
    if (!m_receipt->hasPlaceFor(line->article(), change.count, line.get()))
        return aboveLimit(change.count);
    const double base = change.count * line->article().pack;
    m_services.modifiers().set(modifiers::Quantity,
                               QVariant::fromValue(Quantity(base, quantModeNone)));
    const control::Action action = onPosition(control::ApplyModifiers, change.posnum);
    action.setArgument(argument::count, change.count);
    return perform(action);
}

Outcome Register::execute(const command::Storno &storno)
{
    if (const Outcome check = checkPosition(storno.posnum); !check)
        return check;
    return perform(onPosition(control::StornoPosition, storno.posnum));
}

Outcome Register::execute(const command::Split &split)
{
    if (const Outcome check = checkPosition(split.posnum); !check)
        return check;
    if (split.parts.isEmpty())
        return Outcome::mistake(messages::tillNoParts());
    double left = m_receipt->line(split.posnum)->getCquant();
    for (const double part : split.parts) {
        if (!(part > 0)) // "not a number" neither
            return Outcome::mistake(messages::tillPartTooSmall());
        left -= part;
    }
    if (toText(left).startsWith(QLatin1Char('-')))
        return Outcome::mistake(messages::tillPartsTooGreat(), {QString::number(split.posnum)});
    const control::Action action = onPosition(control::SplitPositions, split.posnum);
    action.setArgument(argument::parts, toVariants(split.parts));
    return perform(action);
}

Outcome Register::execute(const command::Unite &unite)
{
    const QList<int> &posnums = unite.posnums;
    if (posnums.size() < 2)
        return Outcome::mistake(messages::tillTooFewPositions());
    QSet<int> seen;
    double count = 0.0;
    for (const int posnum : posnums) {
        if (const Outcome check = checkPosition(posnum); !check)
            return check;
        if (seen.contains(posnum))
            return Outcome::mistake(messages::tillPositionTwice(), {QString::number(posnum)});
        seen.insert(posnum);
        if (!(m_receipt->line(posnum)->article() == m_receipt->line(posnums[0])->article()))
            return Outcome::mistake(messages::tillOtherArticles(),
                                    {QString::number(posnums[0]), QString::number(posnum)});
        count += m_receipt->line(posnum)->getCquant();
    }
    if (!isCount(count))
        return aboveLimit(count);
    return perform(
        control::Action(control::UnitePositions, {{argument::positions, toVariants(posnums)}}));
}

Outcome Register::execute(const command::AttachOrder &order)
{
    if (!hasUnfinishedReceipt())
        return Outcome::mistake(messages::tillNoReceipt());
    if (order.number.isEmpty())
        return Outcome::mistake(messages::tillOrderNumberless());
    if (m_receipt->getOrder())
        return Outcome::mistake(messages::tillHasOrder(), {m_receipt->getOrder()->number});
    return perform(control::Action(control::AddSoftCheck, {{argument::order, order.number}}));
}

Outcome Register::execute(const command::AddSoftCheck &softCheck)
{
    if (!hasUnfinishedReceipt())
        return Outcome::mistake(messages::tillNoReceipt());
    if (softCheck.number.isEmpty())
        return Outcome::mistake(messages::tillSoftCheckNumberless());
    if (m_receipt->softChecks().contains(softCheck.number))
        return Outcome::mistake(messages::tillHasSoftCheck(), {softCheck.number});
    return perform(
        control::Action(control::AddSoftCheck, {{argument::softCheck, softCheck.number}}));
}

Outcome Register::execute(const command::Subtotal &)
{
    if (!hasUnfinishedReceipt())
        return Outcome::mistake(messages::tillNoReceipt());
    if (m_receipt->getPositionList().isEmpty())
        return refuse(messages::tillReceiptEmpty());
    return perform(control::Action(control::Subtotal, {}));
}

Outcome Register::execute(const command::Pay &pay)
{
    if (!hasUnfinishedReceipt())
        return Outcome::mistake(messages::tillNoReceipt());
    if (m_receipt->getPositionList().isEmpty())
        return refuse(messages::tillReceiptEmpty());
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
        outcome.change = -missing;
    return outcome;
}

Outcome Register::execute(const command::Cancel &)
{
    if (!hasUnfinishedReceipt())
        return Outcome::mistake(messages::tillNoReceipt());
    if (!ask({messages::tillCancelReceipt(), messages::tillYes(), messages::tillNo()}))
        return keep(EContext::Cancel);
    return perform(control::Action(control::CancelReceipt, {}));
}

Outcome Register::checkPosition(int posnum) const
{
    if (!hasUnfinishedReceipt())
        return Outcome::mistake(messages::tillNoReceipt());
    if (!m_receipt->line(posnum))
        return Outcome::mistake(messages::tillNoPosition(), {QString::number(posnum)});
    if (!m_receipt->getPositionByPosnum(posnum))
        return Outcome::mistake(messages::tillPositionStornoed(), {QString::number(posnum)});
    return Outcome::done();
}

} // namespace till
