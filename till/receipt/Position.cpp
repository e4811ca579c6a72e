#include "till/receipt/Position.h"

namespace till {

Position::Position(int posnum, const QSharedPointer<Article> &article)
    : GoodsItem(posnum, article)
    , m_article(article)
{
}

void Position::setCount(double count)
{
    setQuantity(count, count * article().pack);
}

void Position::setQuantity(double count, double base)
{
    setCquant(count);
    setBquant(base);
}

Kopecks Position::sum() const
{
    return sumOf(article().price, getCquant());
}

LineRecord Position::record() const
{
    return {getPosnum(), article(), getCquant(), getBquant(), getGroupId(), m_stornoed};
}

} // namespace till
