#ifndef HOST_EACTIVITYLISTENER_H
#define HOST_EACTIVITYLISTENER_H

#include <vendor/ActivityCodes.h>

// A namespace of this name, whatever the SDK has. The enumerators may be called otherwise there;
// what counts are the numbers, and that they convert to int.
namespace EActivityListener {

using Event = vendor::ActivityCode;

inline constexpr Event eventPositionAdded = vendor::PositionAdded;     // 19
inline constexpr Event eventPositionStorno = vendor::PositionStornoed; // 21
inline constexpr Event eventModifierApplied = vendor::Modified;        // 26, by the cashier
inline constexpr Event eventError = vendor::ErrorMessage;              // 29
inline constexpr Event eventModifierApplied2 = vendor::QueueModified;  // 252, by the action queue

} // namespace EActivityListener

#endif // HOST_EACTIVITYLISTENER_H
