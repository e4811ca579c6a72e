#include "host/Finally.h"
#include "host/GoodsItem.h"
#include "plugin/PackagingControl.h"
#include "registry/GiveBack.h"
#include "registry/NewRecord.h"
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

void packaging::giveBack(const PackagingControl::PackagingInfo &info,
                         const QList<QSharedPointer<PackagingControl::TaraInfo>> &taras)
{
    for (const auto &tara : taras) {
        const auto used = info.usedTara.constFind(tara->id);
        if (used != info.usedTara.cend())
            tara->freeCapacity += *used;
    }
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
    if (auto known = getTaraByPosnum(goods->getPosnum())) {
        modifyTaraCapacity(known, capacity);
        return known;
    }
    const auto tara = packaging::newRecord<TaraInfo>();
    tara->posnum = goods->getPosnum();
    tara->id = getId();
    tara->capacity = capacity;
    tara->freeCapacity = capacity;
    taraList.append(tara);
    return tara;
}

QSharedPointer<PackagingControl::PackagingInfo>
PackagingControl::createPackagingInfo(const QSharedPointer<GoodsItem> &goods)
{
    const auto info = getPackagingInfoByPosnum(goods->getPosnum());
    info->posnum = goods->getPosnum();
    // When an exception passes, such as for want of memory, a new record is let go of: what it took
    // would be nobody's.
    const PackagingInfo nothing;
    const PackagingInfo *unlisted = packagingList.contains(info) ? &nothing : info.get();
    const Finally giveBackUnlisted([this, &unlisted] { packaging::giveBack(*unlisted, taraList); });
    modifyPackagingUsedCapacity(info, goods->getBquant());
    if (!packagingList.contains(info))
        packagingList.append(info);
    unlisted = &nothing;
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
    return found == packagingList.cend() ? packaging::newRecord<PackagingInfo>() : *found;
}

bool PackagingControl::isExistsEmptyTara() const
{
    return std::any_of(taraList.cbegin(), taraList.cend(),
                       [](const auto &tara) { return tara->isEmpty(); });
}
