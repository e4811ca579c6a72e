#include "host/Finally.h"

#include "contract/rows/Row.h"

namespace rowsFinally {

#if ROW(1) // Finally(std::function<void()>)
inline void scope()
{
    const Finally cleanUp([] {});
}
#endif

} // namespace rowsFinally
