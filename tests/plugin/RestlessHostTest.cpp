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

QVariantList storedTaras(std::initializer_list<int> posnums)
{
    QVariantList list;
    for (const int posnum : posnums)
        list << QVariantMap{{"posnum", posnum}, {"capacity", 1.0}, {"freeCapacity", 1.0}};
    return list;
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

//! Notes the stornos that it is asked for, carries them out, and does something after one.
class RestlessLogic : public DocumentLogic
{
public:
    RestlessLogic(FakeHost &host, int posnum, std::function<void()> after)
        : m_host(host)
        , m_posnum(posnum)
        , m_after(std::move(after))
    {
    }
    bool stornoPosition(const control::Action &action) override
    {
        asked << control::args::Core(action).positionNumber();
        m_host.storno(asked.constLast());
        if (asked.constLast() == m_posnum)
            m_after();
        return true;
    }

    QList<int> asked;

private:
    FakeHost &m_host;
    int m_posnum;
    std::function<void()> m_after;
};

//! Taras 1 and 2 are empty, and the payment is near.
class RestlessPayment : public testing::Test
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
        other->addPosition(host.receipt()->getPositionByPosnum(3));
        host.dialogAnswer = true;
    }

    EContext::Result subtotal()
    {
        return FakeHost::trigger(plugin, ActionTrigger::Before,
                                 control::Action(control::Subtotal, {}));
    }

    //! Does \a what after the storno of \a posnum.
    QSharedPointer<RestlessLogic> after(int posnum, std::function<void()> what)
    {
        const auto logic = QSharedPointer<RestlessLogic>::create(host, posnum, std::move(what));
        MockFactory<DocumentLogic>::mocked = logic;
        return logic;
    }

    FakeHost host;
    TestPlugin plugin;
    QSharedPointer<Document> other{new Document};
};

TEST_F(RestlessPayment, TurnsToAnotherReceiptDuringTheQuestion_CancelsAndStornoesNothing)
{
    MockFactory<Dialog>::mocked.reset(new RestlessDialog([this] { plugin.setDocument(other); }));

    EXPECT_EQ(subtotal(), EContext::Cancel);
    EXPECT_FALSE(host.journal.contains("storno 1"));
    EXPECT_FALSE(host.journal.contains("storno 2"));
}

TEST_F(RestlessPayment, TakesUpAReceiptDuringTheQuestionAboutNone_CancelsAndStornoesNothing)
{
    plugin.disablePlugin();
    MockFactory<Dialog>::mocked.reset(new RestlessDialog([this] { plugin.setDocument(other); }));

    EXPECT_EQ(subtotal(), EContext::Cancel);
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
    const auto logic = after(1, [this] { plugin.setDocument(other); });

    EXPECT_EQ(subtotal(), EContext::Cancel);
    EXPECT_EQ(logic->asked, QList<int>{1});
}

TEST_F(RestlessPayment, TurnsToAnotherReceiptDuringTheLastStorno_Cancels)
{
    const auto logic = after(2, [this] { plugin.setDocument(other); });

    EXPECT_EQ(subtotal(), EContext::Cancel);
    EXPECT_EQ(logic->asked, (QList<int>{1, 2}));
}

TEST_F(RestlessPayment, TurnsToAnotherReceiptDuringTheLastStornoBeforeAFullTara_Cancels)
{
    host.addTara(4, 1.0);
    plugin.getTaraByPosnum(4)->freeCapacity = 0.0;
    const auto logic = after(2, [this] { plugin.setDocument(other); });

    EXPECT_EQ(subtotal(), EContext::Cancel);
    EXPECT_EQ(logic->asked, (QList<int>{1, 2}));
}

TEST_F(RestlessPayment, SetsTheSameReceiptDuringTheFirstStorno_GoesOn)
{
    const auto logic = after(1, [this] { plugin.setDocument(host.receipt()); });

    EXPECT_EQ(subtotal(), EContext::Continue);
    EXPECT_EQ(logic->asked, (QList<int>{1, 2}));
}

TEST_F(RestlessPayment, SuspendsDuringTheFirstStorno_CancelsAndAsksForNoOther)
{
    const auto logic = after(1, [this] { plugin.disablePlugin(); });

    EXPECT_EQ(subtotal(), EContext::Cancel);
    EXPECT_EQ(logic->asked, QList<int>{1});
    EXPECT_EQ(subtotal(), EContext::Continue) << "a suspended plugin blocks no payment";
}

} // namespace
