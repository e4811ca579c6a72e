#include "tests/registry/RegistryFixture.h"

#include <functional>

namespace {

class Save : public Registry
{
protected:
    QVariantMap storedTara(int index) const { return stored("taraInfo").toList()[index].toMap(); }

    QVariantMap storedGoods(int index) const
    {
        return stored("packagingInfo").toList()[index].toMap();
    }
};

TEST_F(Save, TaraAndGoods_AreStoredAsATree)
{
    plugin.putTara(2, "{a}", 10.0, 5.5);
    plugin.putGoods(3, {{"{a}", 4.5}});

    plugin.savePluginData();

    EXPECT_EQ(
        stored("taraInfo"),
        QVariant(QVariantList{QVariantMap{
            {"capacity", 10.0}, {"freeCapacity", 5.5}, {"id", QString("{a}")}, {"posnum", 2}}}));
    EXPECT_EQ(stored("packagingInfo"),
              QVariant(QVariantList{
                  QVariantMap{{"posnum", 3}, {"usedTara", QVariantMap{{"{a}", 4.5}}}}}));
}

TEST_F(Save, Lists_AreVariantLists)
{
    plugin.putTara(2, "{a}", 10.0, 5.5);
    plugin.putGoods(3);

    plugin.savePluginData();

    EXPECT_EQ(stored("taraInfo").typeId(), QMetaType::QVariantList);
    EXPECT_EQ(stored("packagingInfo").typeId(), QMetaType::QVariantList);
    EXPECT_EQ(stored("taraInfo").toList()[0].typeId(), QMetaType::QVariantMap);
    EXPECT_EQ(stored("packagingInfo").toList()[0].typeId(), QMetaType::QVariantMap);
}

TEST_F(Save, FieldsOfATara_HaveTheirTypes)
{
    plugin.putTara(2, "{a}", 10.0, 5.0); // whole numbers are doubles all the same

    plugin.savePluginData();

    EXPECT_EQ(storedTara(0).value("posnum").typeId(), QMetaType::Int);
    EXPECT_EQ(storedTara(0).value("id").typeId(), QMetaType::QString);
    EXPECT_EQ(storedTara(0).value("capacity").typeId(), QMetaType::Double);
    EXPECT_EQ(storedTara(0).value("freeCapacity").typeId(), QMetaType::Double);
}

TEST_F(Save, FieldsOfGoods_HaveTheirTypes)
{
    plugin.putGoods(3, {{"{a}", 4.0}});

    plugin.savePluginData();

    EXPECT_EQ(storedGoods(0).value("posnum").typeId(), QMetaType::Int);
    EXPECT_EQ(storedGoods(0).value("usedTara").typeId(), QMetaType::QVariantMap);
    EXPECT_EQ(storedGoods(0).value("usedTara").toMap().value("{a}").typeId(), QMetaType::Double);
}

TEST_F(Save, Maps_HaveNothingElse)
{
    plugin.putTara(2, QString(), 0.0, 0.0);
    plugin.putGoods(3);

    plugin.savePluginData();

    EXPECT_EQ(QStringList(storedTara(0).keys()),
              (QStringList{"capacity", "freeCapacity", "id", "posnum"}));
    EXPECT_EQ(QStringList(storedGoods(0).keys()), (QStringList{"posnum", "usedTara"}));
    EXPECT_EQ(storedGoods(0).value("usedTara"), QVariant(QVariantMap()));
}

TEST_F(Save, Lists_KeepTheirOrder)
{
    plugin.putTara(9, "{b}", 1.0, 1.0);
    plugin.putTara(2, "{a}", 1.0, 1.0);
    plugin.putGoods(8);
    plugin.putGoods(3);

    plugin.savePluginData();

    EXPECT_EQ(storedTara(0).value("posnum"), QVariant(9));
    EXPECT_EQ(storedTara(1).value("posnum"), QVariant(2));
    EXPECT_EQ(storedGoods(0).value("posnum"), QVariant(8));
    EXPECT_EQ(storedGoods(1).value("posnum"), QVariant(3));
}

TEST_F(Save, EmptyRegistry_StoresTwoEmptyLists)
{
    plugin.savePluginData();

    EXPECT_EQ(stored("taraInfo"), QVariant(QVariantList()));
    EXPECT_EQ(stored("packagingInfo"), QVariant(QVariantList()));
}

TEST_F(Save, AgainWithFewerRecords_ReplacesWhatWasThere)
{
    plugin.putTara(2, "{a}", 1.0, 1.0);
    plugin.putGoods(3);
    plugin.savePluginData();
    plugin.taraList.clear();
    plugin.packagingList.clear();

    plugin.savePluginData();

    EXPECT_EQ(stored("taraInfo"), QVariant(QVariantList()));
    EXPECT_EQ(stored("packagingInfo"), QVariant(QVariantList()));
}

TEST_F(Save, UsesTwoKeysOfItsOwnAndNoOther)
{
    host.receipt()->setPluginData("Another", "taraInfo", 1);
    host.receipt()->setPluginData("PackagingControl", "other", 2);
    plugin.putTara(2, "{a}", 1.0, 1.0);

    plugin.savePluginData();

    const auto data = host.receipt()->pluginData();
    EXPECT_EQ(QStringList(data.keys()), (QStringList{"Another", "PackagingControl"}));
    EXPECT_EQ(data.value("Another"), (QVariantMap{{"taraInfo", 1}}));
    EXPECT_EQ(QStringList(data.value("PackagingControl").keys()),
              (QStringList{"other", "packagingInfo", "taraInfo"}));
    EXPECT_EQ(data.value("PackagingControl").value("other"), QVariant(2));
}

TEST_F(Save, WritesTheTaraFirstAndReadsNothing)
{
    plugin.savePluginData();

    EXPECT_EQ(host.journal, savedOnce());
}

TEST_F(Save, ChangesAndLogsNothing)
{
    const auto container = plugin.putTara(2, "{a}", 10.0, -5.5);
    const auto user = plugin.putGoods(3, {{"{a}", 15.5}});

    plugin.savePluginData();

    EXPECT_THAT(plugin.taraList, testing::ElementsAre(container));
    EXPECT_THAT(plugin.packagingList, testing::ElementsAre(user));
    EXPECT_EQ(*container, (PackagingControl::TaraInfo{2, "{a}", 10.0, -5.5}));
    EXPECT_EQ(*user, (PackagingControl::PackagingInfo{3, {{"{a}", 15.5}}}));
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(Save, RecordChangedAfterwards_IsNotInTheDocumentUntilTheNextSave)
{
    const auto container = plugin.putTara(2, "{a}", 10.0, 10.0);
    plugin.savePluginData();

    plugin.modifyTaraCapacity(container, 4.0);
    EXPECT_EQ(storedTara(0).value("capacity"), QVariant(10.0));

    plugin.savePluginData();
    EXPECT_EQ(storedTara(0).value("capacity"), QVariant(4.0));
}

TEST_F(Save, WithoutADocument_WritesNothing)
{
    plugin.putTara(2, "{a}", 10.0, 10.0);
    plugin.disablePlugin();

    plugin.savePluginData();

    EXPECT_EQ(host.journal, QStringList());
    EXPECT_EQ(plugin.taraList.size(), 1);
}

TEST_F(Save, NothingElseOfTheRegistry_Saves)
{
    const auto container = plugin.createTara(tara(2, 10.0));
    const auto user = plugin.createPackagingInfo(goods(3, 4.0));
    plugin.modifyTaraCapacity(container, 5.0);
    plugin.modifyPackagingUsedCapacity(user, 5.0);
    plugin.isTaraSplitted(host.receipt()->getPositionByPosnum(2));
    plugin.isTaraPartialFilled(host.receipt()->getPositionByPosnum(2));
    plugin.isExistsEmptyTara();

    EXPECT_EQ(host.journal, QStringList());
}

//! A document that calls back when something is stored in it or read from it.
class CallingDocument : public Document
{
public:
    void setPluginData(const QString &pluginId, const QString &key, const QVariant &value) override
    {
        Document::setPluginData(pluginId, key, value);
        calls << pluginId + ' ' + key;
        if (calls.size() == 1 && onFirstCall)
            onFirstCall();
    }

    QVariant getPluginData(const QString &pluginId, const QString &key,
                           const QVariant &defaultValue) const override
    {
        calls << pluginId + ' ' + key;
        defaults << defaultValue;
        if (calls.size() == 1 && onFirstCall)
            onFirstCall();
        return Document::getPluginData(pluginId, key, defaultValue);
    }

    std::function<void()> onFirstCall;
    mutable QStringList calls;
    mutable QVariantList defaults;
};

class Named : public Registry
{
protected:
    Named()
    {
        plugin.setDocument(document);
        document->calls.clear();
        document->defaults.clear();
    }

    QSharedPointer<CallingDocument> document = QSharedPointer<CallingDocument>::create();
};

TEST_F(Named, RenamedBeforeASave_StoresUnderTheNewName)
{
    plugin.setObjectName("Другое");

    plugin.savePluginData();

    EXPECT_EQ(document->calls, (QStringList{"Другое taraInfo", "Другое packagingInfo"}));
}

TEST_F(Named, RenamedWhileTheTaraIsStored_StoresTheGoodsUnderTheNewName)
{
    document->onFirstCall = [this] { plugin.setObjectName("Renamed"); };

    plugin.savePluginData();

    EXPECT_EQ(document->calls, (QStringList{"PackagingControl taraInfo", "Renamed packagingInfo"}));
}

TEST_F(Named, RenamedWhileTheTaraIsRead_ReadsTheGoodsUnderTheNewName)
{
    document->onFirstCall = [this] { plugin.setObjectName("Renamed"); };

    plugin.restorePluginData();

    EXPECT_EQ(document->calls, (QStringList{"PackagingControl taraInfo", "Renamed packagingInfo"}));
}

TEST_F(Named, Restore_OffersAnInvalidDefault)
{
    plugin.restorePluginData();

    ASSERT_EQ(document->defaults.size(), 2);
    EXPECT_FALSE(document->defaults[0].isValid());
    EXPECT_FALSE(document->defaults[1].isValid());
}

TEST_F(Named, RecordsThatChangeWhileTheTaraIsStored_AreSavedAsTheyWereAtFirst)
{
    const auto user = plugin.putGoods(3, {{"{a}", 1.0}});
    document->onFirstCall = [this, user] {
        user->usedTara.clear();
        plugin.packagingList.clear();
    };

    plugin.savePluginData();

    EXPECT_EQ(document->getPluginData("PackagingControl", "packagingInfo", {}),
              QVariant(QVariantList{
                  QVariantMap{{"posnum", 3}, {"usedTara", QVariantMap{{"{a}", 1.0}}}}}));
}

} // namespace
