#include "tests/events/ReceiptEvents.h"

#include <stdexcept>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using TaraChange = ReceiptEvents;

class TaraChangeByCode : public TaraChange,
                         public testing::WithParamInterface<EActivityListener::Event>
{
};

TEST_P(TaraChangeByCode, Growth_GrowsItsGoods)
{
    standsTara(2, "A", 1.5, 0.0);
    standsGoods(7, 1.5, {{"A", 1.5}});

    host.changeQuantity(2, 2, GetParam());

    EXPECT_EQ(host.journal, QStringList{"change 7 to 3.000"} + savedOnce() + savedOnce());
    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{2, "A", 3.0, 0.0}));
    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{7, {{"A", 3.0}}}));
    EXPECT_EQ(position(7)->getBquant(), 3.0);
    expectSavedRecordsAreThoseOf(plugin);
}

INSTANTIATE_TEST_SUITE_P(Codes, TaraChangeByCode,
                         testing::Values(EActivityListener::eventModifierApplied,
                                         EActivityListener::eventModifierApplied2));

TEST_F(TaraChange, GrownTara_IsResizedBeforeItsGoodsAreAskedFor)
{
    standsTara(2, "A", 1.5, 0.0);
    standsGoods(7, 1.5, {{"A", 1.5}});
    const ActionInterceptor refusal([this](const control::Action &action, auto &) {
        EXPECT_EQ(action.getType(), control::ApplyModifiers);
        EXPECT_EQ(positionNumber(action), 7);
        EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{2, "A", 3.0, 1.5}));
        EXPECT_EQ(host.journal, QStringList()); // saved only when the handler ends
        host.journal << "asked";
        return EContext::Error;
    });

    host.changeQuantity(2, 2);

    EXPECT_EQ(host.journal, QStringList{"asked"} + savedOnce());
}

TEST_F(TaraChange, ShrunkTara_DrawsItsGoodsBackOut)
{
    standsTara(2, "A", 3.0, 0.0, 2);
    standsGoods(7, 3.0, {{"A", 3.0}});

    host.changeQuantity(2, 1);

    EXPECT_EQ(host.journal, QStringList{"change 7 to 1.500"} + savedOnce() + savedOnce());
    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{2, "A", 1.5, 0.0}));
    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{7, {{"A", 1.5}}}));
    EXPECT_EQ(
        log.lines(),
        (QStringList{"INFO Изменение ёмкости тары 3.000 -> 1.500",
                     "INFO Изменение количества позиции 7, размещенной в таре, на -1.500, в связи "
                     "с изменением тары",
                     "INFO Изменение использованной позицией 7 ёмкости тары 2 на -1.500"}));
}

TEST_F(TaraChange, ShrunkTaraWhoseGoodsAnswerLate_IsOverfullUntilTheyDo)
{
    standsTara(2, "A", 3.0, 0.0, 2);
    standsGoods(7, 3.0, {{"A", 3.0}});
    host.late = true;

    host.changeQuantity(2, 1);
    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{2, "A", 1.5, -1.5}));

    host.deliverLate();
    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{2, "A", 1.5, 0.0}));
    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{7, {{"A", 1.5}}}));
}

TEST_F(TaraChange, TaraShrunkToNothing_RemovesItsGoods)
{
    standsTara(2, "A", 1.5, 0.0);
    standsGoods(7, 1.5, {{"A", 1.5}});

    host.changeQuantity(2, 0);

    EXPECT_EQ(host.journal, QStringList{"remove 7"} + savedOnce() + savedOnce());
    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{2, "A", 0.0, 0.0}));
    EXPECT_THAT(plugin.packagingList, IsEmpty());
    expectSavedRecordsAreThoseOf(plugin);
}

TEST_F(TaraChange, ChangedTara_TakesCapacityFromBaseQuantity)
{
    plugin.putTara(2, "A", 1.5, 1.5);

    publishChanged(host.putPosition(2, Tmc::Tara, 1.5, 100, 2));

    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{2, "A", 3.0, 3.0}));
}

TEST_F(TaraChange, ChangedTara_IsReadFromTheEventNotFromTheDocument)
{
    plugin.putTara(2, "A", 1.5, 1.5);
    const auto changed = host.putPosition(2, Tmc::Tara, 1.5, 1, 2);
    host.receipt()->removePosition(2);

    publishChanged(changed);

    EXPECT_EQ(plugin.taraList[0]->capacity, 3.0);
}

TEST_F(TaraChange, TaraOfTheSameCapacity_LogsNothingAdjustsNoGoodsAndSaves)
{
    standsTara(2, "A", 1.5, 0.0);
    standsGoods(7, 1.5, {{"A", 1.5}});

    host.changeQuantity(2, 1.0002); // 0.0003 of capacity

    EXPECT_EQ(log.lines(), QStringList());
    EXPECT_EQ(host.journal, savedOnce());
    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{2, "A", 1.5, 0.0}));
    EXPECT_EQ(position(7)->getBquant(), 1.5);
}

TEST_F(TaraChange, EmptyTara_ChangesOnlyItsCapacity)
{
    standsTara(2, "A", 1.5, 1.5);
    standsGoods(7, 1.0, {{"B", 1.0}});

    host.changeQuantity(2, 2);

    EXPECT_EQ(log.lines(), QStringList{"INFO Изменение ёмкости тары 1.500 -> 3.000"});
    EXPECT_EQ(host.journal, savedOnce());
    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{2, "A", 3.0, 3.0}));
}

TEST_F(TaraChange, EmptyTaraThatGoodsStillName_LeavesThemAlone)
{
    standsTara(2, "A", 1.5, 1.5);
    standsGoods(7, 1.0, {{"A", 0.0}});

    host.changeQuantity(2, 2);

    EXPECT_EQ(host.journal, savedOnce());
}

TEST_F(TaraChange, TaraOfSeveralGoods_GivesTheWholeChangeToTheFirst)
{
    standsTara(2, "A", 4.0, 0.0);
    standsGoods(5, 1.0, {{"B", 1.0}});
    standsGoods(7, 1.0, {{"A", 1.0}});
    standsGoods(6, 3.0, {{"A", 3.0}});

    host.changeQuantity(2, 2);

    EXPECT_EQ(host.journal, QStringList{"change 7 to 5.000"} + savedOnce() + savedOnce());
    EXPECT_EQ(position(6)->getBquant(), 3.0);
    EXPECT_EQ(position(5)->getBquant(), 1.0);
}

TEST_F(TaraChange, GoodsThatUseNothingOfTheTaraButNameIt_AreTheFirstGoods)
{
    standsTara(2, "A", 1.5, 0.0);
    standsGoods(7, 1.0, {{"A", 0.0}});
    standsGoods(6, 1.5, {{"A", 1.5}});

    host.changeQuantity(2, 2);

    EXPECT_EQ(host.journal.value(0), "change 7 to 2.500");
}

TEST_F(TaraChange, FilledTaraThatNoGoodsName_AsksForNothing)
{
    standsTara(2, "A", 1.5, 0.5);
    standsGoods(7, 1.0, {{"B", 1.0}});

    host.changeQuantity(2, 2);

    EXPECT_EQ(host.journal, savedOnce());
    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{2, "A", 3.0, 2.0}));
}

TEST_F(TaraChange, FilledTaraWithoutAnyGoods_AsksForNothing)
{
    standsTara(2, "A", 1.5, 0.0);

    host.changeQuantity(2, 2);

    EXPECT_EQ(host.journal, savedOnce());
    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{2, "A", 3.0, 1.5}));
}

TEST_F(TaraChange, RefusedGoods_LeaveTheNewCapacityStanding)
{
    standsTara(2, "A", 1.5, 0.0);
    standsGoods(7, 1.5, {{"A", 1.5}});
    host.refuseEverything = true;

    host.changeQuantity(2, 2);

    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{2, "A", 3.0, 1.5}));
    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{7, {{"A", 1.5}}}));
    EXPECT_EQ(log.lines().constLast(),
              "ERROR Не удалось изменить количество позиции, размещенной в тару");
    EXPECT_EQ(host.journal, QStringList{"change 7 to 3.000"} + savedOnce());
}

TEST_F(TaraChange, TaraWithoutRecord_OnlySaves)
{
    publishChanged(host.putPosition(2, Tmc::Tara, 1.5, 2, 2));

    EXPECT_THAT(plugin.taraList, IsEmpty());
    EXPECT_EQ(log.lines(), QStringList());
    EXPECT_EQ(host.journal, savedOnce());
}

// The ways out.

TEST_F(TaraChange, HostException_PassesAfterTheSave)
{
    standsTara(2, "A", 1.5, 0.0);
    standsGoods(7, 1.5, {{"A", 1.5}});
    const ActionInterceptor failure([](const control::Action &, auto &) -> int {
        throw std::runtime_error("the printer is on fire");
    });

    EXPECT_THROW(host.changeQuantity(2, 2), std::runtime_error);

    EXPECT_EQ(host.journal, savedOnce());
    expectSavedRecordsAreThoseOf(plugin);
    EXPECT_EQ(plugin.taraList[0]->capacity, 3.0);
}

TEST_F(TaraChange, WithoutDocument_ResizesTaraAndAsksTheHostForNothing)
{
    standsTara(2, "A", 1.5, 0.0);
    standsGoods(7, 1.5, {{"A", 1.5}});
    position(2)->setBquant(2);
    plugin.disablePlugin();

    plugin.handleEvent(Event(EActivityListener::eventModifierApplied)
                           .addArgument("position", QVariant::fromValue(position(2))));

    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{2, "A", 3.0, 1.5}));
    EXPECT_EQ(host.journal, QStringList());
}

TEST_F(TaraChange, AnotherReceiptWhileItsGoodsChange_KeepsItsRecords)
{
    standsTara(2, "A", 1.5, 0.0);
    standsGoods(7, 1.5, {{"A", 1.5}});
    const auto foreign = QVariantList{QVariantMap{{"posnum", 6}, {"usedTara", QVariantMap()}}};
    const ActionInterceptor turn([this, &foreign](const control::Action &, auto &) {
        host.newReceipt();
        host.receipt()->setPluginData("PackagingControl", "packagingInfo", foreign);
        plugin.setDocument(host.receipt());
        return EContext::Continue;
    });

    host.changeQuantity(2, 2);

    EXPECT_THAT(plugin.taraList, IsEmpty());
    EXPECT_EQ(host.receipt()->getPluginData("PackagingControl", "packagingInfo", {}), foreign);
}

TEST_F(TaraChange, SuspendedWhileItsGoodsChange_SavesNothingMore)
{
    standsTara(2, "A", 1.5, 0.0);
    standsGoods(7, 1.5, {{"A", 1.5}});
    const ActionInterceptor suspension([this](const control::Action &action, auto &queue) {
        plugin.disablePlugin();
        return queue.runAction(action);
    });

    host.changeQuantity(2, 2);

    EXPECT_EQ(host.journal, QStringList{"change 7 to 3.000"});
}

} // namespace
