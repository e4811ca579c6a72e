#include "host/GoodsItem.h"
#include "plugin/PackagingControl.h"
#include "triggers/ArgumentLookup.h"

#include <log4qt/logger.h>

namespace {

//! One position that was split.
struct Split
{
    QSharedPointer<GoodsItem> source;
    GoodsItemPtrList pieces; //!< what stands in the receipt now, the source first if it stayed
};

Split toSplit(const QVariant &element)
{
    const QVariantMap map = element.toMap();
    Split split{map.value(QStringLiteral("source")).value<QSharedPointer<GoodsItem>>(),
                map.value(QStringLiteral("result")).value<GoodsItemPtrList>()};
    if (!map.value(QStringLiteral("removed")).toBool())
        split.pieces.prepend(split.source);
    return split;
}

} // namespace

EContext::Result PackagingControl::afterSplitPositions(const control::Action &action)
{
    logger->info(QStringLiteral("Обработка разбиения позиции"));
    const QVariantList elements =
        packaging::argument(action, QStringLiteral("splitPositionsData")).toList();
    for (const QVariant &element : elements) {
        const Split split = toSplit(element);
        if (!split.source)
            continue;
        removePackagingInfo(split.source);
        const QString ownGroup = split.source->getGroupId();
        const QString group = ownGroup.isEmpty() ? getId() : ownGroup;
        // Every piece is recorded as goods, whatever its article: what is split is what was poured.
        for (const auto &piece : split.pieces) {
            if (!piece)
                continue;
            piece->setGroupId(group);
            createPackagingInfo(piece);
        }
    }
    savePluginData();
    return EContext::Continue;
}
