#include "plugin/PackagingControl.h"

#include <QtCore/QSet>

bool PackagingControl::isTaraSplitted(const QSharedPointer<GoodsItem> &goods) const
{
    const auto tara = getTaraByPosnum(goods->getPosnum());
    if (!tara)
        return false;
    QSet<int> users;
    for (const auto &info : packagingList) {
        if (info->usedTara.contains(tara->id)) // with any value, 0 too
            users.insert(info->posnum);
    }
    return users.size() >= 2;
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
