#ifndef EVENTS_EVENTPOSITION_H
#define EVENTS_EVENTPOSITION_H

#include "host/Event.h"
#include "host/GoodsItem.h"

namespace packaging {

//! The position that \a event is about, or null when it carries none or something else.
inline QSharedPointer<GoodsItem> eventPosition(const Event &event)
{
    return event.value(QStringLiteral("position"), QVariant()).value<QSharedPointer<GoodsItem>>();
}

} // namespace packaging

#endif // EVENTS_EVENTPOSITION_H
