#ifndef HOST_GOODSITEM_H
#define HOST_GOODSITEM_H

#include <shopline/Goods.h>

#include <QtCore/QList>

// It travels in variants: the shop's own type, not one derived from it.
using GoodsItem = shopline::Line;
#if defined(SHOPLINE_BREAKS_Types_Position)
using GoodsItemPtr = QSharedPointer<const GoodsItem>;
#else
using GoodsItemPtr = QSharedPointer<GoodsItem>;
#endif
#if defined(SHOPLINE_BREAKS_Types_PositionList)
#    include <QtCore/QSet>
using GoodsItemPtrList = QSet<QSharedPointer<GoodsItem>>;
#else
using GoodsItemPtrList = QList<QSharedPointer<GoodsItem>>;
#endif

//! The catalogue record stays with its position, so that it may be derived from.
class Tmc : public shopline::Article
{
public:
#if defined(SHOPLINE_BREAKS_Numbers_TaraMode)
    static constexpr shopline::Vessel Tara = shopline::Poured;
#else
    static constexpr shopline::Vessel Tara = shopline::Container;
#endif
    static constexpr shopline::Vessel PackagingGoods = shopline::Poured;
};

#endif // HOST_GOODSITEM_H
