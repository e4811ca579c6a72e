#include "host/AbstractDocument.h"

#include "contract/rows/Row.h"

namespace rowsAbstractDocument {

#if ROW(1) // AbstractDocument::getType()
inline bool isSale(AbstractDocument &d)
{
    return d.getType() == 1;
}
#endif

#if ROW(2) // AbstractDocument::getOrder()
inline bool hasOrder(AbstractDocument &d)
{
    return d.getOrder() ? true : false;
}
#endif

#if ROW(3) // AbstractDocument::getPositionByPosnum(int)
inline QSharedPointer<GoodsItem> find(AbstractDocument &d)
{
    return d.getPositionByPosnum(1);
}
#endif

#if ROW(4) // AbstractDocument::setDocumentSwitch(bool)
inline void turn(AbstractDocument &d)
{
    d.setDocumentSwitch(false);
}
#endif

#if ROW(5) // AbstractDocument::getPositionList()
inline bool isEmpty(AbstractDocument &d)
{
    return d.getPositionList().isEmpty();
}
#endif

#if ROW(6) // AbstractDocument::getPluginData(plugin, key, default)
inline QVariant read(AbstractDocument &d)
{
    return d.getPluginData(QString(), QString(), {});
}
#endif

#if ROW(7) // AbstractDocument::setPluginData(plugin, key, value)
inline void write(AbstractDocument &d, const QVariantList &list)
{
    d.setPluginData(QString(), QString(), list);
}
#endif

} // namespace rowsAbstractDocument
