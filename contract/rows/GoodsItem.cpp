#include "host/GoodsItem.h"

#include "contract/rows/Row.h"

namespace rowsGoodsItem {

#if ROW(1) // GoodsItem::getPosnum()
inline int posnum(const QSharedPointer<GoodsItem> &item)
{
    return item->getPosnum();
}
#endif

#if ROW(2) // GoodsItem::getTmc(), Tmc::getTaraMode()
inline int mode(const QSharedPointer<GoodsItem> &item)
{
    return item->getTmc()->getTaraMode();
}
#endif

#if ROW(3) // GoodsItem::getTmcTaraCapacity()
inline double capacity(const QSharedPointer<GoodsItem> &item)
{
    return item->getTmcTaraCapacity().toDouble();
}
#endif

#if ROW(4) // GoodsItem::getBquant()
inline double bquant(const QSharedPointer<GoodsItem> &item)
{
    return item->getBquant();
}
#endif

#if ROW(5) // GoodsItem::getCquant()
inline double cquant(const QSharedPointer<GoodsItem> &item)
{
    return item->getCquant();
}
#endif

#if ROW(6) // GoodsItem::getGroupId()
inline QString group(const QSharedPointer<GoodsItem> &item)
{
    return item->getGroupId();
}
#endif

#if ROW(7) // GoodsItem::setGroupId(const QString &)
inline void setGroup(const QSharedPointer<GoodsItem> &item)
{
    item->setGroupId(QString());
}
#endif

#if ROW(8) // GoodsItemPtr
inline GoodsItemPtr handle()
{
    return QSharedPointer<GoodsItem>();
}
#endif

#if ROW(9) // GoodsItemPtrList
inline GoodsItemPtrList handles()
{
    return QList<QSharedPointer<GoodsItem>>();
}
#endif

#if ROW(10) // Tmc::Tara
inline bool isTara(int mode)
{
    return mode == Tmc::Tara;
}
#endif

#if ROW(11) // Tmc::PackagingGoods
inline bool isPackaging(int mode)
{
    return mode == Tmc::PackagingGoods;
}
#endif

} // namespace rowsGoodsItem
