#include "events/EventPosition.h"
#include "host/LoyaltySystemLayer.h"
#include "plugin/PackagingControl.h"

#include <log4qt/logger.h>

#include <utility>

void PackagingControl::onPositionStornoEvent(const Event &event)
{
    const auto position = packaging::eventPosition(event);
    if (!position)
        return;
    logger->info(QStringLiteral("При удалении позиции: %1"), position->getPosnum());
    if (isTara(position)) {
        if (const auto tara = getTaraByPosnum(position->getPosnum()))
            dropTara(tara);
    } else if (isPackaging(position)) {
        removePackagingInfo(position);
    }
    savePluginData();
}

void PackagingControl::dropTara(const QSharedPointer<TaraInfo> &tara)
{
    taraList.removeAll(tara);      // from here on nothing is poured into it
    const auto receipt = document; // held: what is switched off is switched on again
    if (receipt)
        receipt->setDocumentSwitch(false);
    takeGoodsOut(*tara);
    if (!receipt)
        return;
    receipt->setDocumentSwitch(true);
    Singleton<LoyaltySystemLayer>::instance()->updateDocument(receipt);
}

void PackagingControl::takeGoodsOut(const TaraInfo &tara)
{
    const auto receipt = document;
    const auto infos = packagingList; // a copy: the events of each action change the list
    for (const auto &info : infos) {
        if (!info->usedTara.contains(tara.id))
            continue;
        if (modifyPackagingPositionQuantity(info, -info->usedTara.value(tara.id)))
            info->usedTara.remove(tara.id);
        if (document != receipt) // the host has switched receipts
            return;
    }
}

void PackagingControl::removePackagingInfo(const QSharedPointer<GoodsItem> &position)
{
    const auto info = getPackagingInfoByPosnum(position->getPosnum());
    for (const auto &tara : std::as_const(taraList)) {
        if (info->usedTara.contains(tara->id))
            tara->freeCapacity += info->usedTara.value(tara->id);
    }
    packagingList.removeAll(info);
}
