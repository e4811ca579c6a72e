#include "host/BaseActivityListener.h"

#include "host/Event.h"

#include "contract/rows/Row.h"

namespace rowsBaseActivityListener {

#if ROW(1) // BaseActivityListener(QObject *), as a base
struct Listener : BaseActivityListener
{
    Listener()
        : BaseActivityListener(nullptr)
    {
    }
    void handleEvent(const Event &) override {}
};
#endif

#if ROW(2) // BaseActivityListener::staticMetaObject
inline const QMetaObject *metaObject()
{
    return &BaseActivityListener::staticMetaObject;
}
#endif

} // namespace rowsBaseActivityListener
