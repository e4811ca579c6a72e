#include "tests/plugin/RecordingHost.h"
#include "tests/support/Printers.h"

#include "host/ActionQueueController.h"
#include "host/LoyaltySystemLayer.h"
#include "host/Session.h"

#include <gtest/gtest.h>
#include <log4qt/logmanager.h>

#include <QtCore/QRegularExpression>
#include <QtCore/QUuid>

namespace {

TEST(Construction, Always_NamesTheObject)
{
    const TestPlugin plugin;

    EXPECT_EQ(plugin.objectName(), "PackagingControl");
}

TEST(Construction, Always_HasNoParent)
{
    const TestPlugin plugin;

    EXPECT_EQ(plugin.parent(), nullptr);
    EXPECT_TRUE(plugin.children().isEmpty());
}

TEST(Construction, Always_TakesTheLoggerPackaging)
{
    const TestPlugin plugin;

    EXPECT_EQ(plugin.logger, Log4Qt::LogManager::logger("packaging"));
    EXPECT_EQ(plugin.logger->name(), "packaging");
}

TEST(Construction, Always_StartsWithoutRecordsDocumentOrTriggers)
{
    const TestPlugin plugin;

    EXPECT_TRUE(plugin.taraList.isEmpty());
    EXPECT_TRUE(plugin.packagingList.isEmpty());
    EXPECT_EQ(plugin.heldDocument(), nullptr);
    EXPECT_TRUE(plugin.triggers().isEmpty());
}

TEST(Construction, Always_AsksNothingOfTheHost)
{
    const Installed<ActivityNotifier> noNotifier(nullptr);
    const Installed<Config> noConfig(nullptr);
    const Installed<Session> noSession(nullptr);
    const Installed<ActionQueueController> noQueue(nullptr);
    const Installed<LoyaltySystemLayer> noLoyalty(nullptr);

    const TestPlugin plugin;

    EXPECT_EQ(static_cast<ActivityNotifier *>(Singleton<ActivityNotifier>::instance), nullptr);
    EXPECT_EQ(static_cast<Config *>(Singleton<Config>::instance), nullptr);
    EXPECT_EQ(static_cast<Session *>(Singleton<Session>::instance), nullptr);
    EXPECT_EQ(static_cast<ActionQueueController *>(Singleton<ActionQueueController>::instance),
              nullptr);
    EXPECT_EQ(static_cast<LoyaltySystemLayer *>(Singleton<LoyaltySystemLayer>::instance), nullptr);
}

TEST(Construction, Always_SubscribesToNothing)
{
    QStringList journal;
    RecordingNotifier notifier(journal);
    const Installed<ActivityNotifier> installed(&notifier);

    const TestPlugin plugin;

    EXPECT_EQ(journal, QStringList());
}

TEST(Identifier, Always_Is38CharactersInBraces)
{
    const TestPlugin plugin;
    static const QRegularExpression braced(
        "^\\{[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}\\}$");

    const QString id = plugin.getId();

    EXPECT_EQ(id.size(), 38);
    EXPECT_TRUE(braced.match(id).hasMatch()) << id.toStdString();
    EXPECT_EQ(QUuid(id).version(), QUuid::Random);
}

TEST(Identifier, EveryCall_IsAnother)
{
    const TestPlugin plugin;
    const TestPlugin other;

    QSet<QString> ids;
    for (int i = 0; i < 500; ++i)
        ids << plugin.getId() << other.getId();

    EXPECT_EQ(ids.size(), 1000);
}

} // namespace
