#include "bench/Records.h"

#include <log4qt/logger.h>
#include <log4qt/logmanager.h>

#include <QtCore/QDataStream>
#include <QtCore/QIODevice>
#include <QtCore/QUuid>

#include <map>
#include <utility>

namespace bench {

namespace {

using Entries = std::map<QString, QVariant>;

struct Keys
{
    QString plugin = QString::fromLatin1("PackagingControl");
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

//! Adds the last entry of a map: no search, and no copy of the value.
template <typename Value>
void append(Entries &entries, const QString &key, Value &&value)
{
    entries.emplace_hint(entries.cend(), key, std::forward<Value>(value));
}

} // namespace

Records::Records(int n)
{
    constexpr double half = 0.5;
    for (int place = 0; place < n / 2; ++place) {
        const QString id = QUuid::createUuidV5(QUuid(), QString::number(place)).toString();
        const bool isFirst = place == 0;
        const bool isLast = place == n / 2 - 1;
        const int posnum = 2 * place + 1;
        taras.push_back({posnum, id, isFirst ? 2 * half : half, isLast ? half : 0.0});
        goods.push_back({posnum + 1, {{isLast ? taras.front().id : id, half}}});
    }
}

Log4Qt::Logger &logger()
{
    static Log4Qt::Logger &packaging =
        *Log4Qt::LogManager::logger(QString::fromLatin1("packaging"));
    return packaging;
}

QString toLogText(double value)
{
    return QString::number(value, 'f', 3);
}

QByteArray toBytes(const Document &document)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << document.pluginData();
    return bytes;
}

QVariantList toTree(const std::vector<TaraInfo> &taras)
{
    QVariantList list;
    list.reserve(static_cast<qsizetype>(taras.size()));
    for (const TaraInfo &tara : taras) {
        Entries entries;
        append(entries, keys().capacity, tara.capacity);
        append(entries, keys().freeCapacity, tara.freeCapacity);
        append(entries, keys().id, tara.id);
        append(entries, keys().posnum, tara.posnum);
        list.emplace_back(QVariantMap(std::move(entries)));
    }
    return list;
}

QVariantList toTree(const std::vector<PackagingInfo> &goods)
{
    QVariantList list;
    list.reserve(static_cast<qsizetype>(goods.size()));
    for (const PackagingInfo &info : goods) {
        Entries used;
        for (auto entry = info.usedTara.cbegin(); entry != info.usedTara.cend(); ++entry)
            append(used, entry.key(), entry.value());
        Entries entries;
        append(entries, keys().posnum, info.posnum);
        append(entries, keys().usedTara, QVariantMap(std::move(used)));
        list.emplace_back(QVariantMap(std::move(entries)));
    }
    return list;
}

void store(const Records &records, Document &document)
{
    QVariantList taras = toTree(records.taras);
    QVariantList goods = toTree(records.goods);
    document.setPluginData(keys().plugin, keys().taraInfo, std::move(taras));
    document.setPluginData(keys().plugin, keys().packagingInfo, std::move(goods));
}

} // namespace bench
