#include "tests/triggers/TriggerTest.h"

#include "host/Quantity.h"

#include <gmock/gmock.h>

// What is asked, in which order, and which answer counts.

namespace {

using testing::_;
using testing::InSequence;
using testing::Return;

class AskedPlugin : public TestPlugin
{
public:
    MOCK_METHOD(bool, isTaraSplitted, (const QSharedPointer<GoodsItem> &), (const, override));
    MOCK_METHOD(bool, isTaraPartialFilled, (const QSharedPointer<GoodsItem> &), (const, override));
};

class MockNotifier : public ActivityNotifier
{
public:
    MOCK_METHOD(void, notify, (const Event &), (override));
};

class BeforeApplyModifiersCalls : public TriggerTest<testing::StrictMock<AskedPlugin>>
{
protected:
    BeforeApplyModifiersCalls() { setQuantity(); }

    void setQuantity()
    {
        host.modifiers().set(modifiers::Quantity, QVariant::fromValue(Quantity(2, quantModeNone)));
    }

    EContext::Result applyModifiers() { return before(actions::on(1, control::ApplyModifiers)); }

    QString publishedKey() const
    {
        if (host.errors.size() != 1)
            return QString("%1 errors").arg(host.errors.size());
        return host.errors.constFirst().value("errorText", {}).value<tr::Tr>().key();
    }

    const GoodsItemPtr tara = host.putPosition(1, Tmc::Tara, 10.0, 1, 1);
};

TEST_F(BeforeApplyModifiersCalls, Shared_IsAskedTwiceAndPartlyFilledNever)
{
    EXPECT_CALL(plugin, isTaraSplitted(tara)).Times(2).WillRepeatedly(Return(true));
    EXPECT_CALL(plugin, isTaraPartialFilled(_)).Times(0);

    EXPECT_EQ(applyModifiers(), EContext::Error);
    EXPECT_EQ(publishedKey(), "packingControlTaraUsedDiffGoods");
}

TEST_F(BeforeApplyModifiersCalls, PartlyFilled_IsAskedAfterSharedAndBeforeSharedAgain)
{
    const InSequence order;
    EXPECT_CALL(plugin, isTaraSplitted(tara)).WillOnce(Return(false));
    EXPECT_CALL(plugin, isTaraPartialFilled(tara)).WillOnce(Return(true));
    EXPECT_CALL(plugin, isTaraSplitted(tara)).WillOnce(Return(false));

    EXPECT_EQ(applyModifiers(), EContext::Error);
    EXPECT_EQ(publishedKey(), "packingControlTaraAlmostFull");
}

TEST_F(BeforeApplyModifiersCalls, SecondAnswerSaysShared_ChoosesTheTextOfShared)
{
    EXPECT_CALL(plugin, isTaraSplitted(tara)).WillOnce(Return(false)).WillOnce(Return(true));
    EXPECT_CALL(plugin, isTaraPartialFilled(tara)).WillOnce(Return(true));

    EXPECT_EQ(applyModifiers(), EContext::Error);
    EXPECT_EQ(publishedKey(), "packingControlTaraUsedDiffGoods");
}

TEST_F(BeforeApplyModifiersCalls, SecondAnswerSaysNotShared_ChoosesTheTextOfPartlyFilled)
{
    EXPECT_CALL(plugin, isTaraSplitted(tara)).WillOnce(Return(true)).WillOnce(Return(false));

    EXPECT_EQ(applyModifiers(), EContext::Error);
    EXPECT_EQ(publishedKey(), "packingControlTaraAlmostFull");
}

TEST_F(BeforeApplyModifiersCalls, Neither_IsAskedOnceEach)
{
    const InSequence order;
    EXPECT_CALL(plugin, isTaraSplitted(tara)).WillOnce(Return(false));
    EXPECT_CALL(plugin, isTaraPartialFilled(tara)).WillOnce(Return(false));

    EXPECT_EQ(applyModifiers(), EContext::Continue);
    EXPECT_EQ(host.errors.size(), 0);
}

TEST_F(BeforeApplyModifiersCalls, QuantityIsNotSet_AsksNothing)
{
    host.modifiers().clearAll();
    EXPECT_CALL(plugin, isTaraSplitted(_)).Times(0);
    EXPECT_CALL(plugin, isTaraPartialFilled(_)).Times(0);
    EXPECT_EQ(applyModifiers(), EContext::Continue);
}

TEST_F(BeforeApplyModifiersCalls, Refusal_ClearsTheModifiersBetweenTheTwoQuestions)
{
    QList<bool> quantityWasSet;
    const auto answer = [&] {
        quantityWasSet << host.modifiers().isSet(modifiers::Quantity);
        return true;
    };
    EXPECT_CALL(plugin, isTaraSplitted(tara)).Times(2).WillRepeatedly(answer);

    applyModifiers();

    EXPECT_EQ(quantityWasSet, (QList<bool>{true, false}));
}

TEST_F(BeforeApplyModifiersCalls, Refusal_NotifiesOnceWithTheWholeEventWhenTheModifiersAreCleared)
{
    EXPECT_CALL(plugin, isTaraSplitted(tara)).Times(2).WillRepeatedly(Return(true));
    testing::StrictMock<MockNotifier> notifier;
    const Installed<ActivityNotifier> instead(&notifier);
    const Event expected =
        Event(EActivityListener::eventError)
            .addArgument("errorText",
                         tr::Tr("packingControlTaraUsedDiffGoods",
                                "Тара используется разными товарами.\nИзменение количества "
                                "запрещено"))
            .addArgument("forCustomer", false);
    EXPECT_CALL(notifier, notify(expected)).WillOnce([this] {
        EXPECT_FALSE(host.modifiers().isSet(modifiers::Quantity));
    });

    EXPECT_EQ(applyModifiers(), EContext::Error);
}

TEST_F(BeforeApplyModifiersCalls, SessionWasNeverMade_MakesItAndContinues)
{
    const Missing<Session> none;
    EXPECT_EQ(applyModifiers(), EContext::Continue);
    EXPECT_NE(static_cast<Session *>(Singleton<Session>::instance), nullptr);
}

TEST_F(BeforeApplyModifiersCalls, PositionIsNoTara_AsksForNoSession)
{
    goods(2, 1);
    const Missing<Session> none;
    for (const int posnum : {2, 99})
        EXPECT_EQ(before(actions::on(posnum, control::ApplyModifiers)), EContext::Continue);
    EXPECT_EQ(static_cast<Session *>(Singleton<Session>::instance), nullptr);
}

TEST_F(BeforeApplyModifiersCalls, NotifierWasNeverMade_MakesItAndRefuses)
{
    EXPECT_CALL(plugin, isTaraSplitted(tara)).Times(2).WillRepeatedly(Return(true));
    const Missing<ActivityNotifier> none;
    EXPECT_EQ(applyModifiers(), EContext::Error);
    EXPECT_NE(static_cast<ActivityNotifier *>(Singleton<ActivityNotifier>::instance), nullptr);
}

} // namespace
