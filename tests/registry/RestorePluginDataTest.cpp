#include "tests/registry/RegistryFixture.h"

namespace {

using TaraInfo = PackagingControl::TaraInfo;
using PackagingInfo = PackagingControl::PackagingInfo;

class Restore : public Registry
{
protected:
    //! Saves, forgets and restores.
    void saveAndRestore()
    {
        plugin.savePluginData();
        plugin.taraList.clear();
        plugin.packagingList.clear();
        plugin.restorePluginData();
    }

    TaraInfo restoredTara(const QVariant &element)
    {
        restoreFrom("taraInfo", QVariantList{element});
        return plugin.taraList.size() == 1 ? *plugin.taraList[0] : TaraInfo{-1, {}, -1, -1};
    }

    PackagingInfo restoredGoods(const QVariant &element)
    {
        restoreFrom("packagingInfo", QVariantList{element});
        return plugin.packagingList.size() == 1 ? *plugin.packagingList[0] : PackagingInfo{-1, {}};
    }
};

TEST_F(Restore, SavedRegistry_ComesBackInOrder)
{
    plugin.putTara(9, "{b}", 10.0, -2.5);
    plugin.putTara(2, "{a}", 0.1, 0.1);
    plugin.putGoods(8, {{"{b}", 12.5}, {"{a}", 0.0}, {"{gone}", -0.3}});
    plugin.putGoods(3);

    saveAndRestore();

    ASSERT_EQ(plugin.taraList.size(), 2);
    EXPECT_EQ(*plugin.taraList[0], (TaraInfo{9, "{b}", 10.0, -2.5}));
    EXPECT_EQ(*plugin.taraList[1], (TaraInfo{2, "{a}", 0.1, 0.1}));
    ASSERT_EQ(plugin.packagingList.size(), 2);
    EXPECT_EQ(*plugin.packagingList[0],
              (PackagingInfo{8, {{"{b}", 12.5}, {"{a}", 0.0}, {"{gone}", -0.3}}}));
    EXPECT_EQ(*plugin.packagingList[1], (PackagingInfo{3, {}}));
}

TEST_F(Restore, EmptyRegistry_ComesBackEmpty)
{
    saveAndRestore();

    EXPECT_THAT(plugin.taraList, testing::IsEmpty());
    EXPECT_THAT(plugin.packagingList, testing::IsEmpty());
}

TEST_F(Restore, NothingStored_ForgetsAllRecords)
{
    plugin.putTara(2, "{a}", 1.0, 1.0);
    plugin.putGoods(3);

    plugin.restorePluginData();

    EXPECT_THAT(plugin.taraList, testing::IsEmpty());
    EXPECT_THAT(plugin.packagingList, testing::IsEmpty());
}

TEST_F(Restore, OnlyTaraStored_ForgetsTheGoods)
{
    plugin.putGoods(3);

    restoreFrom("taraInfo", QVariantList{QVariantMap{{"posnum", 2}}});

    EXPECT_EQ(plugin.taraList.size(), 1);
    EXPECT_THAT(plugin.packagingList, testing::IsEmpty());
}

TEST_F(Restore, OnlyGoodsStored_ForgetsTheTara)
{
    plugin.putTara(2, "{a}", 1.0, 1.0);

    restoreFrom("packagingInfo", QVariantList{QVariantMap{{"posnum", 3}}});

    EXPECT_THAT(plugin.taraList, testing::IsEmpty());
    EXPECT_EQ(plugin.packagingList.size(), 1);
}

TEST_F(Restore, CalledAgain_DoesNotDouble)
{
    plugin.putTara(2, "{a}", 1.0, 1.0);
    plugin.putGoods(3);
    plugin.savePluginData();

    plugin.restorePluginData();
    plugin.restorePluginData();

    EXPECT_EQ(plugin.taraList.size(), 1);
    EXPECT_EQ(plugin.packagingList.size(), 1);
}

TEST_F(Restore, RecordThatSomeoneHolds_LivesOnOutsideTheRegistry)
{
    const auto held = plugin.putTara(2, "{a}", 1.0, 0.25);
    plugin.savePluginData();

    plugin.restorePluginData();
    plugin.taraList[0]->freeCapacity = 0.5;

    EXPECT_NE(plugin.taraList[0], held);
    EXPECT_EQ(*held, (TaraInfo{2, "{a}", 1.0, 0.25}));
}

TEST_F(Restore, ListsThatSomeoneCopied_KeepTheirRecords)
{
    plugin.putTara(2, "{a}", 1.0, 0.25);
    const auto copy = plugin.taraList;

    plugin.restorePluginData();

    EXPECT_EQ(copy.size(), 1);
    EXPECT_THAT(plugin.taraList, testing::IsEmpty());
}

TEST_F(Restore, TwoTaraOfOneNumber_BothComeBackInOrder)
{
    restoreFrom("taraInfo", QVariantList{QVariantMap{{"posnum", 5}, {"id", "{b}"}},
                                         QVariantMap{{"posnum", 5}, {"id", "{a}"}}});

    ASSERT_EQ(plugin.taraList.size(), 2);
    EXPECT_EQ(*plugin.taraList[0], (TaraInfo{5, "{b}", 0.0, 0.0}));
    EXPECT_EQ(*plugin.taraList[1], (TaraInfo{5, "{a}", 0.0, 0.0}));
}

TEST_F(Restore, TwoTaraOfOneIdentifier_BothComeBack)
{
    restoreFrom("taraInfo", QVariantList{QVariantMap{{"posnum", 5}, {"id", "{a}"}},
                                         QVariantMap{{"posnum", 6}, {"id", "{a}"}}});

    ASSERT_EQ(plugin.taraList.size(), 2);
    EXPECT_EQ(plugin.taraList[0]->id, plugin.taraList[1]->id);
}

TEST_F(Restore, TwoGoodsOfOneNumber_BothComeBackInOrder)
{
    restoreFrom("packagingInfo",
                QVariantList{QVariantMap{{"posnum", 5}, {"usedTara", QVariantMap{{"{b}", 1.0}}}},
                             QVariantMap{{"posnum", 5}, {"usedTara", QVariantMap{{"{a}", 2.0}}}}});

    ASSERT_EQ(plugin.packagingList.size(), 2);
    EXPECT_EQ(*plugin.packagingList[0], (PackagingInfo{5, {{"{b}", 1.0}}}));
    EXPECT_EQ(*plugin.packagingList[1], (PackagingInfo{5, {{"{a}", 2.0}}}));
}

TEST_F(Restore, PositionsThatTheDocumentLacks_ComeBack)
{
    EXPECT_EQ(restoredTara(QVariantMap{{"posnum", 77}}).posnum, 77);
    EXPECT_EQ(restoredGoods(QVariantMap{{"posnum", 78}}).posnum, 78);
}

TEST_F(Restore, UseOfAnUnknownTara_StaysAsItStands)
{
    EXPECT_EQ(restoredGoods(QVariantMap{{"posnum", 3}, {"usedTara", QVariantMap{{"{gone}", 4.5}}}}),
              (PackagingInfo{3, {{"{gone}", 4.5}}}));
}

TEST_F(Restore, FreeCapacityThatDoesNotAddUp_StaysAsItStands)
{
    EXPECT_EQ(restoredTara(QVariantMap{{"capacity", 1.0}, {"freeCapacity", 50.0}}),
              (TaraInfo{0, {}, 1.0, 50.0}));
}

TEST_F(Restore, OtherKeys_AreIgnored)
{
    EXPECT_EQ(
        restoredTara(QVariantMap{
            {"posnum", 5}, {"Posnum", 6}, {"usedTara", QVariantMap{{"{a}", 1.0}}}, {"version", 3}}),
        (TaraInfo{5, {}, 0.0, 0.0}));
    EXPECT_EQ(restoredGoods(QVariantMap{{"posnum", 5}, {"id", "{a}"}, {"UsedTara", QVariantMap()}}),
              (PackagingInfo{5, {}}));
}

TEST_F(Restore, TaraOfOnlyANumber_HasTheDefaults)
{
    EXPECT_EQ(restoredTara(QVariantMap{{"posnum", 5}}), (TaraInfo{5, {}, 0.0, 0.0}));
}

TEST_F(Restore, GoodsWithoutUsedTara_UseNone)
{
    EXPECT_EQ(restoredGoods(QVariantMap{{"posnum", 5}}), (PackagingInfo{5, {}}));
}

TEST_F(Restore, LogsNothingAndOnlyReads)
{
    plugin.putTara(2, "{a}", 1.0, 1.0);

    plugin.restorePluginData();

    EXPECT_EQ(log.lines(), QStringList());
    EXPECT_EQ(host.journal, (QStringList{"load taraInfo", "load packagingInfo"}));
}

//! A receipt that notes how many records a plugin has whenever it is asked for some.
class CountingReceipt : public Document
{
public:
    explicit CountingReceipt(const TestPlugin &plugin)
        : m_plugin(plugin)
    {
    }

    QVariant getPluginData(const QString &pluginId, const QString &key,
                           const QVariant &defaultValue) const override
    {
        counts << QString("%1: %2 taras, %3 goods")
                      .arg(key)
                      .arg(m_plugin.taraList.size())
                      .arg(m_plugin.packagingList.size());
        return Document::getPluginData(pluginId, key, defaultValue);
    }

    mutable QStringList counts;

private:
    const TestPlugin &m_plugin;
};

TEST_F(Restore, TarasStandInTheirListBeforeTheGoodsAreRead)
{
    const auto receipt = QSharedPointer<CountingReceipt>::create(plugin);
    receipt->setPluginData("PackagingControl", "taraInfo", QVariantList{QVariantMap(), 1});
    receipt->setPluginData("PackagingControl", "packagingInfo", QVariantList{QVariantMap()});
    plugin.putTara(2, "{a}", 1.0, 1.0);
    plugin.putGoods(3);

    plugin.setDocument(receipt);

    EXPECT_EQ(receipt->counts,
              (QStringList{"taraInfo: 0 taras, 0 goods", "packagingInfo: 2 taras, 0 goods"}));
    EXPECT_EQ(plugin.packagingList.size(), 1);
}

TEST_F(Restore, WithoutADocument_ForgetsAndReadsNothing)
{
    plugin.putTara(2, "{a}", 1.0, 1.0);
    plugin.putGoods(3);
    plugin.disablePlugin();

    plugin.restorePluginData();

    EXPECT_EQ(host.journal, QStringList());
    EXPECT_THAT(plugin.taraList, testing::IsEmpty());
    EXPECT_THAT(plugin.packagingList, testing::IsEmpty());
}

TEST_F(Restore, AcceptedDocument_BringsItsOwnRecords)
{
    plugin.putTara(2, "{a}", 1.0, 1.0);
    plugin.savePluginData();
    const auto first = host.receipt();
    host.newReceipt();

    plugin.setDocument(host.receipt());
    EXPECT_THAT(plugin.taraList, testing::IsEmpty());

    plugin.setDocument(first);
    ASSERT_EQ(plugin.taraList.size(), 1);
    EXPECT_EQ(plugin.taraList[0]->id, "{a}");
}

TEST_F(Restore, DocumentWithAnOrder_LeavesTheRecords)
{
    const auto container = plugin.putTara(2, "{a}", 1.0, 1.0);
    host.newReceipt();
    host.receipt()->setOrder(QSharedPointer<Order>::create());

    plugin.setDocument(host.receipt());

    EXPECT_THAT(plugin.taraList, testing::ElementsAre(container));
}

} // namespace
