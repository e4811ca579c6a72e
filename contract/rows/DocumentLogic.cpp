#include "host/DocumentLogic.h"

#include "contract/rows/Row.h"

namespace rowsDocumentLogic {

#if ROW(1) // MockFactory<DocumentLogic>::create()->stornoPosition(const control::Action &)
inline void storno(const control::Action &action)
{
    MockFactory<DocumentLogic>::create()->stornoPosition(action);
}
#endif

} // namespace rowsDocumentLogic
