#include "events/EventPosition.h"

GoodsItemPtr packaging::eventPosition(const Event &event)
{
    return event.value(QStringLiteral("position"), QVariant()).value<GoodsItemPtr>();
}
