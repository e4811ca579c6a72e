#include "host/Config.h"

#include "contract/rows/Row.h"

namespace rowsConfig {

#if ROW(1) // Singleton<Config>::instance()->getBool(key, default)
inline bool setting()
{
    return Singleton<Config>::instance()->getBool(QString(), true);
}
#endif

} // namespace rowsConfig
