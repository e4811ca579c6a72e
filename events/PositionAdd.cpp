#include "events/EventPosition.h"
#include "plugin/PackagingControl.h"

#include <log4qt/logger.h>

void PackagingControl::onPositionAddEvent(const Event &event)
{
    const auto added = packaging::eventPosition(event);
    const auto position = added ? findPosition(added->getPosnum()) : nullptr;
    if (!position)
        return;
    if (isTara(position)) {
        logger->info(QStringLiteral("Добавлена тара"));
        createTara(position);
    } else if (isPackaging(position)) {
        logger->info(QStringLiteral("Добавлен товар, отпускаемый в тару"));
        createPackagingInfo(position);
    } else {
        return;
    }
    savePluginData();
}
