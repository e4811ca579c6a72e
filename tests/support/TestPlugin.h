#ifndef TESTS_SUPPORT_TESTPLUGIN_H
#define TESTS_SUPPORT_TESTPLUGIN_H

#include "host/Event.h"
#include "host/GoodsItem.h"
#include "plugin/PackagingControl"

#include <ostream>

//! The plugin with everything in reach that a subclass reaches.
class TestPlugin : public PackagingControl
{
public:
    using PackagingControl::afterSoftcheck;
    using PackagingControl::afterSplitPositions;
    using PackagingControl::afterUnitePositions;
    using PackagingControl::beforeApplyModifiers;
    using PackagingControl::beforeSubtotal;
    using PackagingControl::createPackagingInfo;
    using PackagingControl::createTara;
    using PackagingControl::disablePlugin;
    using PackagingControl::getId;
    using PackagingControl::getPackagingInfoByPosnum;
    using PackagingControl::getTaraByPosnum;
    using PackagingControl::isExistsEmptyTara;
    using PackagingControl::isTaraPartialFilled;
    using PackagingControl::isTaraSplitted;
    using PackagingControl::logger;
    using PackagingControl::modifyPackagingPositionQuantity;
    using PackagingControl::modifyPackagingUsedCapacity;
    using PackagingControl::modifyTaraCapacity;
    using PackagingControl::onModifierApplyEvent;
    using PackagingControl::onPositionAddEvent;
    using PackagingControl::onPositionStornoEvent;
    using PackagingControl::packagingList;
    using PackagingControl::removePackagingInfo;
    using PackagingControl::restorePluginData;
    using PackagingControl::savePluginData;
    using PackagingControl::stornoAllEmptyTara;
    using PackagingControl::taraList;

    //! The document that the plugin holds.
    QSharedPointer<AbstractDocument> heldDocument() const { return document; }

    //! Appends a tara record; \a freeCapacity may differ from \a capacity.
    QSharedPointer<TaraInfo> putTara(int posnum, const QString &id, double capacity,
                                     double freeCapacity)
    {
        taraList.append(QSharedPointer<TaraInfo>(new TaraInfo{posnum, id, capacity, freeCapacity}));
        return taraList.constLast();
    }

    //! Appends a goods record.
    QSharedPointer<PackagingInfo> putGoods(int posnum, const QMap<QString, double> &usedTara = {})
    {
        packagingList.append(QSharedPointer<PackagingInfo>(new PackagingInfo{posnum, usedTara}));
        return packagingList.constLast();
    }

    //! Changes the quantity of the goods of the first record.
    bool changeGoodsBy(double delta)
    {
        return modifyPackagingPositionQuantity(packagingList.constFirst(), delta);
    }
};

//! The records themselves, to be compared by value, or kept from what is changed later.
template <typename Record>
QList<Record> valuesOf(const QList<QSharedPointer<Record>> &records)
{
    QList<Record> values;
    for (const auto &record : records)
        values.append(*record);
    return values;
}

//! What a host's journal tells when the plugin has saved its records once.
inline QStringList savedOnce()
{
    return {"save taraInfo", "save packagingInfo"};
}

// How failed comparisons show records.

inline void PrintTo(const PackagingControl::TaraInfo &tara, std::ostream *out)
{
    *out << "tara " << tara.posnum << " {" << tara.id.toStdString() << "} capacity "
         << tara.capacity << " free " << tara.freeCapacity;
}

inline void PrintTo(const PackagingControl::PackagingInfo &info, std::ostream *out)
{
    *out << "goods " << info.posnum << " in";
    for (auto used = info.usedTara.cbegin(); used != info.usedTara.cend(); ++used)
        *out << " {" << used.key().toStdString() << "}: " << used.value();
}

#endif // TESTS_SUPPORT_TESTPLUGIN_H
