#include "plugin/PackagingControl.h"
#include "registry/Tolerance.h"

#include <algorithm>

double PackagingControl::TaraInfo::getUsedCapacity() const
{
    return capacity - freeCapacity;
}

bool PackagingControl::TaraInfo::isEmpty() const
{
    return packaging::isZero(freeCapacity - capacity);
}

bool PackagingControl::TaraInfo::isFull() const
{
    return packaging::isZero(freeCapacity);
}

bool PackagingControl::isTara(const QSharedPointer<GoodsItem> &goods)
{
    return goods->getTmc()->getTaraMode() == Tmc::Tara;
}

bool PackagingControl::isPackaging(const QSharedPointer<GoodsItem> &goods)
{
    return goods->getTmc()->getTaraMode() == Tmc::PackagingGoods;
}

QSharedPointer<PackagingControl::TaraInfo>
PackagingControl::createTara(const QSharedPointer<GoodsItem> &goods)
{
    // The count of pieces here, although a change of the quantity reads the base quantity.
    const double capacity = goods->getTmcTaraCapacity().toDouble() * goods->getCquant();
    if (const auto known = getTaraByPosnum(goods->getPosnum())) {
        modifyTaraCapacity(known, capacity);
        return known;
    }
    const auto tara = QSharedPointer<TaraInfo>::create(TaraInfo{.posnum = goods->getPosnum(),
                                                                .id = getId(),
                                                                .capacity = capacity,
                                                                .freeCapacity = capacity});
    taraList.append(tara);
    return tara;
}

QSharedPointer<PackagingControl::PackagingInfo>
PackagingControl::createPackagingInfo(const QSharedPointer<GoodsItem> &goods)
{
    const auto info = getPackagingInfoByPosnum(goods->getPosnum());
    info->posnum = goods->getPosnum();
    modifyPackagingUsedCapacity(info, goods->getBquant());
    if (!packagingList.contains(info))
        packagingList.append(info);
    return info;
}

QSharedPointer<PackagingControl::TaraInfo> PackagingControl::getTaraByPosnum(int posnum) const
{
    const auto found = std::find_if(taraList.cbegin(), taraList.cend(),
                                    [posnum](const auto &tara) { return tara->posnum == posnum; });
    return found == taraList.cend() ? nullptr : *found;
}

QSharedPointer<PackagingControl::PackagingInfo>
PackagingControl::getPackagingInfoByPosnum(int posnum) const
{
    const auto found = std::find_if(packagingList.cbegin(), packagingList.cend(),
                                    [posnum](const auto &info) { return info->posnum == posnum; });
    return found == packagingList.cend() ? QSharedPointer<PackagingInfo>::create() : *found;
}

bool PackagingControl::isExistsEmptyTara() const
{
    for (const auto &tara : taraList) {
        if (tara->isEmpty())
            return true;
    }
    return false;
}
