#include "host/GoodsItem.h"
#include "plugin/PackagingControl.h"
#include "triggers/ArgumentLookup.h"

#include <log4qt/logger.h>

EContext::Result PackagingControl::afterUnitePositions(const control::Action &action)
{
    logger->info(QStringLiteral("Обработка объединения позиций"));
    const auto deleted = packaging::positionsArgument(action, QStringLiteral("deletedPositions"));
    for (const auto &position : deleted) {
        if (position)
            removePackagingInfo(position);
    }
    // A position without a record is placed too; its record is let go of and the capacity stays
    // taken.
    const auto changed = packaging::positionsArgument(action, QStringLiteral("changedPositions"));
    for (const auto &position : changed) {
        if (position)
            modifyPackagingUsedCapacity(getPackagingInfoByPosnum(position->getPosnum()),
                                        position->getBquant());
    }
    savePluginData();
    return EContext::Continue;
}
