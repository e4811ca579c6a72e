#include "host/Session.h"

#include "contract/rows/Row.h"

namespace rowsSession {

#if ROW(1) // Singleton<Session>::instance()->getModifiers()
inline ModifiersContainer *pending()
{
    return Singleton<Session>::instance()->getModifiers();
}
#endif

#if ROW(2) // ModifiersContainer::isSet(modifiers::Type)
inline bool isSet(ModifiersContainer &container)
{
    return container.isSet(modifiers::Quantity);
}
#endif

#if ROW(3) // ModifiersContainer::set(modifiers::Type, const QVariant &)
inline void set(ModifiersContainer &container)
{
    container.set(modifiers::Quantity, QVariant());
}
#endif

#if ROW(4) // ModifiersContainer::clearAll()
inline void clear(ModifiersContainer &container)
{
    container.clearAll();
}
#endif

#if ROW(5) // modifiers::Quantity, a modifiers::Type
inline constexpr modifiers::Type quantity = modifiers::Quantity;
#endif

} // namespace rowsSession
