#include "plugin/PackagingControl.h"
#include "registry/NewRecord.h"

#include <QtCore/QVariant>

// The registry is kept in the document as a tree of variants, under the plugin's object name:
//   taraInfo:      [{capacity, freeCapacity, id, posnum}, ...]
//   packagingInfo: [{posnum, usedTara: {id: quantity, ...}}, ...]

namespace {

using TaraInfo = PackagingControl::TaraInfo;
using PackagingInfo = PackagingControl::PackagingInfo;

// The document keeps these texts longer than the plugin may stay loaded, so that they live on the
// heap and not in the plugin's image. They are made once: every event saves every record.
struct Keys
{
    QString taraInfo = QString::fromLatin1("taraInfo");
    QString packagingInfo = QString::fromLatin1("packagingInfo");
    QString capacity = QString::fromLatin1("capacity");
    QString freeCapacity = QString::fromLatin1("freeCapacity");
    QString id = QString::fromLatin1("id");
    QString posnum = QString::fromLatin1("posnum");
    QString usedTara = QString::fromLatin1("usedTara");
};

const Keys &keys()
{
    static const Keys texts;
    return texts;
}

// Maps are filled in the order of their keys, each entry at the end, which spares the search.

QVariantMap toVariantMap(const TaraInfo &tara)
{
    QVariantMap map;
    map.insert(map.cend(), keys().capacity, tara.capacity);
    map.insert(map.cend(), keys().freeCapacity, tara.freeCapacity);
    map.insert(map.cend(), keys().id, tara.id);
    map.insert(map.cend(), keys().posnum, tara.posnum);
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
    map.insert(map.cend(), keys().posnum, info.posnum);
    map.insert(map.cend(), keys().usedTara, toVariantMap(info.usedTara));
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
    const auto tara = packaging::newRecord<TaraInfo>();
    tara->posnum = map.value(keys().posnum).toInt();
    tara->id = map.value(keys().id).toString();
    tara->capacity = map.value(keys().capacity).toDouble();
    tara->freeCapacity = map.value(keys().freeCapacity).toDouble();
    return tara;
}

QSharedPointer<PackagingInfo> toPackagingInfo(const QVariant &stored)
{
    const QVariantMap map = stored.toMap();
    const auto info = packaging::newRecord<PackagingInfo>();
    info->posnum = map.value(keys().posnum).toInt();
    const QVariantMap usedTara = map.value(keys().usedTara).toMap();
    for (auto entry = usedTara.cbegin(); entry != usedTara.cend(); ++entry)
        info->usedTara.insert(info->usedTara.cend(), entry.key(), entry.value().toDouble());
    return info;
}

template <typename Record>
QList<QSharedPointer<Record>> toRecords(const QVariant &stored,
                                        QSharedPointer<Record> (*toRecord)(const QVariant &))
{
    const QVariantList elements = stored.toList();
    QList<QSharedPointer<Record>> records;
    records.reserve(elements.size());
    for (const QVariant &element : elements)
        records.append(toRecord(element));
    return records;
}

} // namespace

void PackagingControl::savePluginData() const
{
    const auto receipt = document; // the host may take the document away between the two writes
    if (!receipt)
        return;
    const QVariantList taras = toVariantList(taraList);
    const QVariantList packaging = toVariantList(packagingList);
    receipt->setPluginData(objectName(), keys().taraInfo, taras);
    receipt->setPluginData(objectName(), keys().packagingInfo, packaging);
}

void PackagingControl::restorePluginData()
{
    taraList.clear();
    packagingList.clear();
    const auto receipt = document;
    if (!receipt)
        return;
    const auto taras =
        toRecords(receipt->getPluginData(objectName(), keys().taraInfo, {}), toTaraInfo);
    const auto packaging =
        toRecords(receipt->getPluginData(objectName(), keys().packagingInfo, {}), toPackagingInfo);
    // While it answered, the host may have turned to another receipt, whose records these are not.
    if (document && document != receipt)
        return;
    taraList = taras;
    packagingList = packaging;
}
