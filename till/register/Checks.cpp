// What the register refuses by itself, before anything happens.

#include "till/goods/Limits.h"
#include "till/language/Nearest.h"
#include "till/language/TillMessages.h"
#include "till/register/Register.h"

#include <QtCore/QSet>

namespace till {

namespace {

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

Outcome Register::check(const Command &command) const
{
    if (m_isBusy)
        return Outcome::busy();
    return checkIdle(command);
}

Outcome Register::checkIdle(const Command &command) const
{
    if (std::holds_alternative<command::Open>(command))
        return hasUnfinishedReceipt() ? Outcome::mistake(messages::tillReceiptIsOpen())
                                      : Outcome::done();
    if (!hasUnfinishedReceipt())
        return Outcome::mistake(messages::tillNoReceipt());
    return std::visit([this](const auto &kind) { return checkOf(kind); }, command);
}

Outcome Register::checkOf(const command::Add &add) const
{
    const auto article = m_catalogue.find(add.article);
    if (!article)
        return noArticle(add.article, m_catalogue);
    if (add.count <= 0)
        return Outcome::mistake(messages::tillCountTooSmall());
    if (!m_receipt->hasPlaceFor(article->data, add.count))
        return aboveLimit(add.count);
    return Outcome::done();
}

Outcome Register::checkOf(const command::ChangeCount &change) const
{
    if (const Outcome check = checkPosition(change.posnum); !check)
        return check;
    if (change.count < 0)
        return Outcome::mistake(messages::tillCountNegative());
    const auto line = m_receipt->line(change.posnum);
    if (!m_receipt->hasPlaceFor(line->article(), change.count, line.get()))
        return aboveLimit(change.count);
    return Outcome::done();
}

Outcome Register::checkOf(const command::Storno &storno) const
{
    return checkPosition(storno.posnum);
}

Outcome Register::checkOf(const command::Split &split) const
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
    return Outcome::done();
}

Outcome Register::checkOf(const command::Unite &unite) const
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
    return isCount(count) ? Outcome::done() : aboveLimit(count);
}

Outcome Register::checkOf(const command::AttachOrder &order) const
{
    if (order.number.isEmpty())
        return Outcome::mistake(messages::tillOrderNumberless());
    if (m_receipt->getOrder())
        return Outcome::mistake(messages::tillHasOrder(), {m_receipt->getOrder()->number});
    return Outcome::done();
}

Outcome Register::checkOf(const command::AddSoftCheck &softCheck) const
{
    if (softCheck.number.isEmpty())
        return Outcome::mistake(messages::tillSoftCheckNumberless());
    if (m_receipt->softChecks().contains(softCheck.number))
        return Outcome::mistake(messages::tillHasSoftCheck(), {softCheck.number});
    return Outcome::done();
}

Outcome Register::checkOf(const command::Subtotal &) const
{
    return checkNotEmpty();
}

Outcome Register::checkOf(const command::Pay &) const
{
    return checkNotEmpty();
}

Outcome Register::checkNotEmpty() const
{
    return m_receipt->getPositionList().isEmpty() ? Outcome::refused(messages::tillReceiptEmpty())
                                                  : Outcome::done();
}

Outcome Register::checkPosition(int posnum) const
{
    if (!m_receipt->line(posnum))
        return Outcome::mistake(messages::tillNoPosition(), {QString::number(posnum)});
    if (!m_receipt->getPositionByPosnum(posnum))
        return Outcome::mistake(messages::tillPositionStornoed(), {QString::number(posnum)});
    return Outcome::done();
}

} // namespace till
