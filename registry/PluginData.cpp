#include "plugin/PackagingControl.h"

#include <QtCore/QGlobalStatic>
#include <QtCore/QVariant>

#include <algorithm>
#include <bit>
#include <map>
#include <utility>

// The registry is stored in the document as a tree of variants, under the plugin's object name:
//   taraInfo:      [{capacity, freeCapacity, id, posnum}, ...]
//   packagingInfo: [{posnum, usedTara: {id: quantity, ...}}, ...]

namespace {

using TaraInfo = PackagingControl::TaraInfo;
using PackagingInfo = PackagingControl::PackagingInfo;

// Entries are appended in the order of their keys, which saves the search, to a standard map, which
// `QVariantMap` takes over as it is.
using Entries = std::map<QString, QVariant>;

template <typename Value>
void append(Entries &entries, const QString &key, const Value &value)
{
    entries.emplace_hint(entries.cend(), key, value);
}

QVariantMap toVariantMap(const TaraInfo &tara)
{
    Entries entries;
    append(entries, QStringLiteral("capacity"), tara.capacity);
    append(entries, QStringLiteral("freeCapacity"), tara.freeCapacity);
    append(entries, QStringLiteral("id"), tara.id);
    append(entries, QStringLiteral("posnum"), tara.posnum);
    return QVariantMap(std::move(entries));
}

QVariantMap toVariantMap(const QMap<QString, double> &quantities)
{
    Entries entries;
    for (auto entry = quantities.cbegin(); entry != quantities.cend(); ++entry)
        append(entries, entry.key(), entry.value());
    return QVariantMap(std::move(entries));
}

QVariantMap toVariantMap(const PackagingInfo &info)
{
    Entries entries;
    append(entries, QStringLiteral("posnum"), info.posnum);
    append(entries, QStringLiteral("usedTara"), toVariantMap(info.usedTara));
    return QVariantMap(std::move(entries));
}

// Whether their bits are the same: what is stored tells zeros apart by their sign.
bool isSame(double one, double other)
{
    return std::bit_cast<quint64>(one) == std::bit_cast<quint64>(other);
}

bool isSame(const TaraInfo &one, const TaraInfo &other)
{
    return one.posnum == other.posnum && isSame(one.capacity, other.capacity)
           && isSame(one.freeCapacity, other.freeCapacity) && one.id == other.id;
}

bool isSame(const PackagingInfo &one, const PackagingInfo &other)
{
    return one.posnum == other.posnum
           && std::equal(one.usedTara.keyValueBegin(), one.usedTara.keyValueEnd(),
                         other.usedTara.keyValueBegin(), other.usedTara.keyValueEnd(),
                         [](const auto &a, const auto &b) {
                             return isSame(a.second, b.second) && a.first == b.first;
                         });
}

// Records as they were when they were stored last, and what was made of each. It is kept beside the
// plugin, whose members are binary contract; where a second plugin object saves, it finds the
// records changed.
template <typename Record>
struct Saved
{
    QList<Record> records;
    QVariantList values;
};

Q_GLOBAL_STATIC(Saved<TaraInfo>, savedTaras)
Q_GLOBAL_STATIC(Saved<PackagingInfo>, savedInfos)

// The values of the records, in their order. Every event that changes a record stores all of them,
// so only what changed since is made anew.
template <typename Record>
QVariantList valuesOf(const QList<QSharedPointer<Record>> &records, Saved<Record> &saved)
{
    saved.records.resize(records.size());
    saved.values.resize(records.size());
    for (qsizetype i = 0; i < records.size(); ++i) {
        const Record &record = *records[i];
        if (saved.values.at(i).isValid() && isSame(saved.records.at(i), record))
            continue;
        saved.records[i] = record;
        saved.values[i] = toVariantMap(record);
    }
    return saved.values;
}

QMap<QString, double> toQuantities(const QVariantMap &map)
{
    QMap<QString, double> quantities;
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
        quantities.insert(entry.key(), entry->toDouble());
    return quantities;
}

TaraInfo toTaraInfo(const QVariantMap &map)
{
    return {.posnum = map.value(QStringLiteral("posnum")).toInt(),
            .id = map.value(QStringLiteral("id")).toString(),
            .capacity = map.value(QStringLiteral("capacity")).toDouble(),
            .freeCapacity = map.value(QStringLiteral("freeCapacity")).toDouble()};
}

PackagingInfo toPackagingInfo(const QVariantMap &map)
{
    return {.posnum = map.value(QStringLiteral("posnum")).toInt(),
            .usedTara = toQuantities(map.value(QStringLiteral("usedTara")).toMap())};
}

} // namespace

void PackagingControl::savePluginData() const
{
    if (!document)
        return;
    const QVariantList taras = valuesOf(taraList, *savedTaras);
    const QVariantList infos = valuesOf(packagingList, *savedInfos);
    document->setPluginData(objectName(), QStringLiteral("taraInfo"), taras);
    document->setPluginData(objectName(), QStringLiteral("packagingInfo"), infos);
}

void PackagingControl::restorePluginData()
{
    taraList.clear();
    packagingList.clear();
    if (!document)
        return;
    const QVariantList taras =
        document->getPluginData(objectName(), QStringLiteral("taraInfo"), {}).toList();
    for (const QVariant &tara : taras)
        taraList.append(QSharedPointer<TaraInfo>::create(toTaraInfo(tara.toMap())));
    const QVariantList infos =
        document->getPluginData(objectName(), QStringLiteral("packagingInfo"), {}).toList();
    for (const QVariant &info : infos)
        packagingList.append(QSharedPointer<PackagingInfo>::create(toPackagingInfo(info.toMap())));
}
