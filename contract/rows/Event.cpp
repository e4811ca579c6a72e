#include "host/Event.h"

#include <QtCore/QSet>

#include "contract/rows/Row.h"

namespace rowsEvent {

#if ROW(1) // Event(EActivityListener::Event)
inline Event make(EActivityListener::Event code)
{
    return Event(code);
}
#endif

#if ROW(2) // Event::getCode()
inline EActivityListener::Event code(const Event &event)
{
    return event.getCode();
}
#endif

#if ROW(3) // Event::value(key, default)
inline QVariant value(const Event &event)
{
    return event.value(QString(), QVariant());
}
#endif

#if ROW(4) // Event::addArgument(key, value), which gives the event
inline Event &add(Event &event)
{
    return event.addArgument(QString(), QVariant()).addArgument(QString(), false);
}
#endif

#if ROW(5) // Event::operator==
inline bool equals(const Event &one, const Event &other)
{
    return one == other;
}
#endif

#if ROW(6) // EActivityListener::eventPositionAdded, convertible to int
inline const QSet<int> added{EActivityListener::eventPositionAdded};
#endif

#if ROW(7) // EActivityListener::eventPositionStorno, convertible to int
inline const QSet<int> storno{EActivityListener::eventPositionStorno};
#endif

#if ROW(8) // EActivityListener::eventModifierApplied, convertible to int
inline const QSet<int> applied{EActivityListener::eventModifierApplied};
#endif

#if ROW(9) // EActivityListener::eventModifierApplied2, convertible to int
inline const QSet<int> applied2{EActivityListener::eventModifierApplied2};
#endif

#if ROW(10) // EActivityListener::eventError
inline Event error()
{
    return Event(EActivityListener::eventError);
}
#endif

} // namespace rowsEvent
