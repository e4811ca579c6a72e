#include "tests/memory/Records.h"

#include <cmath>

namespace {

using TaraInfo = PackagingControl::TaraInfo;
using PackagingInfo = PackagingControl::PackagingInfo;

template <typename Record>
QList<Record> valuesOf(const QList<QSharedPointer<Record>> &records)
{
    QList<Record> values;
    for (const auto &record : records)
        values.append(*record);
    return values;
}

TaraInfo toTara(const QVariantMap &map)
{
    return {map.value("posnum").toInt(), map.value("id").toString(),
            map.value("capacity").toDouble(), map.value("freeCapacity").toDouble()};
}

PackagingInfo toGoods(const QVariantMap &map)
{
    PackagingInfo goods{map.value("posnum").toInt(), {}};
    const QVariantMap used = map.value("usedTara").toMap();
    const QStringList ids = used.keys();
    for (const QString &id : ids)
        goods.usedTara[id] = used.value(id).toDouble();
    return goods;
}

template <typename Record>
QList<Record> valuesOf(const QVariant &stored, Record (*toRecord)(const QVariantMap &))
{
    QList<Record> values;
    const QVariantList list = stored.toList();
    for (const QVariant &element : list)
        values.append(toRecord(element.toMap()));
    return values;
}

} // namespace

void PrintTo(const Records &records, std::ostream *out)
{
    for (const auto &tara : records.taras) {
        PrintTo(tara, out);
        *out << "; ";
    }
    for (const auto &goods : records.goods) {
        PrintTo(goods, out);
        *out << "; ";
    }
}

Records heldRecords(const TestPlugin &plugin)
{
    return {valuesOf(plugin.taraList), valuesOf(plugin.packagingList)};
}

Records storedRecords(const Document &receipt)
{
    const QVariantMap stored = receipt.pluginData().value("PackagingControl");
    return {valuesOf(stored.value("taraInfo"), toTara),
            valuesOf(stored.value("packagingInfo"), toGoods)};
}

bool isBalanced(const Records &records)
{
    constexpr double rounding = 1e-9;
    for (const TaraInfo &tara : records.taras) {
        double used = 0.0;
        for (const PackagingInfo &goods : records.goods)
            used += goods.usedTara.value(tara.id);
        if (std::abs(tara.capacity - tara.freeCapacity - used) > rounding)
            return false;
    }
    return true;
}
