#include "events/EventPosition.h"
#include "host/Finally.h"
#include "host/LoyaltySystemLayer.h"
#include "plugin/PackagingControl.h"
#include "registry/GiveBack.h"

#include <log4qt/logger.h>

#include <vector>

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
    {
        const Finally switchOn([held = receipt.get()] {
            if (held)
                held->setDocumentSwitch(true);
        });
        if (receipt)
            receipt->setDocumentSwitch(false);
        takeGoodsOut(tara, receipt);
    }
    if (receipt)
        Singleton<LoyaltySystemLayer>::instance()->updateDocument(receipt);
}

void PackagingControl::takeGoodsOut(const QSharedPointer<TaraInfo> &tara,
                                    const QSharedPointer<AbstractDocument> &receipt)
{
    // The host answers each reduction with events of the goods, which remove records from the list.
    // Handles of its own: in Qt 6.4 a list that shares its elements crashes when there is no memory
    // to detach.
    const std::vector<QSharedPointer<PackagingInfo>> infos(packagingList.cbegin(),
                                                           packagingList.cend());
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
}

void PackagingControl::removePackagingInfo(const QSharedPointer<GoodsItem> &position)
{
    const auto info = getPackagingInfoByPosnum(position->getPosnum());
    packaging::giveBack(*info, taraList);
    packagingList.removeAll(info);
}
