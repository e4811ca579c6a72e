#include "host/Quantity.h"

#include "contract/rows/Row.h"

namespace rowsQuantity {

#if ROW(1) // Quantity(double, EQuantMode)
inline Quantity make(EQuantMode mode)
{
    return Quantity(1.0, mode);
}
#endif

#if ROW(2) // quantModeRecalculated
inline constexpr EQuantMode mode = quantModeRecalculated;
#endif

#if ROW(3) // Quantity in a QVariant
inline QVariant carry(const Quantity &quantity)
{
    return QVariant::fromValue(quantity);
}
#endif

#if ROW(4) // Quantity::operator==
inline bool equals(const Quantity &one, const Quantity &other)
{
    return one == other;
}
#endif

} // namespace rowsQuantity
