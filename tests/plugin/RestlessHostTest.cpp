#include "host/ActionArguments.h"
#include "host/Dialog.h"
#include "host/DocumentLogic.h"
#include "tests/support/FakeHost.h"
#include "tests/support/Printers.h"
#include "tests/support/TestPlugin.h"

#include <gtest/gtest.h>

#include <functional>

// A host that turns to another receipt, or lets go of one, while the plugin asks it something.

namespace {

using Records = QList<int>;

Records posnumsOf(const TestPlugin &plugin)
{
    Records posnums;
    for (const auto &tara : plugin.taraList)
        posnums << tara->posnum;
    return posnums;
}

QVariantList storedTaras(std::initializer_list<int> posnums)
{
    QVariantList list;
    for (const int posnum : posnums)
        list << QVariantMap{{"posnum", posnum}, {"capacity", 1.0}, {"freeCapacity", 1.0}};
    return list;
}

//! A receipt that does something once, on its first question of a kind.
class RestlessReceipt : public Document
{
public:
    int getType() const override { return once(onType), Document::getType(); }
    QVariant getPluginData(const QString &pluginId, const QString &key,
                           const QVariant &defaultValue) const override
    {
        once(onData);
        return Document::getPluginData(pluginId, key, defaultValue);
    }
    QSharedPointer<GoodsItem> getPositionByPosnum(int posnum) const override
    {
        once(onPosition);
        return Document::getPositionByPosnum(posnum);
    }

    mutable std::function<void()> onType;
    mutable std::function<void()> onData;
    mutable std::function<void()> onPosition;

private:
    static void once(std::function<void()> &what)
    {
        if (const auto now = std::exchange(what, nullptr))
            now();
    }
};

class RestlessHost : public testing::Test
{
protected:
    FakeHost host;
    TestPlugin plugin;
    QSharedPointer<RestlessReceipt> restless{new RestlessReceipt};
    QSharedPointer<Document> other{new Document};
};

TEST_F(RestlessHost, TurnsToAnotherReceiptDuringRestore_KeepsTheOthersRecords)
{
    restless->setPluginData("PackagingControl", "taraInfo", storedTaras({1, 2}));
    other->setPluginData("PackagingControl", "taraInfo", storedTaras({9}));
    restless->onData = [this] { plugin.setDocument(other); };

    plugin.setDocument(restless);

    EXPECT_EQ(plugin.heldDocument(), other);
    EXPECT_EQ(posnumsOf(plugin), Records{9});
}

TEST_F(RestlessHost, SetsTheSameReceiptDuringRestore_DoublesNoRecord)
{
    restless->setPluginData("PackagingControl", "taraInfo", storedTaras({1, 2}));
    restless->onData = [this] { plugin.setDocument(restless); };

    plugin.setDocument(restless);

    EXPECT_EQ(posnumsOf(plugin), (Records{1, 2}));
}

TEST_F(RestlessHost, DropsItsOwnHandleWhenAskedForTheType_IsAskedToTheEnd)
{
    QSharedPointer<AbstractDocument> handle = restless;
    const QWeakPointer<RestlessReceipt> watch = restless;
    restless->onType = [&handle] { handle.reset(); };
    restless.reset();

    plugin.setDocument(handle);

    EXPECT_EQ(plugin.heldDocument(), watch.toStrongRef());
    EXPECT_NE(plugin.heldDocument(), nullptr);
}

TEST_F(RestlessHost, SuspendsDuringALookup_IsAskedToTheEnd)
{
    const auto tmc = QSharedPointer<Tmc>::create(Tmc::Tara, 1.0);
    const auto position = QSharedPointer<GoodsItem>::create(1, tmc);
    restless->addPosition(position);
    restless->onPosition = [this] { plugin.disablePlugin(); };
    plugin.setDocument(restless);
    restless.reset(); // the plugin has the last handle

    plugin.onPositionAddEvent(Event(EActivityListener::eventPositionAdded)
                                  .addArgument("position", QVariant::fromValue(position)));

    EXPECT_EQ(plugin.heldDocument(), nullptr);
}

//! Answers yes, and does something first.
class RestlessDialog : public Dialog
{
public:
    explicit RestlessDialog(std::function<void()> first)
        : m_first(std::move(first))
    {
    }
    bool showQuestion(const tr::Tr &, int, const tr::Tr &, const tr::Tr &, int) override
    {
        m_first();
        return true;
    }

private:
    std::function<void()> m_first;
};

//! Counts the stornos that it is asked for, carries them out, and does something after the first.
class RestlessLogic : public DocumentLogic
{
public:
    RestlessLogic(FakeHost &host, std::function<void()> afterFirst)
        : m_host(host)
        , m_afterFirst(std::move(afterFirst))
    {
    }
    bool stornoPosition(const control::Action &action) override
    {
        asked << control::args::Core(action).positionNumber();
        m_host.storno(asked.constLast());
        if (asked.size() == 1)
            m_afterFirst();
        return true;
    }

    QList<int> asked;

private:
    FakeHost &m_host;
    std::function<void()> m_afterFirst;
};

class RestlessPayment : public RestlessHost
{
protected:
    RestlessPayment()
    {
        host.config().set("PackagingControl:allowSaleEmptyTara", false);
        plugin.init();
        plugin.setDocument(host.receipt());
        host.addTara(1, 1.0);
        host.addTara(2, 1.0);
        host.addOther(3, 1.0);
        other->setPluginData("PackagingControl", "taraInfo", storedTaras({2}));
        host.dialogAnswer = true;
    }

    EContext::Result subtotal()
    {
        return FakeHost::trigger(plugin, ActionTrigger::Before,
                                 control::Action(control::Subtotal, {}));
    }
};

TEST_F(RestlessPayment, TurnsToAnotherReceiptDuringTheQuestion_CancelsAndStornoesNothing)
{
    MockFactory<Dialog>::mocked.reset(new RestlessDialog([this] { plugin.setDocument(other); }));

    EXPECT_EQ(subtotal(), EContext::Cancel);
    EXPECT_FALSE(host.journal.contains("storno 1"));
    EXPECT_FALSE(host.journal.contains("storno 2"));
}

TEST_F(RestlessPayment, SuspendsDuringTheQuestion_GoesOnWithoutAStorno)
{
    MockFactory<Dialog>::mocked.reset(new RestlessDialog([this] { plugin.disablePlugin(); }));

    EXPECT_EQ(subtotal(), EContext::Continue);
    EXPECT_FALSE(host.journal.contains("storno 1"));
}

TEST_F(RestlessPayment, TurnsToAnotherReceiptDuringTheFirstStorno_CancelsAndAsksForNoOther)
{
    const auto logic =
        QSharedPointer<RestlessLogic>::create(host, [this] { plugin.setDocument(other); });
    MockFactory<DocumentLogic>::mocked = logic;

    EXPECT_EQ(subtotal(), EContext::Cancel);
    EXPECT_EQ(logic->asked, QList<int>{1});
}

TEST_F(RestlessPayment, SuspendsDuringTheFirstStorno_CancelsSinceTaraIsLeft)
{
    const auto logic =
        QSharedPointer<RestlessLogic>::create(host, [this] { plugin.disablePlugin(); });
    MockFactory<DocumentLogic>::mocked = logic;

    EXPECT_EQ(subtotal(), EContext::Cancel);
    EXPECT_EQ(logic->asked, QList<int>{1});
    EXPECT_EQ(subtotal(), EContext::Continue) << "a suspended plugin blocks no payment";
}

} // namespace
