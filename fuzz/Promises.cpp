#include "fuzz/Promises.h"

#include <algorithm>
#include <cmath>

namespace fuzz {

namespace {

using TaraInfo = PackagingControl::TaraInfo;
using PackagingInfo = PackagingControl::PackagingInfo;

template <typename Record>
QString damage(const QList<QSharedPointer<Record>> &records)
{
    for (const auto &record : records) {
        if (!record)
            return "a null record";
        if (records.count(record) != 1)
            return "a record stands twice in its list";
    }
    return {};
}

//! Equal, also when both are no number.
bool same(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

bool same(const TaraInfo &a, const TaraInfo &b)
{
    return a.posnum == b.posnum && a.id == b.id && same(a.capacity, b.capacity)
           && same(a.freeCapacity, b.freeCapacity);
}

bool same(const PackagingInfo &a, const PackagingInfo &b)
{
    return a.posnum == b.posnum && a.usedTara.keys() == b.usedTara.keys()
           && std::equal(a.usedTara.cbegin(), a.usedTara.cend(), b.usedTara.cbegin(),
                         [](double x, double y) { return same(x, y); });
}

template <typename Record>
bool sameRecords(const QList<QSharedPointer<Record>> &a, const QList<QSharedPointer<Record>> &b)
{
    return std::equal(a.cbegin(), a.cend(), b.cbegin(), b.cend(),
                      [](const auto &x, const auto &y) { return same(*x, *y); });
}

} // namespace

void Promises::watch(const QSharedPointer<Document> &receipt)
{
    if (!m_receipts.contains(receipt))
        m_receipts.append(receipt);
}

QString Promises::broken(const TestPlugin &plugin) const
{
    for (const auto &receipt : m_receipts) {
        if (!receipt->isSwitchedOn())
            return "a receipt was left switched off";
    }
    const QString taras = damage(plugin.taraList);
    return taras.isEmpty() ? damage(plugin.packagingList) : taras;
}

QString Promises::unsaved(const TestPlugin &plugin) const
{
    if (!plugin.heldDocument())
        return {};
    TestPlugin reader;
    reader.setDocument(plugin.heldDocument());
    return sameRecords(plugin.taraList, reader.taraList)
                   && sameRecords(plugin.packagingList, reader.packagingList)
               ? QString()
               : "the document stores other records than the plugin holds";
}

QString Promises::unrestored(const TestPlugin &plugin) const
{
    const auto stored = [&plugin](const QString &key) {
        return plugin.heldDocument()->getPluginData("PackagingControl", key, {}).toList().size();
    };
    return plugin.taraList.size() == stored("taraInfo")
                   && plugin.packagingList.size() == stored("packagingInfo")
               ? QString()
               : "another number of records than is stored";
}

} // namespace fuzz
