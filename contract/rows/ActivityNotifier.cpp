#include "host/ActivityNotifier.h"

#include "host/BaseActivityListener.h"
#include "host/Event.h"

#include "contract/rows/Row.h"

namespace rowsActivityNotifier {

#if ROW(1) // Singleton<ActivityNotifier>::instance()
inline ActivityNotifier *notifier()
{
    return Singleton<ActivityNotifier>::instance();
}
#endif

#if ROW(2) // ActivityNotifier::subscribe(BaseActivityListener *, const QSet<int> &)
inline void subscribe(ActivityNotifier &notifier, BaseActivityListener *listener)
{
    notifier.subscribe(listener, QSet<int>());
}
#endif

#if ROW(3) // ActivityNotifier::disableListener(BaseActivityListener *)
inline void disable(ActivityNotifier &notifier, BaseActivityListener *listener)
{
    notifier.disableListener(listener);
}
#endif

#if ROW(4) // ActivityNotifier::enableListener(BaseActivityListener *)
inline void enable(ActivityNotifier &notifier, BaseActivityListener *listener)
{
    notifier.enableListener(listener);
}
#endif

#if ROW(5) // ActivityNotifier::notify(const Event &)
inline void publish(ActivityNotifier &notifier, const Event &event)
{
    notifier.notify(event);
}
#endif

} // namespace rowsActivityNotifier
