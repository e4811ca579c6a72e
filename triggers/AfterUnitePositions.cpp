#include "plugin/PackagingControl.h"
#include "triggers/ArgumentLookup.h"

#include <log4qt/logger.h>

EContext::Result PackagingControl::afterUnitePositions(const control::Action &action)
{
    logger->info(QStringLiteral("Обработка объединения позиций"));
    const auto deleted =
        packaging::argument(action, QStringLiteral("deletedPositions")).value<GoodsItemPtrList>();
    for (const auto &position : deleted) {
        if (position)
            removePackagingInfo(position);
    }
    // A position without a record is placed too: its capacity is taken, and no record holds it.
    const auto changed =
        packaging::argument(action, QStringLiteral("changedPositions")).value<GoodsItemPtrList>();
    for (const auto &position : changed) {
        if (position)
            modifyPackagingUsedCapacity(getPackagingInfoByPosnum(position->getPosnum()),
                                        position->getBquant());
    }
    savePluginData();
    return EContext::Continue;
}
