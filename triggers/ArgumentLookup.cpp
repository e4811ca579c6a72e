#include "triggers/ArgumentLookup.h"

QVariant packaging::argument(const control::Action &action, const QString &key)
{
    const QMultiMap<QString, QVariant> arguments = action.getArguments();
    return arguments.value(key, arguments.value(key.toLower()));
}

GoodsItemPtrList packaging::positionsArgument(const control::Action &action, const QString &key)
{
    return argument(action, key).value<GoodsItemPtrList>();
}
