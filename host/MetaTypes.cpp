#include "host/Event.h"
#include "host/GoodsItem.h"
#include "host/Quantity.h"
#include "host/Tr.h"

#include <QtCore/QMetaType>

namespace {

/*!
 * The names are registered when the library is loaded, before any plugin is: what Qt's registry
 * then holds lives in this library and outlasts every plugin that registers the same names again.
 */
[[maybe_unused]] const bool registered = [] {
    qRegisterMetaType<Event>("Event");
    qRegisterMetaType<GoodsItemPtr>("GoodsItemPtr");
    qRegisterMetaType<GoodsItemPtrList>("GoodsItemPtrList");
    qRegisterMetaType<Quantity>("Quantity");
    qRegisterMetaType<tr::Tr>("tr::Tr");
    return true;
}();

} // namespace
