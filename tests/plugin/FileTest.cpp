#include "host/BaseActivityListener.h"
#include "host/BasicPlugin.h"
#include "host/Document.h"
#include "host/DocumentWatcher.h"
#include "host/Event.h"
#include "host/Quantity.h"

#include <gtest/gtest.h>

#include <QtCore/QMetaType>
#include <QtCore/QPluginLoader>
#include <QtCore/QPointer>

#include <dlfcn.h>

#include <memory>

namespace {

//! A name under which the plugin registers a type of the host's.
struct TypeName
{
    const char *name;
    QMetaType type;
    // Looked up before any test runs, since mere use of a type may register it.
    bool isKnownAtStart = QMetaType::fromName(name).isValid();
};

void PrintTo(const TypeName &type, std::ostream *out)
{
    *out << type.name;
}

class RegisteredType : public testing::TestWithParam<TypeName>
{
};

TEST_P(RegisteredType, HasItsNameOnceThePluginIsThere)
{
    EXPECT_FALSE(GetParam().isKnownAtStart);

    QPluginLoader loader(QStringLiteral(PACKAGINGCONTROL_PLUGIN_FILE));
    ASSERT_NE(loader.instance(), nullptr);

    EXPECT_EQ(QMetaType::fromName(GetParam().name), GetParam().type);
}

INSTANTIATE_TEST_SUITE_P(
    Each, RegisteredType,
    testing::Values(TypeName{"Event", QMetaType::fromType<Event>()},
                    TypeName{"GoodsItemPtr", QMetaType::fromType<GoodsItemPtr>()},
                    TypeName{"GoodsItemPtrList", QMetaType::fromType<GoodsItemPtrList>()},
                    TypeName{"Quantity", QMetaType::fromType<Quantity>()}),
    [](const auto &type) { return std::string(type.param.name); });

TEST(PluginFileWithoutLoadHints, Unloaded_StaysMapped)
{
    QPluginLoader loader;
    loader.setLoadHints({}); // first, or Qt would keep the library by itself
    loader.setFileName(QStringLiteral(PACKAGINGCONTROL_PLUGIN_FILE));
    ASSERT_NE(loader.instance(), nullptr);

    EXPECT_TRUE(loader.unload());

    EXPECT_NE(dlopen(PACKAGINGCONTROL_PLUGIN_FILE, RTLD_NOLOAD | RTLD_LAZY), nullptr);
}

class PluginFile : public testing::Test
{
protected:
    const QString path = QStringLiteral(PACKAGINGCONTROL_PLUGIN_FILE);
    QPluginLoader loader{path};
};

TEST_F(PluginFile, MetadataBeforeLoading_NamesInterfaceAndClass)
{
    const QJsonObject metadata = loader.metaData();

    EXPECT_EQ(metadata.value("IID").toString(), QString("PackagingControl"));
    EXPECT_EQ(metadata.value("className").toString(), QString("PackagingControl"));
    EXPECT_FALSE(metadata.contains("MetaData"));
    EXPECT_FALSE(loader.isLoaded());
}

TEST_F(PluginFile, InstanceTwice_IsTheSameObject)
{
    QObject *const first = loader.instance();

    ASSERT_NE(first, nullptr) << loader.errorString().toStdString();
    EXPECT_EQ(loader.instance(), first);
}

TEST_F(PluginFile, InstanceOfAnotherLoader_IsTheSameObject)
{
    QPluginLoader other(path);

    EXPECT_NE(loader.instance(), nullptr);
    EXPECT_EQ(other.instance(), loader.instance());
}

TEST_F(PluginFile, InstanceDeleted_IsMadeAnew)
{
    const QPointer<QObject> first = loader.instance();
    ASSERT_FALSE(first.isNull());
    first->setObjectName("the first one");
    delete first.data();

    QObject *const second = loader.instance();

    ASSERT_NE(second, nullptr);
    EXPECT_TRUE(first.isNull());
    EXPECT_EQ(second->objectName(), QString("PackagingControl"));
    EXPECT_EQ(loader.instance(), second);
}

TEST_F(PluginFile, Instance_HasEveryPartThatAHostTalksTo)
{
    QObject *const object = loader.instance();

    EXPECT_STREQ(object->metaObject()->className(), "PackagingControl");
    EXPECT_EQ(object->parent(), nullptr);
    EXPECT_NE(qobject_cast<BasicPlugin *>(object), nullptr);
    EXPECT_NE(qobject_cast<BaseActivityListener *>(object), nullptr);
    EXPECT_NE(object->qt_metacast("DocumentWatcher"), nullptr);
}

TEST_F(PluginFile, Initialised_OffersItsTriggersToTheHost)
{
    auto *const plugin = qobject_cast<BasicPlugin *>(loader.instance());
    ASSERT_NE(plugin, nullptr);

    EXPECT_TRUE(plugin->init());

    EXPECT_EQ(plugin->triggers().size(), 4);
    delete loader.instance(); // another test's instance() makes a new one
}

} // namespace
