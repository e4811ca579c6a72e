#include "contract/Checks.h"
#include "contract/Stage.h"

#include <QtCore/QStringList>

namespace contract {

namespace {

//! An argument as the plugin reads it: the exact key, or else the one in lower case.
QVariant argument(const control::Action &action, const QString &key)
{
    const auto arguments = action.getArguments();
    return arguments.value(key, arguments.value(key.toLower()));
}

QString numbers(const GoodsItemPtrList &positions)
{
    QStringList texts;
    for (const GoodsItemPtr &position : positions)
        texts.append(position ? QString::number(position->getPosnum()) : QStringLiteral("null"));
    return texts.join(QLatin1Char(' '));
}

double amounts(const GoodsItemPtrList &positions)
{
    double sum = 0.0;
    for (const GoodsItemPtr &position : positions)
        sum += position ? position->getBquant() : 0.0;
    return sum;
}

//! What the trigger after a split saw.
struct Split
{
    int calls = 0;
    int posnum = 0;
    qsizetype elements = 0;
    GoodsItemPtr source;
    GoodsItemPtrList pieces;
    QVariant removed;
    double left = 0.0;
    double taken = 0.0;
};

Split splitGoods(Stage &stage, const QList<double> &parts)
{
    Split seen;
    stage.probe.watch(control::SplitPositions, ActionTrigger::After, [&](const control::Action &a) {
        const QVariantList elements = argument(a, QStringLiteral("splitPositionsData")).toList();
        const QVariantMap element = elements.value(0).toMap();
        ++seen.calls;
        seen.elements = elements.size();
        seen.source = element.value(QStringLiteral("source")).value<GoodsItemPtr>();
        seen.pieces = element.value(QStringLiteral("result")).value<GoodsItemPtrList>();
        seen.removed = element.value(QStringLiteral("removed"));
        seen.left = seen.source ? seen.source->getBquant() : 0.0;
        seen.taken = amounts(seen.pieces);
        return EContext::Continue;
    });
    stage.begin();
    stage.tara();
    seen.posnum = stage.goods();
    stage.driver->split(seen.posnum, parts);
    return seen;
}

Finding splitIsTold(Stage &stage)
{
    const Split seen = splitGoods(stage, {1.5});
    return judge({{seen.calls == 1, QStringLiteral("called %1 times").arg(seen.calls)}});
}

Finding splitData(Stage &stage)
{
    const Split seen = splitGoods(stage, {1.5});
    if (seen.calls == 0)
        throw NotOffered{"split"};
    return judge({{seen.elements == 1,
                   QStringLiteral("%1 elements under \"splitPositionsData\"").arg(seen.elements)},
                  flag(seen.source && seen.source->getPosnum() == seen.posnum,
                       "no handle of the split position under \"source\""),
                  {seen.pieces.size() == 1,
                   QStringLiteral("positions \"%1\" under \"result\"").arg(numbers(seen.pieces))},
                  flag(!seen.removed.toBool(), "\"removed\" of a position that stayed")});
}

Finding splitIsApplied(Stage &stage)
{
    const Split seen = splitGoods(stage, {1.5});
    if (!seen.source || seen.pieces.isEmpty())
        throw NotOffered{"split"};
    return judge({amount("what is left in the position", seen.left, 2.5),
                  amount("what was taken off", seen.taken, 1.5)});
}

Finding splitUp(Stage &stage)
{
    const Split seen = splitGoods(stage, {1.5, 2.5});
    if (!seen.source || seen.pieces.isEmpty())
        throw NotOffered{"split"};
    const bool isThere = !stage.receipt->getPositionByPosnum(seen.posnum).isNull();
    return judge({flag(seen.removed.toBool() != isThere,
                       isThere ? "\"removed\" of a position that stayed"
                               : "no \"removed\" of a position that is gone")});
}

//! What the trigger after a union saw.
struct Union
{
    int calls = 0;
    int survivor = 0;
    int other = 0;
    GoodsItemPtrList deleted;
    GoodsItemPtrList changed;
    double sum = 0.0;
};

Union uniteGoods(Stage &stage)
{
    Union seen;
    stage.probe.watch(control::UnitePositions, ActionTrigger::After, [&](const control::Action &a) {
        ++seen.calls;
        seen.deleted = argument(a, QStringLiteral("deletedPositions")).value<GoodsItemPtrList>();
        seen.changed = argument(a, QStringLiteral("changedPositions")).value<GoodsItemPtrList>();
        seen.sum = amounts(seen.changed);
        return EContext::Continue;
    });
    stage.begin();
    seen.survivor = stage.goods();
    seen.other = stage.goods();
    stage.driver->unite({seen.survivor, seen.other});
    return seen;
}

Row lists(const char *key, const GoodsItemPtrList &seen, int needed)
{
    return {numbers(seen) == QString::number(needed),
            QStringLiteral("positions \"%1\" and not %2 under \"%3\"")
                .arg(numbers(seen))
                .arg(needed)
                .arg(QString::fromLatin1(key))};
}

Finding unionIsTold(Stage &stage)
{
    const Union seen = uniteGoods(stage);
    return judge({{seen.calls == 1, QStringLiteral("called %1 times").arg(seen.calls)}});
}

Finding unionData(Stage &stage)
{
    const Union seen = uniteGoods(stage);
    if (seen.calls == 0)
        throw NotOffered{"unite"};
    return judge({lists("deletedPositions", seen.deleted, seen.other),
                  lists("changedPositions", seen.changed, seen.survivor)});
}

Finding unionIsApplied(Stage &stage)
{
    const Union seen = uniteGoods(stage);
    if (seen.changed.isEmpty())
        throw NotOffered{"unite"};
    return judge({amount("the amount of what was put together", seen.sum, 8.0)});
}

} // namespace

Checks splitChecks()
{
    return {
        {"Split.IsTold", "a trigger after action 233 is called for a split",
         "the pieces of split goods are not tied to their tara", onStage<splitIsTold>},
        {"Split.Arguments",
         "\"splitPositionsData\" lists maps of \"source\" (handle), \"result\" (list of handles) "
         "and "
         "\"removed\"",
         "the pieces of split goods are not tied to their tara", onStage<splitData>},
        {"Split.IsApplied", "the pieces have their amounts when the trigger is called",
         "pieces take the capacity that the whole took", onStage<splitIsApplied>},
        {"Split.Removed", "\"removed\" is true when nothing stayed in the split position",
         "a position that is gone goes on taking capacity", onStage<splitUp>},
        {"Unite.IsTold", "a trigger after action 234 is called for a union",
         "united goods take their capacity twice", onStage<unionIsTold>},
        {"Unite.Arguments", "\"deletedPositions\" and \"changedPositions\" list the handles",
         "united goods take their capacity twice", onStage<unionData>},
        {"Unite.IsApplied", "the surviving position has its new amount when the trigger is called",
         "tara looks emptier than it is", onStage<unionIsApplied>},
    };
}

} // namespace contract
