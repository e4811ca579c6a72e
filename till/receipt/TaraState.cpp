#include "till/receipt/TaraState.h"

#include <algorithm>

namespace till {

namespace {

TaraUse toTaraUse(const QVariantMap &map)
{
    return {map.value("posnum").toInt(), map.value("id").toString(),
            map.value("capacity").toDouble(), map.value("freeCapacity").toDouble()};
}

GoodsUse toGoodsUse(const QVariantMap &map)
{
    GoodsUse use{map.value("posnum").toInt(), {}};
    const QVariantMap used = map.value("usedTara").toMap();
    for (auto entry = used.cbegin(); entry != used.cend(); ++entry)
        use.used.insert(entry.key(), entry.value().toDouble());
    return use;
}

template <typename Use, typename Match>
const Use *firstOf(const QList<Use> &uses, Match match)
{
    const auto found = std::find_if(uses.cbegin(), uses.cend(), match);
    return found == uses.cend() ? nullptr : &*found;
}

} // namespace

TaraState TaraState::read(const Document::PluginData &data, const QString &pluginId)
{
    const QVariantMap stored = data.value(pluginId);
    TaraState state;
    const QVariantList taras = stored.value("taraInfo").toList();
    for (const QVariant &element : taras)
        state.taras.append(toTaraUse(element.toMap()));
    const QVariantList goods = stored.value("packagingInfo").toList();
    for (const QVariant &element : goods)
        state.goods.append(toGoodsUse(element.toMap()));
    return state;
}

const TaraUse *TaraState::tara(int posnum) const
{
    return firstOf(taras, [=](const TaraUse &use) { return use.posnum == posnum; });
}

const TaraUse *TaraState::taraById(const QString &id) const
{
    return firstOf(taras, [&id](const TaraUse &use) { return use.id == id; });
}

const GoodsUse *TaraState::goodsOf(int posnum) const
{
    return firstOf(goods, [=](const GoodsUse &use) { return use.posnum == posnum; });
}

} // namespace till
