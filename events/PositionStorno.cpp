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
    // Held, to be switched on again whatever the host does to the plugin meanwhile.
    const auto receipt = document;
    taraList.removeAll(tara); // from here on nothing is poured into it
    if (receipt)
        receipt->setDocumentSwitch(false);

    // The host answers each reduction with events of the goods, which remove records from the list.
    const auto infos = packagingList;
    for (const auto &info : infos) {
        // Meanwhile the host may have turned to another receipt, whose positions are not these.
        if (document != receipt)
            break;
        const auto used = info->usedTara.constFind(tara->id);
        if (used == info->usedTara.cend())
            continue;
        if (modifyPackagingPositionQuantity(info, -*used))
            info->usedTara.remove(tara->id);
    }

    if (receipt) {
        receipt->setDocumentSwitch(true);
        Singleton<LoyaltySystemLayer>::instance()->updateDocument(receipt);
    }
}

void PackagingControl::removePackagingInfo(const QSharedPointer<GoodsItem> &position)
{
    const auto info = getPackagingInfoByPosnum(position->getPosnum());
    for (const auto &tara : std::as_const(taraList)) {
        const auto used = info->usedTara.constFind(tara->id);
        if (used != info->usedTara.cend())
            tara->freeCapacity += *used;
    }
    packagingList.removeAll(info);
}
