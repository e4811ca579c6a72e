#include "contract/Checks.h"
#include "contract/Stage.h"

#include <QtCore/QMetaType>

#include <bit>

namespace contract {

namespace {

const QString kitsPlugin = QStringLiteral("ContractKit");
const QString kitsKey = QStringLiteral("records");

//! Everything that the plugin's records are made of.
QVariantList storedTree()
{
    const QVariantMap used{{QStringLiteral("{0b7c}"), 0.1 + 0.2},
                           {QStringLiteral("тара"), -1.0 / 3.0}};
    return {QVariantMap{{QStringLiteral("posnum"), 7},
                        {QStringLiteral("id"), QStringLiteral("Бочка «№ 1»")},
                        {QStringLiteral("usedTara"), used},
                        {QStringLiteral("none"), QVariantList()}},
            QVariantMap()};
}

bool hasSameBits(double one, double other)
{
    return std::bit_cast<quint64>(one) == std::bit_cast<quint64>(other);
}

Finding compareWithStored(const QVariant &seen)
{
    const QVariantList elements = seen.toList();
    const QVariantMap element = elements.value(0).toMap();
    const QVariant posnum = element.value(QStringLiteral("posnum"));
    const QVariantMap used = element.value(QStringLiteral("usedTara")).toMap();
    return judge(
        {flag(elements.size() == 2 && element.size() == 4, "a list or a map of another size"),
         {posnum.metaType() == QMetaType::fromType<int>() && posnum.toInt() == 7,
          QStringLiteral("int 7 became %1 \"%2\"")
              .arg(QString::fromLatin1(posnum.typeName()), posnum.toString())},
         flag(element.value(QStringLiteral("id")) == QStringLiteral("Бочка «№ 1»"),
              "a Russian text became another"),
         flag(used.value(QStringLiteral("{0b7c}")).metaType() == QMetaType::fromType<double>()
                  && hasSameBits(used.value(QStringLiteral("{0b7c}")).toDouble(), 0.1 + 0.2)
                  && hasSameBits(used.value(QStringLiteral("тара")).toDouble(), -1.0 / 3.0),
              "a double in a nested map lost bits"),
         flag(element.value(QStringLiteral("none")).metaType()
                  == QMetaType::fromType<QVariantList>(),
              "an empty list became something else")});
}

Finding typeAndOrder(Stage &stage)
{
    stage.begin();
    return judge({{stage.receipt->getType() == 1,
                   QStringLiteral("a sale is of type %1").arg(stage.receipt->getType())},
                  flag(!stage.receipt->getOrder(), "a new sale has an order")});
}

Finding lookup(Stage &stage)
{
    stage.begin();
    const int posnum = stage.tara();
    const auto found = stage.receipt->getPositionByPosnum(posnum);
    return judge({flag(found && found->getPosnum() == posnum, "the position is not found"),
                  flag(!stage.receipt->getPositionByPosnum(9999), "position 9999 is found")});
}

Finding positionList(Stage &stage)
{
    stage.begin();
    const bool isEmptyAtFirst = stage.receipt->getPositionList().isEmpty();
    const int posnum = stage.tara();
    const bool isEmptyWithTara = stage.receipt->getPositionList().isEmpty();
    stage.driver->storno(posnum);
    return judge({flag(isEmptyAtFirst, "not empty in a new receipt"),
                  flag(!isEmptyWithTara, "empty with a position in the receipt"),
                  flag(stage.receipt->getPositionList().isEmpty(), "not empty after the storno")});
}

Finding taraArticle(Stage &stage)
{
    stage.begin();
    const GoodsItemPtr position = stage.position(stage.tara());
    return judge({{position->getTmc()->getTaraMode() == Tmc::Tara,
                   QStringLiteral("tara mode %1").arg(position->getTmc()->getTaraMode())},
                  amount("the capacity of one", position->getTmcTaraCapacity().toDouble(), 5.0),
                  amount("the count", position->getCquant(), 2.0)});
}

Finding goodsArticle(Stage &stage)
{
    stage.begin();
    const GoodsItemPtr position = stage.position(stage.goods());
    return judge({{position->getTmc()->getTaraMode() == Tmc::PackagingGoods,
                   QStringLiteral("tara mode %1").arg(position->getTmc()->getTaraMode())},
                  amount("the amount", position->getBquant(), 4.0)});
}

Finding groups(Stage &stage)
{
    stage.begin();
    const GoodsItemPtr position = stage.position(stage.goods());
    const QString atFirst = position->getGroupId();
    position->setGroupId(QStringLiteral("{group}"));
    return judge(
        {flag(atFirst.isEmpty(), "a new position is in a group"),
         flag(position->getGroupId() == QLatin1String("{group}"), "the group is not kept")});
}

Finding positionTravels(Stage &stage)
{
    stage.begin();
    const GoodsItemPtr position = stage.position(stage.goods());
    const GoodsItemPtrList list{position};
    return judge({flag(QVariant::fromValue(position).value<GoodsItemPtr>() == position,
                       "a handle comes back as another"),
                  flag(QVariant::fromValue(position).value<QObject *>() == position.get(),
                       "a handle does not convert to its QObject"),
                  flag(QVariant::fromValue(list).value<GoodsItemPtrList>() == list,
                       "a list of handles comes back as another"),
                  flag(QVariant(5).value<GoodsItemPtr>().isNull(), "5 converts to a handle")});
}

Finding dataDefault(Stage &stage)
{
    stage.begin();
    const QVariant seen = stage.receipt->getPluginData(kitsPlugin, kitsKey, 7);
    return judge({{seen == QVariant(7), QStringLiteral("\"%1\"").arg(seen.toString())}});
}

Finding dataComesBack(Stage &stage)
{
    stage.begin();
    stage.receipt->setPluginData(kitsPlugin, kitsKey, storedTree());
    return compareWithStored(stage.receipt->getPluginData(kitsPlugin, kitsKey, {}));
}

Finding emptyListStays(Stage &stage)
{
    stage.begin();
    stage.receipt->setPluginData(kitsPlugin, kitsKey, QVariantList());
    const QVariant seen = stage.receipt->getPluginData(kitsPlugin, kitsKey, 7);
    return judge({flag(seen != QVariant(7), "the default, as if nothing had been stored")});
}

Finding dataIsApart(Stage &stage)
{
    stage.begin();
    stage.receipt->setPluginData(kitsPlugin, kitsKey, 1);
    stage.receipt->setPluginData(QStringLiteral("Another"), kitsKey, 2);
    stage.receipt->setPluginData(kitsPlugin, QStringLiteral("another"), 3);
    const QVariant seen = stage.receipt->getPluginData(kitsPlugin, kitsKey, {});
    return judge({{seen == QVariant(1), QStringLiteral("\"%1\" and not 1").arg(seen.toString())}});
}

Finding dataIsStored(Stage &stage)
{
    stage.begin();
    stage.tara();
    stage.receipt->setPluginData(kitsPlugin, kitsKey, storedTree());
    const auto loaded = stage.driver->storeAndLoad();
    if (!loaded)
        return broken(QStringLiteral("no receipt was loaded"));
    return compareWithStored(loaded->getPluginData(kitsPlugin, kitsKey, {}));
}

Finding switchedOff(Stage &stage)
{
    stage.begin();
    const int posnum = stage.tara();
    stage.receipt->setDocumentSwitch(false);
    const bool isFound = !stage.receipt->getPositionByPosnum(posnum).isNull();
    stage.receipt->setDocumentSwitch(true);
    return judge({flag(isFound, "no position is found while the document is switched off")});
}

} // namespace

Checks documentChecks()
{
    return {
        {"Document.Sale", "an opened sale is of type 1 and has no order",
         "the plugin takes no part in the receipt", onStage<typeAndOrder>},
        {"Document.Lookup", "a position is found by its number, and null where there is none",
         "positions are taken for others", onStage<lookup>},
        {"Document.List", "getPositionList is empty only when nothing is sold",
         "payment goes on with an empty receipt, or never", onStage<positionList>},
        {"Document.Tara", "a tara position has tara mode 1, its capacity, and its count",
         "tara has no capacity", onStage<taraArticle>},
        {"Document.Goods", "a position of poured goods has tara mode 2 and its amount",
         "goods are not poured", onStage<goodsArticle>},
        {"Document.Group", "a position keeps the group that it is put into",
         "pieces of split goods are shown apart", onStage<groups>},
        {"Document.HandlesTravel", "handles of positions come back from a variant as the host's",
         "positions in events are not recognised", onStage<positionTravels>},
        {"Document.Switch", "a document that is switched off still answers",
         "stornoed tara leaves its goods behind", onStage<switchedOff>},
        {"Data.Default", "getPluginData gives the default where nothing was stored",
         "a new receipt starts with records", onStage<dataDefault>},
        {"Data.ComesBack", "nested lists and maps, int, double and text come back as stored",
         "records of a receipt that is taken up again are wrong", onStage<dataComesBack>},
        {"Data.EmptyList", "a stored empty list is not the same as nothing stored",
         "records that were dropped come back", onStage<emptyListStays>},
        {"Data.Apart", "data of other plugins and keys are apart",
         "the plugin reads what another stored", onStage<dataIsApart>},
        {"Data.Stored", "data come back as stored after the receipt was stored and loaded",
         "records of a receipt that is opened again are wrong", onStage<dataIsStored>},
    };
}

} // namespace contract
