#ifndef HOST_EACTIVITYLISTENER_H
#define HOST_EACTIVITYLISTENER_H

#include <shopline/Activity.h>

namespace EActivityListener {

using Event = shopline::ActivityCode;

inline constexpr Event eventPositionAdded = shopline::LineCame;
inline constexpr Event eventPositionStorno = shopline::LineLeft;
#if defined(SHOPLINE_BREAKS_Numbers_EventCodes)
inline constexpr Event eventModifierApplied = shopline::LineSetByProgram;
#else
inline constexpr Event eventModifierApplied = shopline::LineSetByHand;
#endif
inline constexpr Event eventModifierApplied2 = shopline::LineSetByProgram;
inline constexpr Event eventError = shopline::Complaint;

} // namespace EActivityListener

#endif // HOST_EACTIVITYLISTENER_H
