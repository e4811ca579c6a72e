#include "plugin/PackagingControl.h"
#include "registry/NewRecord.h"

#include <QtCore/QVariant>

#include <map>
#include <utility>

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

// Entries are put down in the order of their keys, each at the end, which spares the search; in the
// standard map, which `QVariantMap` takes over as it is, because that one takes a value by moving.
using Entries = std::map<QString, QVariant>;

template <typename Value>
void append(Entries &entries, const QString &key, const Value &value)
{
    entries.emplace_hint(entries.cend(), key, value);
}

QVariantMap toVariantMap(const TaraInfo &tara)
{
    Entries entries;
    append(entries, keys().capacity, tara.capacity);
    append(entries, keys().freeCapacity, tara.freeCapacity);
    append(entries, keys().id, tara.id);
    append(entries, keys().posnum, tara.posnum);
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
    append(entries, keys().posnum, info.posnum);
    append(entries, keys().usedTara, toVariantMap(info.usedTara));
    return QVariantMap(std::move(entries));
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

// Maps are read in one walk: keys of different lengths differ at once, which is cheaper than a
// search for each of them.

QSharedPointer<TaraInfo> toTaraInfo(const QVariant &stored)
{
    const auto tara = packaging::newRecord<TaraInfo>();
    const Keys &key = keys();
    const QVariantMap map = stored.toMap();
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        if (entry.key() == key.capacity)
            tara->capacity = entry->toDouble();
        else if (entry.key() == key.freeCapacity)
            tara->freeCapacity = entry->toDouble();
        else if (entry.key() == key.id)
            tara->id = entry->toString();
        else if (entry.key() == key.posnum)
            tara->posnum = entry->toInt();
    }
    return tara;
}

QMap<QString, double> toQuantities(const QVariant &stored)
{
    std::map<QString, double> quantities;
    const QVariantMap map = stored.toMap();
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
        quantities.emplace_hint(quantities.cend(), entry.key(), entry->toDouble());
    return QMap<QString, double>(std::move(quantities));
}

QSharedPointer<PackagingInfo> toPackagingInfo(const QVariant &stored)
{
    const auto info = packaging::newRecord<PackagingInfo>();
    const Keys &key = keys();
    const QVariantMap map = stored.toMap();
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        if (entry.key() == key.posnum)
            info->posnum = entry->toInt();
        else if (entry.key() == key.usedTara)
            info->usedTara = toQuantities(*entry);
    }
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
    // Both are made before either is written: when memory runs out here, the document keeps two
    // lists that belong together.
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
