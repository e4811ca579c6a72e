#ifndef HOST_EACTIONTYPE_H
#define HOST_EACTIONTYPE_H

#include <vendor/Action.h>

namespace control {

using EActionType = vendor::ActionType;

inline constexpr EActionType ApplyModifiers = vendor::ApplyModifiers; // 5
inline constexpr EActionType AddSoftCheck = vendor::AddSoftCheck;     // 129
inline constexpr EActionType StornoPosition = vendor::Storno;         // 132
inline constexpr EActionType Subtotal = vendor::Subtotal;             // 133
inline constexpr EActionType Payment = vendor::Payment;               // 144
inline constexpr EActionType RemovePosition = vendor::Remove;         // 202
inline constexpr EActionType SplitPositions = vendor::Split;          // 233
inline constexpr EActionType UnitePositions = vendor::Unite;          // 234

} // namespace control

#endif // HOST_EACTIONTYPE_H
