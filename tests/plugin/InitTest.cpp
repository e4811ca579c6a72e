#include "tests/plugin/RecordingHost.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace {

const QString allowSaleEmptyTara = QStringLiteral("PackagingControl:allowSaleEmptyTara");

class PreparedPlugin : public TestPlugin
{
public:
    explicit PreparedPlugin(QStringList &journal)
        : m_journal(journal)
    {
    }

    void addTrigger(const ActionTrigger &trigger) override
    {
        m_journal << QString("trigger %1").arg(trigger.getActionType());
        TestPlugin::addTrigger(trigger);
    }

    void disableTriggers(const QSet<int> &) override { m_journal << "disableTriggers"; }
    void enableTriggers() override { m_journal << "enableTriggers"; }

private:
    QStringList &m_journal;
};

class Init : public testing::Test
{
protected:
    QStringList rows() const
    {
        QStringList rows;
        const auto triggers = plugin.triggers();
        for (const ActionTrigger &trigger : triggers)
            rows << rowOf(trigger);
        return rows;
    }

    QStringList journal;
    FakeHost host;
    RecordingNotifier notifier{journal};
    RecordingConfig config{journal};
    Installed<ActivityNotifier> installedNotifier{&notifier};
    Installed<Config> installedConfig{&config};
    PreparedPlugin plugin{journal};
};

TEST_F(Init, EmptyTaraForbidden_AsksTheHostInOrder)
{
    config.set(allowSaleEmptyTara, false);

    plugin.init();

    EXPECT_EQ(journal,
              (QStringList{"trigger 5", "trigger 233", "trigger 234",
                           "read PackagingControl:allowSaleEmptyTara or true", "trigger 133",
                           "trigger 144", "trigger 129", "subscribe 19 21 26 252"}));
}

TEST_F(Init, EmptyTaraAllowed_AsksTheHostInOrder)
{
    plugin.init();

    EXPECT_EQ(journal, (QStringList{"trigger 5", "trigger 233", "trigger 234",
                                    "read PackagingControl:allowSaleEmptyTara or true",
                                    "trigger 129", "subscribe 19 21 26 252"}));
}

TEST_F(Init, SettingAbsent_RegistersFourTriggers)
{
    plugin.init();

    EXPECT_EQ(rows(), (QStringList{"6 5 1 0 3", "6 233 0 0 5", "6 234 0 0 5", "6 129 0 0 3"}));
}

TEST_F(Init, SettingTrue_RegistersFourTriggers)
{
    config.set(allowSaleEmptyTara, true);

    plugin.init();

    EXPECT_EQ(rows(), (QStringList{"6 5 1 0 3", "6 233 0 0 5", "6 234 0 0 5", "6 129 0 0 3"}));
}

TEST_F(Init, SettingFalse_RegistersSixTriggersSoftcheckLast)
{
    config.set(allowSaleEmptyTara, false);

    plugin.init();

    EXPECT_EQ(rows(), (QStringList{"6 5 1 0 3", "6 233 0 0 5", "6 234 0 0 5", "6 133 1 0 1",
                                   "6 144 1 0 1", "6 129 0 0 3"}));
}

TEST_F(Init, SettingOfAnotherClass_IsNotRead)
{
    config.set("allowSaleEmptyTara", false);
    config.set("packagingcontrol:allowsaleemptytara", false);

    plugin.init();

    EXPECT_EQ(plugin.triggers().size(), 4);
}

TEST_F(Init, Always_ReturnsTrue)
{
    EXPECT_TRUE(plugin.init());

    config.set(allowSaleEmptyTara, false);
    TestPlugin other;
    EXPECT_TRUE(other.init());
}

TEST_F(Init, Subscription_IsThePluginAsListener)
{
    plugin.init();

    EXPECT_EQ(notifier.listener, static_cast<BaseActivityListener *>(&plugin));
}

TEST_F(Init, SettingChangedLater_IsNotReadAgain)
{
    plugin.init();
    config.set(allowSaleEmptyTara, false);
    journal.clear();

    plugin.setDocument(host.receipt());
    host.addTara(2, 1.0);
    plugin.disablePlugin();

    EXPECT_EQ(journal.filter("read"), QStringList());
    EXPECT_EQ(plugin.triggers().size(), 4);
}

TEST_F(Init, ThroughThePluginInterface_ReachesThePlugin)
{
    BasicPlugin &interface = plugin;

    EXPECT_TRUE(interface.init());

    EXPECT_EQ(plugin.triggers().size(), 4);
}

TEST_F(Init, NoDocument_StaysWithoutOne)
{
    plugin.init();

    EXPECT_EQ(plugin.heldDocument(), nullptr);
}

TEST_F(Init, MissingConfig_IsMadeOnDemand)
{
    const Installed<Config> none(nullptr);

    plugin.init();

    const std::unique_ptr<Config> made(Singleton<Config>::instance);
    EXPECT_NE(made, nullptr);
    EXPECT_EQ(plugin.triggers().size(), 4);
}

TEST_F(Init, MissingNotifier_IsMadeOnDemandAndDelivers)
{
    const Installed<ActivityNotifier> none(nullptr);

    plugin.init();

    const std::unique_ptr<ActivityNotifier> made(Singleton<ActivityNotifier>::instance);
    ASSERT_NE(made, nullptr);
    plugin.setDocument(host.receipt());
    const auto tara = host.putPosition(2, Tmc::Tara, 1.0, 1, 1);
    made->notify(Event(EActivityListener::eventPositionAdded)
                     .addArgument("position", QVariant::fromValue(tara)));
    EXPECT_EQ(plugin.taraList.size(), 1);
}

class RefusingNotifier : public ActivityNotifier
{
public:
    void subscribe(BaseActivityListener *, const QSet<int> &) override
    {
        throw std::runtime_error("no subscriptions today");
    }
};

TEST_F(Init, HostThrows_LetsTheExceptionThrough)
{
    RefusingNotifier refusing;
    const Installed<ActivityNotifier> installed(&refusing);

    EXPECT_THROW(plugin.init(), std::runtime_error);
}

} // namespace
