#include "host/Quantity.h"
#include "host/Session.h"
#include "tests/events/ReceiptEvents.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

//! The storno of tara that holds goods, the host answering each reduction in its own way.
class StornoCascade : public ReceiptEvents
{
protected:
    //! What the cascade asks of the host apart from saves.
    QStringList asked() const
    {
        QStringList result = host.journal;
        result.removeIf([](const QString &line) { return line.startsWith("save "); });
        return result;
    }

    static QStringList cascade(const QStringList &actions)
    {
        return QStringList{"switch off"} + actions + QStringList{"switch on", "loyalty"};
    }
};

// A host that does as it is told, and says so at once.

TEST_F(StornoCascade, PartOfTheGoods_IsTakenOutOfTheReceipt)
{
    standsTara(2, "A", 2.0, 0.0);
    standsTara(3, "B", 5.0, 4.0);
    standsGoods(5, 3.0, {{"A", 2.0}, {"B", 1.0}});

    host.storno(2);

    EXPECT_EQ(position(5)->getBquant(), 1.0);
    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{3, "B", 5.0, 4.0}));
    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{5, {{"B", 1.0}}}));
    expectSavedRecordsAreThoseOf(plugin);
}

TEST_F(StornoCascade, PartOfTheGoods_GoesInTheOrderOfTheContract)
{
    standsTara(2, "A", 2.0, 0.0);
    standsGoods(5, 3.0, {{"A", 2.0}});

    host.storno(2);

    EXPECT_EQ(host.journal, QStringList({"switch off", "change 5 to 1.000"}) + savedOnce()
                                + QStringList({"switch on", "loyalty"}) + savedOnce());
    EXPECT_EQ(log.lines(),
              (QStringList{"INFO При удалении позиции: 2",
                           "INFO Изменение количества позиции 5, размещенной в таре, на -2.000, в "
                           "связи с изменением тары"}));
}

TEST_F(StornoCascade, AllOfTheGoods_AreRemovedOutOfTheirGroup)
{
    standsTara(2, "A", 2.0, 0.0);
    standsGoods(5, 2.0, {{"A", 2.0}});
    const auto goods = position(5);
    goods->setGroupId("group");

    host.storno(2);

    EXPECT_EQ(asked(), cascade({"remove 5"}));
    EXPECT_EQ(goods->getGroupId(), QString());
    EXPECT_THAT(plugin.packagingList, IsEmpty());
    EXPECT_EQ(log.lines(),
              (QStringList{"INFO При удалении позиции: 2",
                           "INFO Удаление позиции 5, размещенной в таре, в связи с изменением тары",
                           "INFO При удалении позиции: 5"}));
}

TEST_F(StornoCascade, GoodsThatLeaveTheListDuringTheWalk_HideNobodyFromIt)
{
    standsTara(2, "A", 6.0, 0.0);
    standsGoods(5, 1.0, {{"A", 1.0}});
    standsGoods(6, 2.0, {{"A", 2.0}});
    standsGoods(7, 4.0, {{"A", 3.0}});

    host.storno(2);

    EXPECT_EQ(asked(), cascade({"remove 5", "remove 6", "change 7 to 1.000"}));
    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{7, {}}));
}

TEST_F(StornoCascade, GoodsOfOtherTara_AreNotAskedFor)
{
    standsTara(2, "A", 2.0, 1.0);
    standsTara(3, "B", 2.0, 1.0);
    standsGoods(5, 1.0, {{"B", 1.0}});
    standsGoods(6, 1.0, {{"A", 1.0}});
    standsGoods(7, 1.0, {});

    host.storno(2);

    EXPECT_EQ(asked(), cascade({"remove 6"}));
}

TEST_F(StornoCascade, EntryOfNothing_IsTakenAwayWithoutAnAction)
{
    standsTara(2, "A", 2.0, 2.0);
    standsGoods(5, 1.0, {{"A", 0.0}});

    host.storno(2);

    EXPECT_EQ(asked(), cascade({}));
    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{5, {}}));
}

TEST_F(StornoCascade, RecordOfGoodsThatTheReceiptLacks_KeepsItsEntry)
{
    standsTara(2, "A", 2.0, 1.0);
    plugin.putGoods(5, {{"A", 1.0}});

    host.storno(2);

    EXPECT_EQ(asked(), cascade({}));
    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{5, {{"A", 1.0}}}));
}

TEST_F(StornoCascade, StornoedTara_IsOutOfTheListBeforeTheFirstReduction)
{
    standsTara(2, "A", 2.0, 0.0);
    standsGoods(5, 3.0, {{"A", 2.0}});
    const ActionInterceptor look([this](const control::Action &action, auto &queue) {
        EXPECT_THAT(plugin.taraList, IsEmpty());
        EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{5, {{"A", 2.0}}}));
        EXPECT_FALSE(host.receipt()->isSwitchedOn());
        host.journal << "looked";
        return queue.runAction(action);
    });

    host.storno(2);

    EXPECT_EQ(asked(), cascade({"looked", "change 5 to 1.000"}));
}

// Each event that goods may answer with.

class StornoCascadeAnsweredBy : public StornoCascade,
                                public testing::WithParamInterface<EActivityListener::Event>
{
};

TEST_P(StornoCascadeAnsweredBy, ChangeEvent_ReleasesFromOverfullTaraOnly)
{
    standsTara(2, "A", 2.0, 0.0);
    standsTara(3, "B", 1.0, -0.5);
    standsTara(4, "C", 5.0, 4.0);
    standsGoods(5, 4.5, {{"A", 2.0}, {"B", 1.5}, {"C", 1.0}});
    const ActionInterceptor answer([this](const control::Action &action, auto &) {
        auto *const modifiers = Singleton<Session>::instance()->getModifiers();
        const auto goods = position(positionNumber(action));
        goods->setBquant(modifiers->value(modifiers::Quantity).value<Quantity>().amount());
        modifiers->clearAll();
        host.publish(GetParam(), goods);
        return EContext::Continue;
    });

    host.storno(2);

    EXPECT_EQ(position(5)->getBquant(), 2.5);
    EXPECT_THAT(valuesOf(plugin.taraList),
                ElementsAre(TaraInfo{3, "B", 1.0, 0.0}, TaraInfo{4, "C", 5.0, 4.0}));
    EXPECT_THAT(valuesOf(plugin.packagingList),
                ElementsAre(PackagingInfo{5, {{"B", 1.0}, {"C", 1.0}}}));
    EXPECT_EQ(asked(), cascade({}));
}

INSTANTIATE_TEST_SUITE_P(Codes, StornoCascadeAnsweredBy,
                         testing::Values(EActivityListener::eventModifierApplied,
                                         EActivityListener::eventModifierApplied2));

TEST_F(StornoCascade, StornoWhereAChangeWasAskedFor_ForgetsTheGoodsAndFreesTheirOtherTara)
{
    standsTara(2, "A", 2.0, 0.0);
    standsTara(3, "B", 5.0, 4.0);
    standsGoods(5, 3.0, {{"A", 2.0}, {"B", 1.0}});
    const ActionInterceptor answer([this](const control::Action &action, auto &) {
        return host.storno(positionNumber(action)) ? EContext::Continue : EContext::Error;
    });

    host.storno(2);

    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{3, "B", 5.0, 5.0}));
    EXPECT_THAT(plugin.packagingList, IsEmpty());
    EXPECT_EQ(asked(), cascade({}));
    expectSavedRecordsAreThoseOf(plugin);
}

// A host that answers late.

TEST_F(StornoCascade, LateChange_FindsTheEntryGoneAndMovesNothing)
{
    standsTara(2, "A", 2.0, 0.0);
    standsTara(3, "B", 5.0, 4.0);
    standsGoods(5, 3.0, {{"A", 2.0}, {"B", 1.0}});
    host.late = true;

    host.storno(2);
    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{5, {{"B", 1.0}}}));
    host.deliverLate();

    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{5, {{"B", 1.0}}}));
    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{3, "B", 5.0, 4.0}));
    EXPECT_EQ(asked(), cascade({"change 5 to 1.000"}));
}

TEST_F(StornoCascade, LateRemoval_ForgetsTheGoodsWhenItComes)
{
    standsTara(2, "A", 2.0, 0.0);
    standsGoods(5, 2.0, {{"A", 2.0}});
    host.late = true;

    host.storno(2);
    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{5, {}}));
    host.deliverLate();

    EXPECT_THAT(plugin.packagingList, IsEmpty());
    expectSavedRecordsAreThoseOf(plugin);
}

// A host that refuses.

TEST_F(StornoCascade, RefusedReduction_LeavesTheEntryAndGoesOn)
{
    standsTara(2, "A", 6.0, 0.0);
    standsGoods(5, 2.0, {{"A", 1.0}});
    standsGoods(6, 2.0, {{"A", 1.0}});
    standsGoods(7, 2.0, {{"A", 1.0}});
    host.refusedPositions = {6};

    host.storno(2);

    EXPECT_EQ(asked(), cascade({"change 5 to 1.000", "change 6 to 1.000", "change 7 to 1.000"}));
    EXPECT_THAT(
        valuesOf(plugin.packagingList),
        ElementsAre(PackagingInfo{5, {}}, PackagingInfo{6, {{"A", 1.0}}}, PackagingInfo{7, {}}));
    EXPECT_EQ(log.lines().filter("ERROR"),
              QStringList{"ERROR Не удалось изменить количество позиции, размещенной в тару"});
    expectSavedRecordsAreThoseOf(plugin);
}

TEST_F(StornoCascade, RefusedRemovals_LeaveTheTaraStornoedAndTheCashierAlone)
{
    standsTara(2, "A", 6.0, 0.0);
    standsGoods(5, 3.0, {{"A", 3.0}});
    standsGoods(6, 3.0, {{"A", 3.0}});
    host.refuseEverything = true;

    host.storno(2);

    EXPECT_EQ(host.journal,
              QStringList({"switch off", "remove 5", "remove 6", "switch on", "loyalty"})
                  + savedOnce());
    EXPECT_THAT(plugin.taraList, IsEmpty());
    EXPECT_THAT(valuesOf(plugin.packagingList),
                ElementsAre(PackagingInfo{5, {{"A", 3.0}}}, PackagingInfo{6, {{"A", 3.0}}}));
    EXPECT_EQ(log.lines().filter("ERROR"),
              QStringList(2, "ERROR Не удалось удалить позицию, размещенную в тару"));
    EXPECT_TRUE(host.errors.isEmpty());
    EXPECT_TRUE(host.receipt()->isSwitchedOn());
    expectSavedRecordsAreThoseOf(plugin);
}

TEST_F(StornoCascade, RefusalAfterTheHostDidSoAfterAll_KeepsTheEntry)
{
    standsTara(2, "A", 2.0, 0.0);
    standsGoods(5, 3.0, {{"A", 2.0}});
    const ActionInterceptor liar([](const control::Action &action, auto &queue) {
        queue.runAction(action);
        return EContext::Cancel;
    });

    host.storno(2);

    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{5, {{"A", 2.0}}}));
    EXPECT_EQ(asked(), cascade({"change 5 to 1.000"}));
}

} // namespace
