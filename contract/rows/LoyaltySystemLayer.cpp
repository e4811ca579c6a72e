#include "host/LoyaltySystemLayer.h"

#include "contract/rows/Row.h"

namespace rowsLoyaltySystemLayer {

#if ROW(1) // Singleton<LoyaltySystemLayer>::instance()->updateDocument(document)
inline void update(const QSharedPointer<AbstractDocument> &document)
{
    Singleton<LoyaltySystemLayer>::instance()->updateDocument(document);
}
#endif

} // namespace rowsLoyaltySystemLayer
