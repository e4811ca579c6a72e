#include "events/EventPosition.h"
#include "host/Finally.h"
#include "plugin/PackagingControl.h"

#include <algorithm>

void PackagingControl::onModifierApplyEvent(const Event &event)
{
    const auto position = packaging::eventPosition(event);
    if (!position)
        return;
    const Finally save([this] { savePluginData(); });
    if (isTara(position))
        resizeTara(position);
    else if (isPackaging(position))
        modifyPackagingUsedCapacity(getPackagingInfoByPosnum(position->getPosnum()),
                                    position->getBquant());
}

void PackagingControl::resizeTara(const QSharedPointer<GoodsItem> &position)
{
    const auto tara = getTaraByPosnum(position->getPosnum());
    if (!tara)
        return;
    const double oldCapacity = tara->capacity;
    // The base quantity here, although the record was created from the count of pieces.
    const double newCapacity = position->getTmcTaraCapacity().toDouble() * position->getBquant();
    modifyTaraCapacity(tara, newCapacity);
    if (tara->isEmpty())
        return;

    const auto infos = packagingList; // a copy, which holds the record that the action may drop
    const auto user = std::find_if(infos.cbegin(), infos.cend(), [&tara](const auto &info) {
        return info->usedTara.contains(tara->id);
    });
    // The first goods take the whole change, even when several share the tara.
    if (user != infos.cend())
        modifyPackagingPositionQuantity(*user, newCapacity - oldCapacity);
}
