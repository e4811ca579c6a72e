#include "tests/plugin/WatchedPlugin.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace {

const QString orderText =
    QStringLiteral("INFO Обрабатываемый документ содержит заказ, работа плагина приостановлена");

class SetDocument : public testing::Test
{
protected:
    SetDocument()
    {
        plugin.init();
        journal.clear();
    }

    QSharedPointer<AskedDocument> document(int type = Document::Sale, bool withOrder = false)
    {
        return QSharedPointer<AskedDocument>::create(journal, type, withOrder);
    }

    //! Whether the storno of a tara reaches the plugin, which then forgets its record.
    bool isDelivered()
    {
        const auto tmc = QSharedPointer<Tmc>::create(Tmc::Tara, 1.0);
        const auto position = QSharedPointer<GoodsItem>::create(77, tmc);
        plugin.putTara(77, "{probe}", 1.0, 1.0);
        notifier.notify(Event(EActivityListener::eventPositionStorno)
                            .addArgument("position", QVariant::fromValue(position)));
        return !plugin.getTaraByPosnum(77);
    }

    QStringList journal;
    FakeHost host;
    LogCapture log;
    WatchedPlugin plugin{journal};
    EnableWatcher notifier{journal, plugin};
    Installed<ActivityNotifier> installed{&notifier};
};

TEST_F(SetDocument, Acceptable_EnablesThenStoresThenRestores)
{
    const auto first = document();
    const auto second = document();
    plugin.setDocument(first);
    journal.clear();

    plugin.setDocument(second);

    EXPECT_EQ(journal, (QStringList{"type", "order", "enable", "restore"}));
    EXPECT_EQ(notifier.heldAtEnable, first);
    EXPECT_EQ(plugin.heldAtRestore, second);
}

TEST_F(SetDocument, Acceptable_IsHeldAndLogsNothing)
{
    const auto receipt = document();

    plugin.setDocument(receipt);

    EXPECT_EQ(plugin.heldDocument(), receipt);
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(SetDocument, Acceptable_EnablesThePluginAsListener)
{
    plugin.setDocument(document());

    EXPECT_EQ(notifier.listener, static_cast<BaseActivityListener *>(&plugin));
}

TEST_F(SetDocument, Acceptable_ReplacesTheRecordsByTheDocuments)
{
    plugin.putTara(9, "{old}", 1.0, 1.0);
    plugin.putGoods(8);
    const auto receipt = document();
    receipt->setPluginData("PackagingControl", "taraInfo",
                           QVariantList{QVariantMap{{"posnum", 2}, {"id", "{a}"}}});

    plugin.setDocument(receipt);

    ASSERT_EQ(plugin.taraList.size(), 1);
    EXPECT_EQ(plugin.taraList[0]->posnum, 2);
    EXPECT_TRUE(plugin.packagingList.isEmpty());
}

TEST_F(SetDocument, SameDocumentAgain_RestoresAgain)
{
    const auto receipt = document();
    plugin.setDocument(receipt);
    journal.clear();

    plugin.setDocument(receipt);

    EXPECT_EQ(journal, (QStringList{"type", "order", "enable", "restore"}));
    EXPECT_EQ(plugin.heldDocument(), receipt);
}

TEST_F(SetDocument, AfterSuspension_EnablesBeforeTheDocumentIsStored)
{
    plugin.setDocument(document());
    plugin.disablePlugin();
    journal.clear();
    const auto receipt = document();

    plugin.setDocument(receipt);

    EXPECT_EQ(journal, (QStringList{"type", "order", "enable", "restore"}));
    EXPECT_EQ(notifier.heldAtEnable, nullptr);
    EXPECT_EQ(plugin.heldAtRestore, receipt);
    EXPECT_TRUE(isDelivered());
}

TEST_F(SetDocument, OtherType_SuspendsThroughTheVirtualTable)
{
    plugin.setDocument(document());
    journal.clear();

    plugin.setDocument(document(Document::Return));

    EXPECT_EQ(journal, (QStringList{"type", "disablePlugin", "disable"}));
    EXPECT_EQ(plugin.heldDocument(), nullptr);
    EXPECT_FALSE(isDelivered());
}

TEST_F(SetDocument, OtherType_KeepsTheRecords)
{
    plugin.setDocument(document());
    const auto tara = plugin.putTara(2, "{a}", 5.0, 3.0);
    const auto goods = plugin.putGoods(3, {{"{a}", 2.0}});

    plugin.setDocument(document(Document::Return));

    EXPECT_EQ(plugin.taraList, (QList{tara}));
    EXPECT_EQ(*tara, (PackagingControl::TaraInfo{2, "{a}", 5.0, 3.0}));
    EXPECT_EQ(plugin.packagingList, (QList{goods}));
    EXPECT_EQ(*goods, (PackagingControl::PackagingInfo{3, {{"{a}", 2.0}}}));
}

TEST_F(SetDocument, OtherTypeWithOrder_SuspendsWithoutAskingForTheOrder)
{
    plugin.setDocument(document());
    journal.clear();

    plugin.setDocument(document(Document::Return, true));

    EXPECT_EQ(journal, (QStringList{"type", "disablePlugin", "disable"}));
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(SetDocument, OtherType_IsAnyThatIsNotOne)
{
    for (const int type : {0, -1, 3, 11, 257}) {
        plugin.setDocument(document());
        plugin.setDocument(document(type));
        EXPECT_EQ(plugin.heldDocument(), nullptr) << type;
    }
}

TEST_F(SetDocument, Null_Suspends)
{
    plugin.setDocument(document());
    journal.clear();

    plugin.setDocument({});

    EXPECT_EQ(journal, (QStringList{"disablePlugin", "disable"}));
    EXPECT_EQ(plugin.heldDocument(), nullptr);
}

TEST_F(SetDocument, WithOrder_LogsAndDoesNothingElse)
{
    plugin.setDocument(document());
    journal.clear();

    plugin.setDocument(document(Document::Sale, true));

    EXPECT_EQ(log.lines(), QStringList{orderText});
    EXPECT_EQ(journal, (QStringList{"type", "order"}));
}

TEST_F(SetDocument, WithOrderWhileActive_LeavesTheEarlierDocumentAndDelivery)
{
    const auto earlier = document();
    plugin.setDocument(earlier);
    const auto tara = plugin.putTara(2, "{a}", 5.0, 3.0);

    plugin.setDocument(document(Document::Sale, true));

    EXPECT_EQ(plugin.heldDocument(), earlier);
    EXPECT_EQ(plugin.taraList, (QList{tara}));
    EXPECT_TRUE(isDelivered());
}

TEST_F(SetDocument, WithOrderWhileSuspended_StaysSuspended)
{
    plugin.setDocument(document());
    plugin.disablePlugin();

    plugin.setDocument(document(Document::Sale, true));

    EXPECT_EQ(plugin.heldDocument(), nullptr);
    EXPECT_FALSE(isDelivered());
}

TEST_F(SetDocument, ThroughTheDocumentWatcher_ReachesThePlugin)
{
    const auto receipt = document();
    auto *watcher = static_cast<DocumentWatcher *>(plugin.qt_metacast("DocumentWatcher"));

    watcher->setDocument(receipt);

    EXPECT_EQ(plugin.heldDocument(), receipt);
    EXPECT_EQ(plugin.heldAtRestore, receipt);
}

class FailingNotifier : public ActivityNotifier
{
public:
    void enableListener(BaseActivityListener *) override { throw std::runtime_error("not today"); }
};

TEST_F(SetDocument, HostThrows_LetsTheExceptionThroughAndHoldsNothing)
{
    FailingNotifier failing;
    const Installed<ActivityNotifier> installedFailing(&failing);

    EXPECT_THROW(plugin.setDocument(document()), std::runtime_error);

    EXPECT_EQ(plugin.heldDocument(), nullptr);
}

TEST_F(SetDocument, MissingNotifier_IsMadeOnDemand)
{
    const Installed<ActivityNotifier> none(nullptr);

    plugin.setDocument(document());

    const std::unique_ptr<ActivityNotifier> made(Singleton<ActivityNotifier>::instance);
    EXPECT_NE(made, nullptr);
}

} // namespace
