#include "plugin/PackagingControl.h"
#include "triggers/ArgumentLookup.h"

#include <log4qt/logger.h>

#include <utility>

EContext::Result PackagingControl::afterSplitPositions(const control::Action &action)
{
    logger->info(QStringLiteral("Обработка разбиения позиции"));
    const QVariantList splits =
        packaging::argument(action, QStringLiteral("splitPositionsData")).toList();
    for (const QVariant &split : splits)
        recordPieces(split.toMap());
    savePluginData();
    return EContext::Continue;
}

void PackagingControl::recordPieces(const QVariantMap &split)
{
    const auto source = split.value(QStringLiteral("source")).value<GoodsItemPtr>();
    auto pieces = split.value(QStringLiteral("result")).value<GoodsItemPtrList>();
    if (!source)
        return;
    removePackagingInfo(source);
    if (!split.value(QStringLiteral("removed")).toBool())
        pieces.prepend(source);
    const QString ownGroup = source->getGroupId();
    const QString group = ownGroup.isEmpty() ? getId() : ownGroup;
    // Every piece is recorded as goods, whatever its article: what is split is what was poured.
    for (const auto &piece : std::as_const(pieces)) {
        if (!piece)
            continue;
        piece->setGroupId(group);
        createPackagingInfo(piece);
    }
}
