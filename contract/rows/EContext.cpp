#include "host/EContext.h"

#include "contract/rows/Row.h"

namespace rowsEContext {

#if ROW(1) // EContext::Receipt
inline constexpr EContext::Code receipt = EContext::Receipt;
#endif

#if ROW(2) // EContext::Cancel
inline constexpr EContext::Result cancel = EContext::Cancel;
#endif

#if ROW(3) // EContext::Error
inline constexpr EContext::Result error = EContext::Error;
#endif

#if ROW(4) // EContext::Continue, comparable with int
inline bool isDone(int result)
{
    return result == EContext::Continue;
}
#endif

} // namespace rowsEContext
