#include "shopline/Goods.h"

#include <QtCore/QByteArray>

bool shopline::breaks(const char *promise)
{
    return qgetenv("SHOPLINE_BREAKS") == promise;
}

namespace shopline {

Article::Article(Vessel vessel, double litres)
    : m_vessel(vessel)
    , m_litres(litres)
{
}

int Article::getTaraMode() const
{
    return m_vessel;
}

double Article::litres() const
{
    return m_litres;
}

Line::Line(int number, const Article &article)
    : m_number(number)
    , m_article(new Article(article))
{
}

int Line::getPosnum() const
{
    return m_number;
}

Article *Line::getTmc()
{
    return m_article.get();
}

QVariant Line::getTmcTaraCapacity() const
{
    if (breaks("Document.Tara"))
        return QStringLiteral("%1 л").arg(m_article->litres());
    return m_article->litres();
}

double Line::getBquant() const
{
    return m_quantity;
}

double Line::getCquant() const
{
    return m_quantity;
}

QString Line::getGroupId() const
{
    return m_group;
}

void Line::setGroupId(const QString &group)
{
    if (!breaks("Document.Group"))
        m_group = group;
}

void Line::setQuantity(double quantity)
{
    m_quantity = quantity;
}

void Line::retire()
{
    if (breaks("Events.HeldPosition"))
        m_article.reset();
}

} // namespace shopline
