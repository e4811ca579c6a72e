#include "fuzz/VariantTree.h"

#include "host/Quantity.h"
#include "host/Tr.h"

#include <QtCore/QDate>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QStringList>
#include <QtCore/QUuid>

namespace fuzz {

namespace {

constexpr int DeepEnough = 5;

//! Keys that are read somewhere, and some that are nearly those.
QString key(Bytes &bytes)
{
    static const QString keys[] = {"posnum", "usedTara", "capacity", "freeCapacity", "id",
                                   "source", "result",   "removed",  "Posnum",       ""};
    return bytes.seldom(8) ? bytes.text() : keys[bytes.choice(static_cast<int>(std::size(keys)))];
}

QVariantList list(Bytes &bytes, int depth)
{
    QVariantList list;
    for (int size = bytes.choice(5); size > 0; --size)
        list.append(anything(bytes, depth + 1));
    return list;
}

QVariantMap map(Bytes &bytes, int depth)
{
    QVariantMap map;
    for (int size = bytes.choice(5); size > 0; --size) {
        const QString name = key(bytes);
        map.insert(name, anything(bytes, depth + 1));
    }
    return map;
}

QVariant container(Bytes &bytes, int depth)
{
    switch (bytes.choice(6)) {
    case 0:
        return list(bytes, depth);
    case 1:
        return map(bytes, depth);
    case 2: {
        const QVariantMap entries = map(bytes, depth);
        QVariantHash hash;
        for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry)
            hash.insert(entry.key(), entry.value());
        return hash;
    }
    case 3:
        return QJsonArray::fromVariantList(list(bytes, depth));
    case 4:
        return QJsonObject::fromVariantMap(map(bytes, depth));
    default:
        return QVariant::fromValue(GoodsItemPtrList{loosePosition(bytes), nullptr});
    }
}

QVariant plain(Bytes &bytes)
{
    switch (bytes.choice(18)) {
    case 0:
        return {};
    case 1:
        return bytes.posnum();
    case 2:
        return bytes.number();
    case 3:
        return bytes.text();
    case 4:
        return bytes.seldom(2);
    case 5:
        return bytes.raw<quint64>();
    case 6:
        return bytes.raw<qint64>();
    case 7:
        return static_cast<float>(bytes.number());
    case 8:
        return bytes.text().toUtf8();
    case 9:
        return QStringList{bytes.text(), bytes.text()};
    case 10:
        return QUuid();
    case 11:
        return QChar(bytes.raw<char16_t>());
    case 12:
        return QDate(2024, 2, 29);
    case 13:
        return QVariant::fromValue(loosePosition(bytes));
    case 14:
        return QVariant::fromValue(QSharedPointer<GoodsItem>());
    case 15:
        return QVariant::fromValue(Quantity(bytes.number(), quantModeNone));
    case 16:
        return tr::Tr(bytes.text(), bytes.text());
    default:
        return QVariant::fromValue(static_cast<void *>(nullptr));
    }
}

QVariant quantities(Bytes &bytes)
{
    return nearlyAlways(bytes, [&] {
        QVariantMap used;
        for (int size = bytes.choice(4); size > 0; --size) {
            const QString id = bytes.text();
            used.insert(id, nearlyAlways(bytes, [&] { return bytes.number(); }));
        }
        return QVariant(used);
    });
}

//! A list of maps, each entry made by the field of its name; some are missing.
using Field = std::pair<QString, std::function<QVariant()>>;

QVariant records(Bytes &bytes, const QList<Field> &fields)
{
    return nearlyAlways(bytes, [&] {
        QVariantList list;
        for (int size = bytes.choice(6); size > 0; --size)
            list.append(nearlyAlways(bytes, [&] {
                QVariantMap map;
                for (const auto &[name, make] : fields) {
                    if (!bytes.seldom(16))
                        map.insert(name, nearlyAlways(bytes, make));
                }
                return QVariant(map);
            }));
        return QVariant(list);
    });
}

} // namespace

QVariant anything(Bytes &bytes, int depth)
{
    return depth < DeepEnough && bytes.seldom(3) ? container(bytes, depth) : plain(bytes);
}

QVariant nearlyAlways(Bytes &bytes, const std::function<QVariant()> &make)
{
    return bytes.seldom(12) ? anything(bytes) : make();
}

QVariant taraData(Bytes &bytes)
{
    const auto number = [&] { return bytes.number(); };
    return records(bytes, {{"posnum", [&] { return bytes.posnum(); }},
                           {"id", [&] { return bytes.text(); }},
                           {"capacity", number},
                           {"freeCapacity", number}});
}

QVariant packagingData(Bytes &bytes)
{
    return records(bytes, {{"posnum", [&] { return bytes.posnum(); }},
                           {"usedTara", [&] { return quantities(bytes); }}});
}

QSharedPointer<GoodsItem> loosePosition(Bytes &bytes)
{
    const int mode = bytes.seldom(16) ? bytes.raw<int>() : bytes.choice(3);
    const QVariant capacity = bytes.seldom(12) ? plain(bytes) : QVariant(bytes.number());
    const auto position = QSharedPointer<GoodsItem>::create(
        bytes.posnum(), QSharedPointer<Tmc>::create(mode, capacity));
    position->setCquant(bytes.number());
    position->setBquant(bytes.number());
    if (bytes.seldom(4))
        position->setGroupId(bytes.text());
    return position;
}

} // namespace fuzz
