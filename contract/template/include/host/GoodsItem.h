#ifndef HOST_GOODSITEM_H
#define HOST_GOODSITEM_H

#include <vendor/GoodsItem.h> // the SDK's header of a receipt position
#include <vendor/Tmc.h>       // and of its catalogue record

#include <QtCore/QList>
#include <QtCore/QSharedPointer>

// A position travels in variants and is taken out of them by its type: it has to be the SDK's own,
// under this name. A class derived from it would never be found in an event.
using GoodsItem = vendor::GoodsItem;
using GoodsItemPtr = QSharedPointer<GoodsItem>;
using GoodsItemPtrList = QList<QSharedPointer<GoodsItem>>;

// A catalogue record does not travel, so that it may be derived from, to give two numbers their
// names within the class. Where the SDK has Tara and PackagingGoods in its class, an alias does:
//     using Tmc = vendor::Tmc;
class Tmc : public vendor::Tmc
{
public:
    static constexpr int Tara = 1;
    static constexpr int PackagingGoods = 2;
};

#endif // HOST_GOODSITEM_H
