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
    using Make = QVariant (*)(Bytes &);
    static constexpr Make makers[] = {
        [](Bytes &) { return QVariant(); },
        [](Bytes &from) { return QVariant(from.posnum()); },
        [](Bytes &from) { return QVariant(from.number()); },
        [](Bytes &from) { return QVariant(from.text()); },
        [](Bytes &from) { return QVariant(from.seldom(2)); },
        [](Bytes &from) { return QVariant(from.raw<quint64>()); },
        [](Bytes &from) { return QVariant(from.raw<qint64>()); },
        [](Bytes &from) { return QVariant(static_cast<float>(from.number())); },
        [](Bytes &from) { return QVariant(from.text().toUtf8()); },
        [](Bytes &from) {
            return QVariant(QStringList{from.text(), from.text()});
        },
        [](Bytes &) { return QVariant(QUuid()); },
        [](Bytes &from) { return QVariant(QChar(from.raw<char16_t>())); },
        [](Bytes &) { return QVariant(QDate(2024, 2, 29)); },
        [](Bytes &from) { return QVariant::fromValue(loosePosition(from)); },
        [](Bytes &) { return QVariant::fromValue(QSharedPointer<GoodsItem>()); },
        [](Bytes &from) { return QVariant::fromValue(Quantity(from.number(), quantModeNone)); },
        [](Bytes &from) { return QVariant(tr::Tr(from.text(), from.text())); },
        [](Bytes &) { return QVariant::fromValue(static_cast<void *>(nullptr)); },
    };
    return makers[bytes.choice(static_cast<int>(std::size(makers)))](bytes);
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
