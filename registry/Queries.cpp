#include "host/GoodsItem.h"
#include "plugin/PackagingControl.h"

bool PackagingControl::isTaraSplitted(const QSharedPointer<GoodsItem> &goods) const
{
    const auto tara = getTaraByPosnum(goods->getPosnum());
    if (!tara)
        return false;
    // Without a QSet, which in Qt 6.4 ends the process when there is no memory to insert with.
    const PackagingInfo *user = nullptr;
    for (const auto &info : packagingList) {
        if (!info->usedTara.contains(tara->id)) // with any value, 0 too
            continue;
        if (user && user->posnum != info->posnum)
            return true;
        user = info.get();
    }
    return false;
}

bool PackagingControl::isTaraPartialFilled(const QSharedPointer<GoodsItem> &goods) const
{
    const auto tara = getTaraByPosnum(goods->getPosnum());
    if (!tara)
        return false;
    const bool isEmpty = tara->isEmpty();
    const bool isFull = tara->isFull();
    return !isEmpty && !isFull;
}
