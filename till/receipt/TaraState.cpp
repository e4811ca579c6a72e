#include "till/receipt/TaraState.h"

#include "till/receipt/Receipt.h"

#include <algorithm>
#include <functional>

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

//! Of several with one key, the first counts.
template <typename Key, typename Use>
void insertFirst(QHash<Key, const Use *> &uses, const Key &key, const Use *use)
{
    if (!uses.contains(key))
        uses.insert(key, use);
}

} // namespace

double GoodsUse::unplaced(double base) const
{
    for (const double amount : used)
        base -= amount;
    return base;
}

TaraControl controlOf(const Receipt &receipt)
{
    const bool isWatched = receipt.getType() == Document::Sale && !receipt.getOrder()
                           && receipt.softChecks().isEmpty();
    return isWatched ? TaraControl::Active : TaraControl::Suspended;
}

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

TaraIndex::TaraIndex(const TaraState &state)
{
    for (const TaraUse &tara : state.taras) {
        insertFirst(m_taras, tara.posnum, &tara);
        insertFirst(m_tarasById, tara.id, &tara);
    }
    for (const GoodsUse &goods : state.goods) {
        insertFirst(m_goods, goods.posnum, &goods);
        for (auto used = goods.used.cbegin(); used != goods.used.cend(); ++used)
            m_goodsIn[used.key()].append(&goods);
    }
}

QList<const TaraUse *> TaraIndex::tarasOf(const GoodsUse &goods) const
{
    QList<const TaraUse *> taras;
    for (auto used = goods.used.cbegin(); used != goods.used.cend(); ++used) {
        if (const TaraUse *tara = m_tarasById.value(used.key()))
            taras.append(tara);
    }
    std::sort(taras.begin(), taras.end(), std::less<>()); // as they lie in the state's list
    return taras;
}

} // namespace till
