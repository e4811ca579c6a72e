#include "tests/plugin/RecordingHost.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

const QString softcheckText =
    QStringLiteral("INFO Добавлен софт-чек или заказ, работа плагина приостановлена");

class SuspendedPlugin : public TestPlugin
{
public:
    explicit SuspendedPlugin(QStringList &journal)
        : m_journal(journal)
    {
    }

    void disablePlugin() override
    {
        m_journal << "disablePlugin";
        TestPlugin::disablePlugin();
    }

    void disableTriggers(const QSet<int> &types) override
    {
        m_journal << "disableTriggers";
        TestPlugin::disableTriggers(types);
    }

private:
    QStringList &m_journal;
};

//! Notes whether the plugin has let go of its document when delivery stops.
class DisableWatcher : public RecordingNotifier
{
public:
    DisableWatcher(QStringList &journal, const TestPlugin &plugin)
        : RecordingNotifier(journal)
        , m_plugin(plugin)
    {
    }

    void disableListener(BaseActivityListener *disabled) override
    {
        heldAtDisable = !m_plugin.heldDocument().isNull();
        RecordingNotifier::disableListener(disabled);
    }

    bool heldAtDisable = false;

private:
    const TestPlugin &m_plugin;
};

class Suspension : public testing::Test
{
protected:
    Suspension()
    {
        plugin.init();
        plugin.setDocument(host.receipt());
        journal.clear();
        host.journal.clear();
    }

    static control::Action softcheck() { return {control::AddSoftCheck, {}}; }

    QStringList journal;
    FakeHost host;
    LogCapture log;
    SuspendedPlugin plugin{journal};
    DisableWatcher notifier{journal, plugin};
    Installed<ActivityNotifier> installed{&notifier};
};

TEST_F(Suspension, DisablePlugin_LetsGoOfTheDocumentThenStopsDelivery)
{
    plugin.disablePlugin();

    EXPECT_EQ(plugin.heldDocument(), nullptr);
    EXPECT_FALSE(notifier.heldAtDisable);
    EXPECT_EQ(journal, (QStringList{"disablePlugin", "disable"}));
    EXPECT_EQ(notifier.listener, static_cast<BaseActivityListener *>(&plugin));
}

TEST_F(Suspension, DisablePlugin_ReleasesItsReference)
{
    const QWeakPointer<AbstractDocument> watched = host.receipt();
    host.newReceipt();
    ASSERT_FALSE(watched.isNull());

    plugin.disablePlugin();

    EXPECT_TRUE(watched.isNull());
}

TEST_F(Suspension, DisablePlugin_StopsEvents)
{
    plugin.disablePlugin();

    const auto tara = host.putPosition(2, Tmc::Tara, 1.0, 1, 1);
    plugin.putTara(2, "{a}", 1.0, 1.0);
    notifier.notify(Event(EActivityListener::eventPositionStorno)
                        .addArgument("position", QVariant::fromValue(tara)));

    EXPECT_EQ(plugin.taraList.size(), 1);
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(Suspension, DisablePlugin_KeepsTheRecordsAndSavesNothing)
{
    const auto tara = plugin.putTara(2, "{a}", 5.0, 3.0);
    const auto goods = plugin.putGoods(3, {{"{a}", 2.0}});

    plugin.disablePlugin();

    EXPECT_EQ(plugin.taraList, (QList{tara}));
    EXPECT_EQ(plugin.packagingList, (QList{goods}));
    EXPECT_EQ(host.journal, QStringList());
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(Suspension, DisablePlugin_KeepsTheTriggersRegisteredAndEnabled)
{
    plugin.disablePlugin();

    EXPECT_EQ(plugin.triggers().size(), 4);
    EXPECT_EQ(
        plugin.activeTriggers(EContext::Receipt, control::ApplyModifiers, ActionTrigger::Before)
            .size(),
        1);
    EXPECT_FALSE(journal.contains("disableTriggers"));
}

TEST_F(Suspension, DisablePluginTwice_StaysSuspended)
{
    plugin.disablePlugin();
    plugin.disablePlugin();

    EXPECT_EQ(plugin.heldDocument(), nullptr);
    EXPECT_EQ(journal.count("disable"), 2);
}

TEST_F(Suspension, DisablePluginWithoutNotifier_MakesOne)
{
    const Installed<ActivityNotifier> none(nullptr);

    plugin.disablePlugin();

    const std::unique_ptr<ActivityNotifier> made(Singleton<ActivityNotifier>::instance);
    EXPECT_NE(made, nullptr);
}

TEST_F(Suspension, AfterSoftcheck_LogsAndSuspendsThroughTheVirtualTable)
{
    EXPECT_EQ(plugin.afterSoftcheck(softcheck()), EContext::Continue);

    EXPECT_EQ(log.lines(), QStringList{softcheckText});
    EXPECT_EQ(journal, (QStringList{"disablePlugin", "disable"}));
    EXPECT_EQ(plugin.heldDocument(), nullptr);
}

TEST_F(Suspension, AfterSoftcheckWhileSuspended_LogsAndSuspendsAgain)
{
    plugin.disablePlugin();
    journal.clear();

    EXPECT_EQ(plugin.afterSoftcheck(softcheck()), EContext::Continue);

    EXPECT_EQ(log.lines(), QStringList{softcheckText});
    EXPECT_EQ(journal, (QStringList{"disablePlugin", "disable"}));
}

TEST_F(Suspension, AfterSoftcheckOfAnyAction_Continues)
{
    const control::Action other(control::Payment, {{"position", 4}});

    EXPECT_EQ(plugin.afterSoftcheck(other), EContext::Continue);

    EXPECT_EQ(plugin.heldDocument(), nullptr);
}

TEST_F(Suspension, AfterSoftcheck_LogsBeforeItSuspends)
{
    QStringList linesAtDisable;
    class Plugin : public TestPlugin
    {
    public:
        Plugin(const LogCapture &log, QStringList &lines)
            : m_log(log)
            , m_lines(lines)
        {
        }
        void disablePlugin() override { m_lines = m_log.lines(); }

    private:
        const LogCapture &m_log;
        QStringList &m_lines;
    } logging(log, linesAtDisable);

    logging.afterSoftcheck(softcheck());

    EXPECT_EQ(linesAtDisable, QStringList{softcheckText});
}

} // namespace
