#include "host/BasicPlugin.h"

#include "contract/rows/Row.h"

namespace rowsBasicPlugin {

#if ROW(1) // BasicPlugin::init()
struct Plugin : BasicPlugin
{
    bool init() override { return true; }
};
#endif

#if ROW(2) // BasicPlugin::addTrigger(const ActionTrigger &)
inline void add(BasicPlugin &plugin, const ActionTrigger &trigger)
{
    plugin.addTrigger(trigger);
}
#endif

#if ROW(3) // Q_DECLARE_INTERFACE(BasicPlugin, ...)
inline const char *identifier()
{
    return qobject_interface_iid<BasicPlugin *>();
}
#endif

#if ROW(4) // BasicPlugin.h brings ActionTrigger.h
using Trigger = ActionTrigger::Order;
#endif

} // namespace rowsBasicPlugin
