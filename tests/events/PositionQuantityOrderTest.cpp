#include "tests/events/JournalingHost.h"
#include "tests/support/FakeHost.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Printers.h"
#include "tests/support/TestPlugin.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// What the host is asked when goods change with their tara, and in which order: one journal of the
// position's lookup, the log, the session and the action queue.

namespace {

//! Position 3 holds 5 of goods, in the group "g"; log lines show the group as it then is.
class PositionQuantityOrder : public testing::Test
{
protected:
    PositionQuantityOrder()
    {
        position->setBquant(5);
        position->setCquant(1000);
        position->setGroupId("g");
        document->addPosition(position);
        plugin.setDocument(document);
        plugin.putGoods(3);
        journal.clear();
    }

    FakeHost host; // the services that this test does not look at
    Journal journal;
    JournalingSession session{journal};
    JournalingQueue queue{journal};
    const Installed<Session> installedSession{&session};
    const Installed<ActionQueueController> installedQueue{&queue};
    QSharedPointer<JournalingDocument> document =
        QSharedPointer<JournalingDocument>::create(journal);
    QSharedPointer<GoodsItem> position =
        QSharedPointer<GoodsItem>::create(3, QSharedPointer<Tmc>::create(Tmc::PackagingGoods));
    TestPlugin plugin;
    LogListener listener{
        [this](const QString &line) { journal << line + " [" + position->getGroupId() + ']'; }};
};

TEST_F(PositionQuantityOrder, Change_LogsSetsTheModifierThenRuns)
{
    EXPECT_TRUE(plugin.changeGoodsBy(-1.5));
    EXPECT_EQ(journal, (Journal{"look up 3",
                                "INFO Изменение количества позиции 3, размещенной в таре, на "
                                "-1.500, в связи с изменением тары [g]",
                                "modifiers", "run change"}));
}

TEST_F(PositionQuantityOrder, ChangeThatFails_LogsAnErrorAfterwards)
{
    queue.answer = EContext::Error;

    EXPECT_FALSE(plugin.changeGoodsBy(-1.5));
    EXPECT_EQ(journal,
              (Journal{"look up 3",
                       "INFO Изменение количества позиции 3, размещенной в таре, на -1.500, в "
                       "связи с изменением тары [g]",
                       "modifiers", "run change",
                       "ERROR Не удалось изменить количество позиции, размещенной в тару [g]"}));
}

TEST_F(PositionQuantityOrder, Change_ModifierIsSetWhenTheActionRuns)
{
    QVariant atRun;
    queue.whenRun = [&] { atRun = session.current().value(static_cast<modifiers::Type>(3)); };

    plugin.changeGoodsBy(-1.5);

    ASSERT_EQ(atRun.metaType(), QMetaType::fromType<Quantity>());
    EXPECT_EQ(atRun.value<Quantity>().amount(), 3.5);
    EXPECT_EQ(static_cast<int>(atRun.value<Quantity>().mode()), 7);
}

TEST_F(PositionQuantityOrder, Change_KeepsOtherModifiersAndTheGroup)
{
    session.current().set(static_cast<modifiers::Type>(4), "other");

    plugin.changeGoodsBy(-1.5);

    EXPECT_EQ(session.current().value(static_cast<modifiers::Type>(4)), QVariant("other"));
    EXPECT_EQ(position->getGroupId(), "g");
}

TEST_F(PositionQuantityOrder, Change_ReplacesAQuantityThatWasSet)
{
    session.current().set(modifiers::Quantity, QVariant::fromValue(Quantity(99, quantModeNone)));

    plugin.changeGoodsBy(2);

    EXPECT_EQ(session.current().value(modifiers::Quantity).value<Quantity>(),
              Quantity(7, quantModeRecalculated));
}

TEST_F(PositionQuantityOrder, Change_ActionCarriesThePositionNumberOnly)
{
    plugin.changeGoodsBy(-1.5);

    ASSERT_EQ(queue.actions.size(), 1);
    EXPECT_EQ(queue.actions[0].getType(), control::ApplyModifiers);
    EXPECT_EQ(control::args::Core(queue.actions[0]).positionNumber(), 3);
    EXPECT_EQ(queue.actions[0].getArguments().size(), 1);
}

TEST_F(PositionQuantityOrder, Change_DoesNotTouchThePositionItself)
{
    plugin.changeGoodsBy(-1.5);

    EXPECT_EQ(position->getBquant(), 5);
    EXPECT_EQ(position->getCquant(), 1000);
}

TEST_F(PositionQuantityOrder, Removal_LogsClearsTheGroupThenRuns)
{
    QString groupAtRun = "unseen";
    queue.whenRun = [&] { groupAtRun = position->getGroupId(); };

    EXPECT_TRUE(plugin.changeGoodsBy(-5));
    EXPECT_EQ(journal, (Journal{"look up 3",
                                "INFO Удаление позиции 3, размещенной в таре, в связи с "
                                "изменением тары [g]",
                                "run removal"}));
    EXPECT_EQ(groupAtRun, "");
}

TEST_F(PositionQuantityOrder, RemovalThatFails_LogsAnErrorAfterwards)
{
    queue.answer = EContext::Cancel;

    EXPECT_FALSE(plugin.changeGoodsBy(-5));
    EXPECT_EQ(journal,
              (Journal{"look up 3",
                       "INFO Удаление позиции 3, размещенной в таре, в связи с "
                       "изменением тары [g]",
                       "run removal", "ERROR Не удалось удалить позицию, размещенную в тару []"}));
}

TEST_F(PositionQuantityOrder, Removal_ActionCarriesThePositionNumberOnly)
{
    plugin.changeGoodsBy(-5);

    ASSERT_EQ(queue.actions.size(), 1);
    EXPECT_EQ(queue.actions[0].getType(), control::RemovePosition);
    EXPECT_EQ(control::args::Core(queue.actions[0]).positionNumber(), 3);
    EXPECT_EQ(queue.actions[0].getArguments().size(), 1);
}

TEST_F(PositionQuantityOrder, Removal_SetsNoModifier)
{
    plugin.changeGoodsBy(-5);

    EXPECT_FALSE(session.current().isSet(modifiers::Quantity));
}

TEST_F(PositionQuantityOrder, TwoChanges_AreTwoActions)
{
    plugin.changeGoodsBy(1);
    plugin.changeGoodsBy(2);

    ASSERT_EQ(queue.actions.size(), 2);
    control::args::Core(queue.actions[0]).setPositionNumber(77);
    EXPECT_EQ(control::args::Core(queue.actions[1]).positionNumber(), 3);
}

class AnswerOfTheQueue : public PositionQuantityOrder, public testing::WithParamInterface<int>
{
};

TEST_P(AnswerOfTheQueue, OnlyTwoIsSuccess)
{
    queue.answer = GetParam();

    EXPECT_EQ(plugin.changeGoodsBy(-1), GetParam() == 2);
    EXPECT_EQ(plugin.changeGoodsBy(-5), GetParam() == 2);
    EXPECT_EQ(journal.filter("ERROR").size(), GetParam() == 2 ? 0 : 2);
}

INSTANTIATE_TEST_SUITE_P(Answers, AnswerOfTheQueue, testing::Values(0, 1, 2, 3, -1, 258));

TEST_F(PositionQuantityOrder, ServicesThatAreMissing_AreMadeOnFirstUse)
{
    const Missing<Session> noSession;
    const Missing<ActionQueueController> noQueue;

    EXPECT_FALSE(plugin.changeGoodsBy(-1)); // nobody carries actions out
    EXPECT_TRUE(Singleton<Session>::instance->getModifiers()->isSet(modifiers::Quantity));
    EXPECT_TRUE(Singleton<ActionQueueController>::instance);
}

TEST_F(PositionQuantityOrder, PositionTakenOutWhileTheActionRuns_StaysInHandForTheLog)
{
    queue.whenRun = [this] { document->removePosition(3); };
    queue.answer = EContext::Error;

    EXPECT_FALSE(plugin.changeGoodsBy(-5));
    EXPECT_EQ(journal.last(), "ERROR Не удалось удалить позицию, размещенную в тару []");
}

TEST_F(PositionQuantityOrder, DocumentTakenAwayWhileTheActionRuns_DoesNotMatter)
{
    queue.whenRun = [this] { plugin.disablePlugin(); };

    EXPECT_TRUE(plugin.changeGoodsBy(-1));
}

} // namespace
