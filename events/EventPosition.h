#ifndef EVENTS_EVENTPOSITION_H
#define EVENTS_EVENTPOSITION_H

#include "host/Event.h"
#include "host/GoodsItem.h"

namespace packaging {

//! The position that \a event is about, or null when it carries none or something else.
GoodsItemPtr eventPosition(const Event &event);

} // namespace packaging

#endif // EVENTS_EVENTPOSITION_H
