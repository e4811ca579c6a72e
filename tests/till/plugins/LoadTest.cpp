#include "till/plugins/PluginLoader.h"

#include "host/ActivityNotifier.h"
#include "host/BaseActivityListener.h"
#include "host/BasicPlugin.h"
#include "host/Document.h"
#include "host/DocumentWatcher.h"
#include "host/Event.h"
#include "tests/till/support/Results.h"

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QPluginLoader>
#include <QtCore/QPointer>

using till::LoadedPlugin;
using till::PluginLoader;

namespace {

class Load : public testing::Test
{
protected:
    LoadedPlugin loaded() { return till::must(loader.load(path)); }

    static bool isMapped()
    {
        QFile maps(QStringLiteral("/proc/self/maps"));
        return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("PackagingControl.so");
    }

    const QString path = QStringLiteral(PACKAGINGCONTROL_PLUGIN_FILE);
    PluginLoader loader;
};

TEST_F(Load, ReadMetadata_NamesInterfaceAndClassAndLoadsNothing)
{
    const auto metadata = PluginLoader::readMetadata(path);

    ASSERT_TRUE(metadata);
    EXPECT_EQ(metadata->interfaceId, QString("PackagingControl"));
    EXPECT_EQ(metadata->className, QString("PackagingControl"));
    EXPECT_EQ(metadata->record.value("IID").toString(), QString("PackagingControl"));
    EXPECT_FALSE(QPluginLoader(path).isLoaded());
}

TEST_F(Load, GoodFile_GivesEveryPartOfOneObject)
{
    const LoadedPlugin plugin = loaded();

    EXPECT_EQ(plugin.metadata.className, QString("PackagingControl"));
    EXPECT_EQ(plugin.object, static_cast<QObject *>(plugin.listener));
    EXPECT_EQ(plugin.plugin, plugin.object->qt_metacast("BasicPlugin"));
    EXPECT_EQ(plugin.watcher, plugin.object->qt_metacast("DocumentWatcher"));
    EXPECT_TRUE(loader.unload());
}

TEST_F(Load, RelativePath_IsTakenFromTheCurrentFolder)
{
    const QString before = QDir::currentPath();
    QDir::setCurrent(QFileInfo(path).path());

    const auto result = loader.load("PackagingControl.so");

    QDir::setCurrent(before);
    EXPECT_TRUE(result);
    EXPECT_TRUE(loader.unload());
}

TEST_F(Load, SecondLoader_FindsTheSameObject)
{
    PluginLoader second;
    const LoadedPlugin first = loaded();

    const auto result = second.load(path);

    ASSERT_TRUE(result);
    EXPECT_EQ(result->object, first.object);
    second.unload();
    loader.unload();
}

TEST_F(Load, Unload_DeletesTheObjectAndKeepsTheCode)
{
    const QPointer<QObject> object = loaded().object;

    EXPECT_TRUE(loader.unload());

    EXPECT_TRUE(object.isNull());
    EXPECT_TRUE(isMapped());
}

TEST_F(Load, UnloadWhileAnotherLoaderHoldsTheFile_KeepsTheObject)
{
    PluginLoader second;
    const QPointer<QObject> object = loaded().object;
    EXPECT_TRUE(second.load(path));

    EXPECT_FALSE(loader.unload());

    EXPECT_FALSE(object.isNull());
    EXPECT_TRUE(second.unload());
    EXPECT_TRUE(object.isNull());
}

TEST_F(Load, UnloadOfNothing_IsFalse)
{
    EXPECT_FALSE(loader.unload());

    loaded();
    EXPECT_TRUE(loader.unload());
    EXPECT_FALSE(loader.unload());
}

TEST_F(Load, AfterUnload_LoadsANewObjectThatWorks)
{
    loaded();
    ASSERT_TRUE(loader.unload());

    const LoadedPlugin plugin = loaded();

    EXPECT_TRUE(plugin.plugin->init());
    EXPECT_EQ(plugin.plugin->triggers().size(), 4);
    EXPECT_TRUE(loader.unload());
}

TEST_F(Load, LoadedPlugin_FollowsTheReceiptAsAHostDrivesIt)
{
    const LoadedPlugin plugin = loaded();
    const auto receipt = QSharedPointer<Document>::create();
    const auto tmc = QSharedPointer<Tmc>::create(Tmc::Tara, 0.5);
    const auto tara = QSharedPointer<GoodsItem>::create(2, tmc);
    tara->setCquant(3);
    receipt->addPosition(tara);

    plugin.plugin->init();
    plugin.watcher->setDocument(receipt);
    Singleton<ActivityNotifier>::instance()->notify(
        Event(EActivityListener::eventPositionAdded)
            .addArgument("position", QVariant::fromValue(tara)));

    const QVariantList taras = receipt->getPluginData("PackagingControl", "taraInfo", {}).toList();
    ASSERT_EQ(taras.size(), 1);
    EXPECT_EQ(taras[0].toMap().value("capacity"), QVariant(1.5));
    EXPECT_TRUE(loader.unload());
}

TEST_F(Load, UnloadedWhileSubscribed_IsForgottenByTheNotifier)
{
    const LoadedPlugin plugin = loaded();
    plugin.plugin->init();
    const QPointer<QObject> object = plugin.object;
    ASSERT_TRUE(loader.unload());

    Singleton<ActivityNotifier>::instance()->notify(Event(EActivityListener::eventPositionAdded));

    EXPECT_TRUE(object.isNull());
}

} // namespace
