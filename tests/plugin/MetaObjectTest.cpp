#include "tests/plugin/RecordingHost.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QMetaMethod>

namespace {

const QMetaObject &meta()
{
    return PackagingControl::staticMetaObject;
}

TEST(MetaObject, Class_IsPackagingControlOverTheListener)
{
    EXPECT_STREQ(meta().className(), "PackagingControl");
    EXPECT_EQ(meta().superClass(), &BaseActivityListener::staticMetaObject);
}

TEST(MetaObject, OwnMethods_AreTheOneSlot)
{
    ASSERT_EQ(meta().methodCount() - meta().methodOffset(), 1);
    const QMetaMethod method = meta().method(meta().methodOffset());
    EXPECT_EQ(method.methodType(), QMetaMethod::Slot);
    EXPECT_EQ(method.methodSignature(), "handleEvent(Event)");
    EXPECT_EQ(method.access(), QMetaMethod::Public);
    EXPECT_EQ(method.returnMetaType(), QMetaType::fromType<void>());
}

TEST(MetaObject, SlotArgument_IsTheRegisteredEvent)
{
    const TestPlugin plugin;
    const QMetaMethod method = meta().method(meta().methodOffset());

    EXPECT_EQ(method.parameterMetaType(0), QMetaType::fromType<Event>());
    EXPECT_EQ(QMetaType::fromName("Event"), QMetaType::fromType<Event>());
}

TEST(MetaObject, NothingElse_IsItsOwn)
{
    EXPECT_EQ(meta().propertyCount(), meta().propertyOffset());
    EXPECT_EQ(meta().enumeratorCount(), meta().enumeratorOffset());
    EXPECT_EQ(meta().classInfoCount(), meta().classInfoOffset());
    EXPECT_EQ(meta().constructorCount(), 0);
}

class Metacast : public testing::Test
{
protected:
    void *cast(const char *name) { return plugin.qt_metacast(name); }
    void *object() { return static_cast<QObject *>(&plugin); }
    void *basicPlugin() { return static_cast<BasicPlugin *>(&plugin); }

    PackagingControl plugin;
};

TEST_F(Metacast, NullName_IsNull)
{
    EXPECT_EQ(cast(nullptr), nullptr);
}

TEST_F(Metacast, ClassName_IsTheObject)
{
    EXPECT_EQ(cast("PackagingControl"), object());
}

TEST_F(Metacast, BasicPlugin_IsThatPart)
{
    EXPECT_EQ(cast("BasicPlugin"), basicPlugin());
    EXPECT_NE(basicPlugin(), object());
}

TEST_F(Metacast, InterfaceIdentifier_IsTheBasicPluginPart)
{
    EXPECT_EQ(cast(qobject_interface_iid<BasicPlugin *>()), basicPlugin());
    EXPECT_EQ(qobject_cast<BasicPlugin *>(&static_cast<QObject &>(plugin)), basicPlugin());
}

TEST_F(Metacast, DocumentWatcher_IsThatPart)
{
    FakeHost host;
    TestPlugin held;
    auto *const watcher = static_cast<DocumentWatcher *>(held.qt_metacast("DocumentWatcher"));
    ASSERT_NE(watcher, nullptr);

    watcher->DocumentWatcher::setDocument(host.receipt());

    EXPECT_EQ(held.heldDocument(), host.receipt());
}

TEST_F(Metacast, BaseClasses_AreTheObject)
{
    EXPECT_EQ(cast("BaseActivityListener"), object());
    EXPECT_EQ(cast("QObject"), object());
}

TEST_F(Metacast, UnknownNames_AreNull)
{
    for (const char *name : {"", "packagingControl", "PackagingControl ", "BasicPlugin/1.0",
                             "ActivityListener", "QPluginLoader"})
        EXPECT_EQ(cast(name), nullptr) << name;
}

class EventByName : public testing::Test
{
protected:
    EventByName()
    {
        plugin.init();
        plugin.setDocument(host.receipt());
        event.addArgument("position",
                          QVariant::fromValue(host.putPosition(2, Tmc::Tara, 5.0, 1, 1)));
    }

    bool deliver(Qt::ConnectionType type)
    {
        return QMetaObject::invokeMethod(&plugin, "handleEvent", type, Q_ARG(Event, event));
    }

    int argc = 1;
    char name[5] = "test";
    char *argv[2] = {name, nullptr};
    QCoreApplication application{argc, argv};
    FakeHost host;
    TestPlugin plugin;
    Event event{EActivityListener::eventPositionAdded};
};

TEST_F(EventByName, Direct_IsHandledAtOnce)
{
    EXPECT_TRUE(deliver(Qt::DirectConnection));

    ASSERT_EQ(plugin.taraList.size(), 1);
    EXPECT_EQ(plugin.taraList[0]->posnum, 2);
}

TEST_F(EventByName, Queued_IsHandledWhenTheLoopRuns)
{
    EXPECT_TRUE(deliver(Qt::QueuedConnection));
    ASSERT_TRUE(plugin.taraList.isEmpty());

    QCoreApplication::sendPostedEvents();

    ASSERT_EQ(plugin.taraList.size(), 1);
    EXPECT_EQ(plugin.taraList[0]->posnum, 2);
}

TEST_F(EventByName, Queued_CarriesTheEventAsItWas)
{
    deliver(Qt::QueuedConnection);
    event.addArgument("position", QVariant());

    QCoreApplication::sendPostedEvents();

    EXPECT_EQ(plugin.taraList.size(), 1);
}

TEST_F(EventByName, SlotNumberZero_IsHandled)
{
    void *arguments[] = {nullptr, &event};

    plugin.qt_metacall(QMetaObject::InvokeMetaMethod, meta().methodOffset(), arguments);

    EXPECT_EQ(plugin.taraList.size(), 1);
}

TEST_F(EventByName, OverriddenHandler_IsReached)
{
    class Counting : public TestPlugin
    {
    public:
        void handleEvent(const Event &) override { ++count; }
        int count = 0;
    } counting;

    QMetaObject::invokeMethod(&counting, "handleEvent", Qt::DirectConnection, Q_ARG(Event, event));

    EXPECT_EQ(counting.count, 1);
}

} // namespace
