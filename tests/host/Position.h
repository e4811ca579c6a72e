#ifndef TESTS_HOST_POSITION_H
#define TESTS_HOST_POSITION_H

#include "host/GoodsItem.h"

inline GoodsItemPtr position(int posnum, Tmc::TaraMode mode = Tmc::NoTara,
                             const QVariant &taraCapacity = QVariant())
{
    return GoodsItemPtr::create(posnum, QSharedPointer<Tmc>::create(mode, taraCapacity));
}

#endif
