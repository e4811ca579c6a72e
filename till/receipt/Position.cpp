#include "till/receipt/Position.h"

namespace till {

Position::Position(int posnum, const QSharedPointer<Article> &article)
    : GoodsItem(posnum, article)
    , m_article(article)
{
}

void Position::setCount(double count)
{
    setCquant(count);
    setBquant(count * article().pack);
}

void Position::setBase(double base)
{
    setCquant(base / article().pack);
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
