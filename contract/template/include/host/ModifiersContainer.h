#ifndef HOST_MODIFIERSCONTAINER_H
#define HOST_MODIFIERSCONTAINER_H

#include <vendor/ModifiersContainer.h>

namespace modifiers {

using Type = vendor::ModifierType;
inline constexpr Type Quantity = vendor::QuantityModifier; // 3; the value is a ::Quantity

} // namespace modifiers

using ModifiersContainer = vendor::ModifiersContainer;

#endif // HOST_MODIFIERSCONTAINER_H
