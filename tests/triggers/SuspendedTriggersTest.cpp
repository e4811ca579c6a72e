#include "tests/triggers/TriggerTest.h"

#include "host/DocumentLogic.h"
#include "host/Quantity.h"

namespace {

//! How the plugin came to hold no document.
enum class Way { Disabled, SoftCheck, ReturnReceipt, NoReceipt };

void PrintTo(Way way, std::ostream *out)
{
    static const QStringList names{"disabled", "soft-check", "return receipt", "no receipt"};
    *out << names.at(int(way)).toStdString();
}

class SuspendedTriggers : public TriggerTest<TestPlugin>, public testing::WithParamInterface<Way>
{
protected:
    SuspendedTriggers()
    {
        host.addTara(1, 10); // partly filled and shared
        host.addGoods(2, 2);
        host.addGoods(3, 3);
        host.addTara(4, 10); // empty
        suspend();
        host.journal.clear();
        host.dialogAnswer = true;
        log.clear();
    }

    void suspend()
    {
        switch (GetParam()) {
        case Way::Disabled:
            plugin.disablePlugin();
            break;
        case Way::SoftCheck:
            after(control::Action(control::AddSoftCheck, {}));
            break;
        case Way::ReturnReceipt:
            plugin.setDocument(QSharedPointer<Document>::create(Document::Return));
            break;
        case Way::NoReceipt:
            plugin.setDocument(nullptr);
            break;
        }
        ASSERT_EQ(plugin.heldDocument(), nullptr);
    }

    GoodsItemPtr position(int posnum) { return host.receipt()->getPositionByPosnum(posnum); }
};

TEST_P(SuspendedTriggers, BeforeApplyModifiers_ContinuesAndLeavesTheModifiers)
{
    host.modifiers().set(modifiers::Quantity, QVariant::fromValue(Quantity(2, quantModeNone)));

    EXPECT_EQ(before(actions::on(1, control::ApplyModifiers)), EContext::Continue);

    EXPECT_TRUE(host.modifiers().isSet(modifiers::Quantity));
    EXPECT_EQ(host.errors.size(), 0);
    EXPECT_EQ(host.journal, QStringList());
}

TEST_P(SuspendedTriggers, AfterSplit_RecordsThePiecesAndStoresNothing)
{
    const auto piece = goods(5, 1);

    EXPECT_EQ(after(actions::split({actions::splitOf(position(2), {piece}, false)})),
              EContext::Continue);

    EXPECT_EQ(posnumsOf(plugin.packagingList), (QList<int>{3, 2, 5}));
    EXPECT_FALSE(piece->getGroupId().isEmpty());
    EXPECT_EQ(piece->getGroupId(), position(2)->getGroupId());
    EXPECT_EQ(log.lines().value(0), "INFO Обработка разбиения позиции");
    EXPECT_EQ(host.journal, QStringList());
}

TEST_P(SuspendedTriggers, AfterUnion_ForgetsTheDeletedAndStoresNothing)
{
    EXPECT_EQ(after(actions::unite({position(3)}, {position(2)})), EContext::Continue);

    EXPECT_EQ(posnumsOf(plugin.packagingList), QList<int>{2});
    EXPECT_EQ(log.lines().value(0), "INFO Обработка объединения позиций");
    EXPECT_EQ(host.journal, QStringList());
}

TEST_P(SuspendedTriggers, BeforeSubtotalAnsweredYes_StornoesNothingAndContinues)
{
    for (const auto type : {control::Subtotal, control::Payment})
        EXPECT_EQ(before(control::Action(type, {})), EContext::Continue);
    EXPECT_EQ(host.journal,
              (QStringList{"ask packingControlSaleEmptyTara", "ask packingControlSaleEmptyTara"}));
}

TEST_P(SuspendedTriggers, BeforeSubtotalAnsweredNo_Cancels)
{
    host.dialogAnswer = false;
    EXPECT_EQ(before(control::Action(control::Subtotal, {})), EContext::Cancel);
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_P(SuspendedTriggers, BeforeSubtotalWithoutEmptyTara_ContinuesWithoutAQuestion)
{
    plugin.taraList.removeLast();
    EXPECT_EQ(before(control::Action(control::Subtotal, {})), EContext::Continue);
    EXPECT_EQ(host.journal, QStringList());
}

TEST_P(SuspendedTriggers, StornoAllEmptyTara_LogsAsksTheHostForNothingAndSucceeds)
{
    EXPECT_TRUE(storno());
    EXPECT_EQ(log.lines(), QStringList{"INFO Сторнирование пустой тары"});
    EXPECT_EQ(host.journal, QStringList());
}

TEST_P(SuspendedTriggers, AfterSoftcheck_Continues)
{
    EXPECT_EQ(after(control::Action(control::AddSoftCheck, {})), EContext::Continue);
    EXPECT_EQ(host.journal, QStringList());
}

INSTANTIATE_TEST_SUITE_P(Way, SuspendedTriggers,
                         testing::Values(Way::Disabled, Way::SoftCheck, Way::ReturnReceipt,
                                         Way::NoReceipt));

// Without a document since its start the plugin has no records either.
TEST(TriggersWithoutAnyDocument, EveryCallback_Continues)
{
    FakeHost host;
    host.config().set("PackagingControl:allowSaleEmptyTara", false);
    TestPlugin plugin;
    plugin.init();

    const auto triggers = plugin.triggers();
    ASSERT_EQ(triggers.size(), 6);
    for (const ActionTrigger &trigger : triggers)
        EXPECT_EQ(trigger.call(actions::on(1, trigger.getActionType())), EContext::Continue)
            << trigger.getActionType();
    EXPECT_EQ(host.journal, QStringList());
}

//! The host suspends the plugin while the plugin waits for it.
class SuspendedMeanwhile : public TriggerTest<TestPlugin>
{
protected:
    class SuspendingLogic : public DocumentLogic
    {
    public:
        SuspendingLogic(SuspendedMeanwhile &test, QSharedPointer<DocumentLogic> real)
            : m_test(test)
            , m_real(std::move(real))
        {
        }
        bool stornoPosition(const control::Action &action) override
        {
            const bool done = m_real->stornoPosition(action);
            m_test.plugin.disablePlugin();
            return done;
        }

    private:
        SuspendedMeanwhile &m_test;
        QSharedPointer<DocumentLogic> m_real;
    };

    SuspendedMeanwhile()
    {
        host.addTara(1, 10);
        host.addOther(2, 1);
        host.dialogAnswer = true;
        MockFactory<DocumentLogic>::mocked =
            QSharedPointer<SuspendingLogic>::create(*this, MockFactory<DocumentLogic>::mocked);
    }
};

TEST_F(SuspendedMeanwhile, StornoTookEffect_CancelsOnce)
{
    EXPECT_EQ(before(control::Action(control::Subtotal, {})), EContext::Cancel);
    EXPECT_EQ(host.receipt()->getPositionByPosnum(1), nullptr);
    EXPECT_EQ(before(control::Action(control::Subtotal, {})), EContext::Continue);
}

TEST_F(SuspendedMeanwhile, StornoWasRefused_Cancels)
{
    host.refuseEverything = true;
    EXPECT_EQ(before(control::Action(control::Subtotal, {})), EContext::Cancel);
}

} // namespace
