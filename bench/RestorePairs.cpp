#include "bench/Pairs.h"
#include "bench/Records.h"

#include <algorithm>

namespace bench {

namespace {

template <typename Record>
bool equal(const QList<QSharedPointer<Record>> &left, const QList<QSharedPointer<Record>> &right)
{
    return std::equal(left.cbegin(), left.cend(), right.cbegin(), right.cend(),
                      [](const auto &one, const auto &other) { return *one == *other; });
}

//! What \a value holds, which must be of that type.
template <typename Type>
const Type &held(const QVariant &value)
{
    return *static_cast<const Type *>(value.constData());
}

//! Records of well-formed data: a walk from entry to entry, in the order of the keys.
struct WalkedRecords
{
    QList<QSharedPointer<TaraInfo>> taras;
    QList<QSharedPointer<PackagingInfo>> goods;

    void walk(const Document &document)
    {
        taras.clear();
        goods.clear();
        const QString plugin = QStringLiteral("PackagingControl");
        const QVariant storedTaras = document.getPluginData(plugin, QStringLiteral("taraInfo"), {});
        const auto &taraList = held<QVariantList>(storedTaras);
        for (const QVariant &stored : taraList)
            walkTara(held<QVariantMap>(stored));
        const QVariant storedGoods =
            document.getPluginData(plugin, QStringLiteral("packagingInfo"), {});
        const auto &goodsList = held<QVariantList>(storedGoods);
        for (const QVariant &stored : goodsList)
            walkGoods(held<QVariantMap>(stored));
    }

private:
    void walkTara(const QVariantMap &map)
    {
        const auto tara = QSharedPointer<TaraInfo>::create();
        auto entry = map.cbegin();
        tara->capacity = held<double>(*entry++);
        tara->freeCapacity = held<double>(*entry++);
        tara->id = held<QString>(*entry++);
        tara->posnum = held<int>(*entry++);
        taras.append(tara);
    }

    void walkGoods(const QVariantMap &map)
    {
        const auto info = QSharedPointer<PackagingInfo>::create();
        auto entry = map.cbegin();
        info->posnum = held<int>(*entry++);
        const auto &used = held<QVariantMap>(*entry);
        for (auto share = used.cbegin(); share != used.cend(); ++share)
            info->usedTara.insert(info->usedTara.cend(), share.key(), held<double>(*share));
        goods.append(info);
    }
};

class RestoreValid
{
public:
    explicit RestoreValid(int n)
    {
        store(Records(n), *m_receipt);
        m_plugin.setDocument(m_receipt);
    }

    void measured() { m_plugin.restorePluginData(); }
    void byHand() { m_walked.walk(*m_receipt); }

    bool same()
    {
        measured();
        byHand();
        return !m_walked.taras.isEmpty() && equal(m_plugin.taraList, m_walked.taras)
               && equal(m_plugin.packagingList, m_walked.goods);
    }

private:
    Plugin m_plugin;
    QSharedPointer<Document> m_receipt = QSharedPointer<Document>::create();
    WalkedRecords m_walked;
};

//! \a list with every element spoilt in one of several ways, in turn.
QVariantList spoilt(const QVariantList &list, const QString &quantity)
{
    QVariantList result;
    for (qsizetype place = 0; place < list.size(); ++place) {
        QVariantMap map = list[place].toMap();
        QVariant element;
        switch (place % 5) {
        case 0: // a text that is no number, or no map
            map[quantity] = QStringLiteral("half");
            element = map;
            break;
        case 1: // a text of digits
            map[QStringLiteral("posnum")] = QString::number(place);
            element = map;
            break;
        case 2: // an entry is missing
            map.remove(quantity);
            element = map;
            break;
        case 3: // a list in place of a number
            map[QStringLiteral("posnum")] = QVariantList{1, 2};
            element = map;
            break;
        default: // no map at all
            element = place;
        }
        result.append(element);
    }
    return result;
}

//! Malformed data, over well-formed data of as many records.
class RestoreMalformed
{
public:
    explicit RestoreMalformed(int n)
    {
        const Records records(n);
        const QString plugin = QStringLiteral("PackagingControl");
        store(records, *m_valid);
        m_malformed->setPluginData(plugin, QStringLiteral("taraInfo"),
                                   spoilt(toTree(records.taras), QStringLiteral("capacity")));
        m_malformed->setPluginData(plugin, QStringLiteral("packagingInfo"),
                                   spoilt(toTree(records.goods), QStringLiteral("usedTara")));
        m_pluginOfMalformed.setDocument(m_malformed);
        m_pluginOfValid.setDocument(m_valid);
    }

    void measured() { m_pluginOfMalformed.restorePluginData(); }
    void byHand() { m_pluginOfValid.restorePluginData(); }

    //! The records are as many, and each is what is left of the valid one.
    bool same()
    {
        const auto &taras = m_pluginOfMalformed.taraList;
        const auto &goods = m_pluginOfMalformed.packagingList;
        if (taras.size() != m_pluginOfValid.taraList.size()
            || goods.size() != m_pluginOfValid.packagingList.size())
            return false;
        for (int place = 0; place < taras.size(); ++place) {
            if (!(*taras[place] == left(*m_pluginOfValid.taraList[place], place))
                || !(*goods[place] == left(*m_pluginOfValid.packagingList[place], place)))
                return false;
        }
        return true;
    }

private:
    static TaraInfo left(TaraInfo tara, int place)
    {
        const int posnums[] = {tara.posnum, place, tara.posnum, 0};
        if (place % 5 == 4)
            return {};
        tara.posnum = posnums[place % 5];
        if (place % 5 == 0 || place % 5 == 2)
            tara.capacity = 0;
        return tara;
    }

    static PackagingInfo left(PackagingInfo info, int place)
    {
        const int posnums[] = {info.posnum, place, info.posnum, 0};
        if (place % 5 == 4)
            return {};
        info.posnum = posnums[place % 5];
        if (place % 5 == 0 || place % 5 == 2)
            info.usedTara.clear();
        return info;
    }

    Plugin m_pluginOfMalformed;
    Plugin m_pluginOfValid;
    QSharedPointer<Document> m_malformed = QSharedPointer<Document>::create();
    QSharedPointer<Document> m_valid = QSharedPointer<Document>::create();
};

} // namespace

void addRestores(Pairs &pairs)
{
    addPair<RestoreValid>(pairs, "restore", 100, 20);
    addPair<RestoreMalformed>(pairs, "malformed", 100, 20);
}

} // namespace bench
