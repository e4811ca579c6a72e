#include "tests/triggers/TriggerTest.h"

#include "host/Dialog.h"

#include <gmock/gmock.h>

namespace {

using testing::_;
using testing::Return;
using testing::StrictMock;

class MockDialog : public Dialog
{
public:
    MOCK_METHOD(bool, showQuestion, (const tr::Tr &, int, const tr::Tr &, const tr::Tr &, int),
                (override));
};

//! Every test runs before the subtotal and before the payment.
template <class Plugin>
class BeforeSubtotalOf : public TriggerTest<Plugin>,
                         public testing::WithParamInterface<control::EActionType>
{
protected:
    EContext::Result subtotal() { return this->before(control::Action(this->GetParam(), {})); }
};

using BeforeSubtotal = BeforeSubtotalOf<TestPlugin>;

TEST_P(BeforeSubtotal, NoTara_ContinuesWithoutAQuestion)
{
    host.addGoods(2, 5);
    host.journal.clear();
    EXPECT_EQ(subtotal(), EContext::Continue);
    EXPECT_EQ(host.journal, QStringList());
}

TEST_P(BeforeSubtotal, NoTaraIsEmpty_ContinuesWithoutAQuestion)
{
    plugin.putTara(1, "A", 10, 5);
    plugin.putTara(2, "B", 10, 0);
    plugin.putTara(3, "C", 10, -1);
    EXPECT_EQ(subtotal(), EContext::Continue);
    EXPECT_EQ(host.journal, QStringList());
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_P(BeforeSubtotal, AnsweredNo_CancelsAndLeavesTheReceiptAsItIs)
{
    host.addTara(1, 10);
    host.addGoods(2, 4);
    host.addTara(3, 10);
    const auto taras = valuesOf(plugin.taraList);
    host.journal.clear();
    log.clear();
    host.dialogAnswer = false;

    EXPECT_EQ(subtotal(), EContext::Cancel);

    EXPECT_EQ(host.receipt()->getPositionList().size(), 3);
    EXPECT_EQ(valuesOf(plugin.taraList), taras);
    EXPECT_EQ(host.journal, QStringList{"ask packingControlSaleEmptyTara"});
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_P(BeforeSubtotal, AnsweredYes_StornoesEmptyTaraInItsOrderAndContinues)
{
    host.addTara(3, 10);
    host.addGoods(2, 4);
    host.addTara(5, 10);
    host.addTara(4, 10);
    host.journal.clear();
    host.dialogAnswer = true;

    EXPECT_EQ(subtotal(), EContext::Continue);

    EXPECT_EQ(posnumsOf(plugin.taraList), QList<int>{3});
    EXPECT_EQ(host.journal.filter("save").size(), 4) << "only the storno events save";
    EXPECT_EQ(host.journal.filter("storno"), (QStringList{"storno 5", "storno 4"}));
    EXPECT_EQ(host.journal.constFirst(), "ask packingControlSaleEmptyTara");
}

TEST_P(BeforeSubtotal, StornoIsRefused_CancelsWithoutAMessage)
{
    host.addTara(1, 10);
    host.addGoods(2, 4);
    host.addTara(3, 10);
    host.addTara(4, 10);
    host.journal.clear();
    host.dialogAnswer = true;
    host.refusedPositions = {3};

    EXPECT_EQ(subtotal(), EContext::Cancel);

    EXPECT_EQ(host.journal, (QStringList{"ask packingControlSaleEmptyTara", "storno 3"}));
    EXPECT_EQ(host.errors.size(), 0);
}

TEST_P(BeforeSubtotal, ReceiptIsLeftEmpty_Cancels)
{
    host.addTara(1, 10);
    host.dialogAnswer = true;
    EXPECT_EQ(subtotal(), EContext::Cancel);
    EXPECT_EQ(host.receipt()->getPositionList().size(), 0);
    EXPECT_EQ(plugin.taraList.size(), 0);
}

TEST_P(BeforeSubtotal, AskedAgainAfterNo_AsksAnew)
{
    host.addTara(1, 10);
    host.addOther(2, 1);
    host.journal.clear();
    subtotal();
    host.dialogAnswer = true;
    EXPECT_EQ(subtotal(), EContext::Continue);
    EXPECT_EQ(host.journal.filter("ask").size(), 2);
}

TEST_P(BeforeSubtotal, Question_OffersStornoOrReturn)
{
    plugin.putTara(1, "A", 10, 10);
    const auto dialog = QSharedPointer<StrictMock<MockDialog>>::create();
    MockFactory<Dialog>::mocked = dialog;
    const tr::Tr question("packingControlSaleEmptyTara",
                          "В чеке есть пустая тара.\nСторнировать тару и перейти к оплате?");
    const tr::Tr confirm("dialogChoiceOk", "ОК");
    const tr::Tr cancel("dialogChoiceCancel", "Отмена");
    EXPECT_CALL(*dialog, showQuestion(question, 1, confirm, cancel, 0)).WillOnce(Return(false));

    EXPECT_EQ(subtotal(), EContext::Cancel);
}

TEST_P(BeforeSubtotal, HostWithoutADialogOfItsOwn_Cancels)
{
    plugin.putTara(1, "A", 10, 10);
    MockFactory<Dialog>::mocked.reset();
    EXPECT_EQ(subtotal(), EContext::Cancel);
    EXPECT_EQ(host.journal, QStringList());
}

INSTANTIATE_TEST_SUITE_P(Action, BeforeSubtotal,
                         testing::Values(control::Subtotal, control::Payment));

// The plugin's own operations.

class DecidingPlugin : public TestPlugin
{
public:
    MOCK_METHOD(bool, isExistsEmptyTara, (), (const, override));
    MOCK_METHOD(bool, stornoAllEmptyTara, (const control::Action &), (override));
};

using BeforeSubtotalCalls = BeforeSubtotalOf<StrictMock<DecidingPlugin>>;

TEST_P(BeforeSubtotalCalls, NoEmptyTara_IsAskedOnceAndNothingFollows)
{
    plugin.putTara(1, "A", 10, 10);
    EXPECT_CALL(plugin, isExistsEmptyTara()).WillOnce(Return(false));
    EXPECT_EQ(subtotal(), EContext::Continue);
    EXPECT_EQ(host.journal, QStringList());
}

TEST_P(BeforeSubtotalCalls, AnsweredNo_StornoesNothing)
{
    EXPECT_CALL(plugin, isExistsEmptyTara()).WillOnce(Return(true));
    EXPECT_CALL(plugin, stornoAllEmptyTara(_)).Times(0);
    EXPECT_EQ(subtotal(), EContext::Cancel);
}

TEST_P(BeforeSubtotalCalls, AnsweredYes_HandsTheSameActionToTheStornoAfterTheQuestion)
{
    const control::Action action(GetParam(), {});
    const auto sharesArguments = [&](const control::Action &given) {
        action.setArgument("mark", 1);
        EXPECT_EQ(given.getArguments().value("mark"), QVariant(1));
        EXPECT_EQ(host.journal, QStringList{"ask packingControlSaleEmptyTara"});
        return true;
    };
    host.dialogAnswer = true;
    EXPECT_CALL(plugin, isExistsEmptyTara()).WillOnce(Return(true));
    EXPECT_CALL(plugin, stornoAllEmptyTara(_)).WillOnce(sharesArguments);
    EXPECT_EQ(before(action), EContext::Continue);
}

TEST_P(BeforeSubtotalCalls, StornoFails_Cancels)
{
    host.dialogAnswer = true;
    EXPECT_CALL(plugin, isExistsEmptyTara()).WillOnce(Return(true));
    EXPECT_CALL(plugin, stornoAllEmptyTara(_)).WillOnce(Return(false));
    EXPECT_EQ(subtotal(), EContext::Cancel);
}

TEST_P(BeforeSubtotalCalls, WithoutADocument_AsksAndTakesTheAnswerOfTheStorno)
{
    plugin.disablePlugin();
    host.dialogAnswer = true;
    EXPECT_CALL(plugin, isExistsEmptyTara()).Times(2).WillRepeatedly(Return(true));
    EXPECT_CALL(plugin, stornoAllEmptyTara(_)).WillOnce(Return(true)).WillOnce(Return(false));
    EXPECT_EQ(subtotal(), EContext::Continue);
    EXPECT_EQ(subtotal(), EContext::Cancel);
    EXPECT_EQ(host.journal,
              (QStringList{"ask packingControlSaleEmptyTara", "ask packingControlSaleEmptyTara"}));
}

INSTANTIATE_TEST_SUITE_P(Action, BeforeSubtotalCalls,
                         testing::Values(control::Subtotal, control::Payment));

} // namespace
