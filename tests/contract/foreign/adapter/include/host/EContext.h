#ifndef HOST_ECONTEXT_H
#define HOST_ECONTEXT_H

#include <shopline/Task.h>

namespace EContext {

using Code = shopline::Place;
#if defined(SHOPLINE_BREAKS_Numbers_Context)
inline constexpr Code Receipt = Code(5);
#else
inline constexpr Code Receipt = shopline::AtReceipt;
#endif

using Result = shopline::Answer;
#if defined(SHOPLINE_BREAKS_Numbers_Answers)
inline constexpr Result Cancel = shopline::Refused;
inline constexpr Result Error = shopline::Stop;
#else
inline constexpr Result Cancel = shopline::Stop;
inline constexpr Result Error = shopline::Refused;
#endif
inline constexpr Result Continue = shopline::GoOn;

} // namespace EContext

#endif // HOST_ECONTEXT_H
