#ifndef HOST_MODIFIERSCONTAINER_H
#define HOST_MODIFIERSCONTAINER_H

#include <shopline/Desk.h>

namespace modifiers {

using Type = shopline::ModifierKind;
#if defined(SHOPLINE_BREAKS_Numbers_QuantityModifier)
inline constexpr Type Quantity = Type(4);
#else
inline constexpr Type Quantity = shopline::AmountModifier;
#endif

} // namespace modifiers

using ModifiersContainer = shopline::Modifiers;

#endif // HOST_MODIFIERSCONTAINER_H
