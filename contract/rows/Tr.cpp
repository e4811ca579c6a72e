#include "host/Tr.h"

#include "contract/rows/Row.h"

namespace rowsTr {

#if ROW(1) // tr::Tr(key, text)
inline tr::Tr make()
{
    return {QString(), QString()};
}
#endif

#if ROW(2) // tr::Tr::operator QVariant
inline QVariant carry(const tr::Tr &text)
{
    return text;
}
#endif

} // namespace rowsTr
