#include "host/ActionQueueController.h"

#include "contract/rows/Row.h"

namespace rowsActionQueueController {

#if ROW(1) // Singleton<ActionQueueController>::instance()->runAction(const control::Action &)
inline int run(const control::Action &action)
{
    return Singleton<ActionQueueController>::instance()->runAction(action);
}
#endif

} // namespace rowsActionQueueController
