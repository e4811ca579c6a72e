#include "host/GoodsItem.h"

#include <utility>

GoodsItem::GoodsItem(int posnum, QSharedPointer<Tmc> tmc)
    : m_posnum(posnum)
    , m_tmc(std::move(tmc))
{
    Q_ASSERT(m_tmc);
}

GoodsItem::~GoodsItem() = default;

int GoodsItem::getPosnum() const
{
    return m_posnum;
}

Tmc *GoodsItem::getTmc()
{
    return m_tmc.get();
}

QVariant GoodsItem::getTmcTaraCapacity() const
{
    return m_tmc->getTaraCapacity();
}

double GoodsItem::getBquant() const
{
    return m_bquant;
}

void GoodsItem::setBquant(double quantity)
{
    m_bquant = quantity;
}

double GoodsItem::getCquant() const
{
    return m_cquant;
}

void GoodsItem::setCquant(double count)
{
    m_cquant = count;
}

QString GoodsItem::getGroupId() const
{
    return m_groupId;
}

void GoodsItem::setGroupId(const QString &groupId)
{
    m_groupId = groupId;
}

#include "moc_GoodsItem.cpp"
