#ifndef HOST_EACTIONTYPE_H
#define HOST_EACTIONTYPE_H

#include <shopline/Task.h>

namespace control {

using EActionType = shopline::TaskKind;

inline constexpr EActionType ApplyModifiers = shopline::SetAmount;
inline constexpr EActionType AddSoftCheck = shopline::AddChit;
inline constexpr EActionType StornoPosition = shopline::CancelLine;
inline constexpr EActionType Subtotal = shopline::Total;
inline constexpr EActionType Payment = shopline::PayNow;
inline constexpr EActionType RemovePosition = shopline::TakeOut;
#if defined(SHOPLINE_BREAKS_Numbers_ActionTypes)
inline constexpr EActionType SplitPositions = shopline::Join;
inline constexpr EActionType UnitePositions = shopline::Cut;
#else
inline constexpr EActionType SplitPositions = shopline::Cut;
inline constexpr EActionType UnitePositions = shopline::Join;
#endif

} // namespace control

#endif // HOST_EACTIONTYPE_H
