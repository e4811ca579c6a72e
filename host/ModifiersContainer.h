#ifndef HOST_MODIFIERSCONTAINER_H
#define HOST_MODIFIERSCONTAINER_H

#include "host/HostGlobal.h"

#include <QtCore/QMap>
#include <QtCore/QVariant>

namespace modifiers {

//! What a modifier changes. An `int`: a host may set kinds that are not named here.
enum Type : int {
    Quantity = 3, //!< the position's quantity; the value is a `::Quantity`
};

} // namespace modifiers

//! The modifiers that the next action on a position applies.
class HOST_EXPORT ModifiersContainer
{
public:
    bool isSet(modifiers::Type type) const;

    //! The value of \a type, or an invalid variant when it is not set.
    QVariant value(modifiers::Type type) const;

    //! Sets \a type to \a value, replacing an earlier value.
    void set(modifiers::Type type, const QVariant &value);

    //! Removes every modifier.
    void clearAll();

private:
    QMap<modifiers::Type, QVariant> m_values;
};

#endif // HOST_MODIFIERSCONTAINER_H
