#include "plugin/PackagingControl.h"

#include <QtCore/QVariant>

#include <utility>

// The registry is kept in the document as a tree of variants, under the plugin's object name:
//   taraInfo:      [{capacity, freeCapacity, id, posnum}, ...]
//   packagingInfo: [{posnum, usedTara: {id: quantity, ...}}, ...]

namespace {

using TaraInfo = PackagingControl::TaraInfo;
using PackagingInfo = PackagingControl::PackagingInfo;

// The keys are literals without an allocation: every event saves every record.
QString taraInfoKey()
{
    return QStringLiteral("taraInfo");
}

QString packagingInfoKey()
{
    return QStringLiteral("packagingInfo");
}

QString capacityKey()
{
    return QStringLiteral("capacity");
}

QString freeCapacityKey()
{
    return QStringLiteral("freeCapacity");
}

QString idKey()
{
    return QStringLiteral("id");
}

QString posnumKey()
{
    return QStringLiteral("posnum");
}

QString usedTaraKey()
{
    return QStringLiteral("usedTara");
}

// Maps are filled in the order of their keys, each entry at the end, which spares the search.

QVariantMap toVariantMap(const TaraInfo &tara)
{
    QVariantMap map;
    map.insert(map.cend(), capacityKey(), tara.capacity);
    map.insert(map.cend(), freeCapacityKey(), tara.freeCapacity);
    map.insert(map.cend(), idKey(), tara.id);
    map.insert(map.cend(), posnumKey(), tara.posnum);
    return map;
}

QVariantMap toVariantMap(const QMap<QString, double> &quantities)
{
    QVariantMap map;
    for (auto entry = quantities.cbegin(); entry != quantities.cend(); ++entry)
        map.insert(map.cend(), entry.key(), entry.value());
    return map;
}

QVariantMap toVariantMap(const PackagingInfo &info)
{
    QVariantMap map;
    map.insert(map.cend(), posnumKey(), info.posnum);
    map.insert(map.cend(), usedTaraKey(), toVariantMap(info.usedTara));
    return map;
}

template <typename Record>
QVariantList toVariantList(const QList<QSharedPointer<Record>> &records)
{
    QVariantList list;
    list.reserve(records.size());
    for (const auto &record : records)
        list.append(toVariantMap(*record));
    return list;
}

QSharedPointer<TaraInfo> toTaraInfo(const QVariant &stored)
{
    const QVariantMap map = stored.toMap();
    const auto tara = QSharedPointer<TaraInfo>::create();
    tara->posnum = map.value(posnumKey()).toInt();
    tara->id = map.value(idKey()).toString();
    tara->capacity = map.value(capacityKey()).toDouble();
    tara->freeCapacity = map.value(freeCapacityKey()).toDouble();
    return tara;
}

QSharedPointer<PackagingInfo> toPackagingInfo(const QVariant &stored)
{
    const QVariantMap map = stored.toMap();
    const auto info = QSharedPointer<PackagingInfo>::create();
    info->posnum = map.value(posnumKey()).toInt();
    const QVariantMap usedTara = map.value(usedTaraKey()).toMap();
    for (auto entry = usedTara.cbegin(); entry != usedTara.cend(); ++entry)
        info->usedTara.insert(info->usedTara.cend(), entry.key(), entry.value().toDouble());
    return info;
}

} // namespace

void PackagingControl::savePluginData() const
{
    const auto receipt = document; // the host may take the document away between the two writes
    if (!receipt)
        return;
    QVariantList taras = toVariantList(taraList);
    QVariantList packaging = toVariantList(packagingList);
    receipt->setPluginData(objectName(), taraInfoKey(), std::move(taras));
    receipt->setPluginData(objectName(), packagingInfoKey(), std::move(packaging));
}

void PackagingControl::restorePluginData()
{
    taraList.clear();
    packagingList.clear();
    const auto receipt = document;
    if (!receipt)
        return;
    const QVariantList taras = receipt->getPluginData(objectName(), taraInfoKey(), {}).toList();
    for (const QVariant &stored : taras)
        taraList.append(toTaraInfo(stored));
    const QVariantList packaging =
        receipt->getPluginData(objectName(), packagingInfoKey(), {}).toList();
    for (const QVariant &stored : packaging)
        packagingList.append(toPackagingInfo(stored));
}
