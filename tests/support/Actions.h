#ifndef TESTS_SUPPORT_ACTIONS_H
#define TESTS_SUPPORT_ACTIONS_H

#include "host/Action.h"
#include "host/ActionArguments.h"
#include "host/GoodsItem.h"

//! Actions as the host hands them to the triggers.
namespace actions {

//! An action on the position \a posnum.
inline control::Action on(int posnum, control::EActionType type)
{
    const control::Action action(type, {});
    control::args::Core(action).setPositionNumber(posnum);
    return action;
}

//! One split position; the source is gone from the receipt when \a removed.
inline QVariantMap splitOf(const GoodsItemPtr &source, const GoodsItemPtrList &pieces, bool removed)
{
    return {{"source", QVariant::fromValue(source)},
            {"result", QVariant::fromValue(pieces)},
            {"removed", removed}};
}

inline control::Action split(const QVariantList &elements)
{
    return {control::SplitPositions, {{"splitPositionsData", elements}}};
}

inline control::Action unite(const GoodsItemPtrList &deleted, const GoodsItemPtrList &changed)
{
    return {control::UnitePositions,
            {{"deletedPositions", QVariant::fromValue(deleted)},
             {"changedPositions", QVariant::fromValue(changed)}}};
}

} // namespace actions

#endif // TESTS_SUPPORT_ACTIONS_H
