#include "tests/events/ReceiptEvents.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PositionStorno : public ReceiptEvents
{
protected:
    //! The event alone, as a host delivers it that stornoes by itself.
    void publishStorno(const QSharedPointer<GoodsItem> &position)
    {
        host.publish(EActivityListener::eventPositionStorno, position);
    }
};

// Goods.

TEST_F(PositionStorno, Goods_GiveWhatTheyUsedBackToEachTara)
{
    standsTara(2, "A", 5.0, 0.5);
    standsTara(3, "B", 5.0, 1.0);
    standsTara(4, "C", 5.0, 2.0);
    standsGoods(5, 3.0, {{"A", 1.0}, {"B", 2.0}});

    host.storno(5);

    EXPECT_THAT(valuesOf(plugin.taraList),
                ElementsAre(TaraInfo{2, "A", 5.0, 1.5}, TaraInfo{3, "B", 5.0, 3.0},
                            TaraInfo{4, "C", 5.0, 2.0}));
    EXPECT_THAT(plugin.packagingList, IsEmpty());
}

TEST_F(PositionStorno, Goods_LogOneLineAndSaveAfterwards)
{
    standsTara(2, "A", 5.0, 4.0);
    standsGoods(5, 1.0, {{"A", 1.0}});

    host.storno(5);

    EXPECT_EQ(log.lines(), QStringList{"INFO При удалении позиции: 5"});
    EXPECT_EQ(host.journal, savedOnce()); // no switch, no loyalty, nothing asked
    expectSavedRecordsAreThoseOf(plugin);
}

TEST_F(PositionStorno, Goods_LeaveOtherGoodsAsTheyAre)
{
    standsTara(2, "A", 5.0, 2.0);
    standsGoods(5, 1.0, {{"A", 1.0}});
    standsGoods(6, 2.0, {{"A", 2.0}});

    host.storno(5);

    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{6, {{"A", 2.0}}}));
    EXPECT_EQ(plugin.taraList[0]->freeCapacity, 3.0);
}

TEST_F(PositionStorno, GoodsInOverfullTara_GiveItBackToo)
{
    standsTara(2, "A", 1.0, -2.0);
    standsGoods(5, 3.0, {{"A", 3.0}});

    host.storno(5);

    EXPECT_EQ(plugin.taraList[0]->freeCapacity, 1.0);
}

TEST_F(PositionStorno, GoodsThatNameTaraOfThePast_GiveNothingBackForIt)
{
    standsTara(3, "B", 5.0, 3.0);
    standsGoods(5, 3.0, {{"gone", 1.0}, {"B", 2.0}});

    host.storno(5);

    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{3, "B", 5.0, 5.0}));
    EXPECT_THAT(plugin.packagingList, IsEmpty());
}

TEST_F(PositionStorno, Goods_KeepTheirMapForWhoeverHoldsTheRecord)
{
    standsTara(2, "A", 5.0, 4.0);
    standsGoods(5, 1.0, {{"A", 1.0}});
    const auto held = plugin.packagingList.constFirst();

    host.storno(5);

    EXPECT_EQ(*held, (PackagingInfo{5, {{"A", 1.0}}}));
}

TEST_F(PositionStorno, GoodsWithoutRecord_OnlyLogAndSave)
{
    standsTara(2, "A", 5.0, 4.0);
    host.putPosition(5, Tmc::PackagingGoods, QVariant(), 1, 1);

    host.storno(5);

    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{2, "A", 5.0, 4.0}));
    EXPECT_EQ(log.lines(), QStringList{"INFO При удалении позиции: 5"});
    EXPECT_EQ(host.journal, savedOnce());
}

TEST_F(PositionStorno, RecordHeldTwice_IsForgottenAltogether)
{
    standsGoods(5, 1.0, {});
    plugin.packagingList.append(plugin.packagingList.constFirst());

    host.storno(5);

    EXPECT_THAT(plugin.packagingList, IsEmpty());
}

// Others.

class StornoOfOtherMode : public PositionStorno, public testing::WithParamInterface<int>
{
};

TEST_P(StornoOfOtherMode, LogsAndSavesAndChangesNothingElse)
{
    plugin.putTara(4, "A", 5.0, 4.0);
    plugin.putGoods(4, {{"A", 1.0}});

    publishStorno(host.putPosition(4, GetParam(), 1.0, 1, 1));

    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{4, "A", 5.0, 4.0}));
    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{4, {{"A", 1.0}}}));
    EXPECT_EQ(log.lines(), QStringList{"INFO При удалении позиции: 4"});
    EXPECT_EQ(host.journal, savedOnce());
}

INSTANTIATE_TEST_SUITE_P(Modes, StornoOfOtherMode, testing::Values(0, 3, -1));

// Tara.

TEST_F(PositionStorno, TaraWithoutRecord_OnlyLogsAndSaves)
{
    publishStorno(host.putPosition(2, Tmc::Tara, 5.0, 1, 1));

    EXPECT_EQ(log.lines(), QStringList{"INFO При удалении позиции: 2"});
    EXPECT_EQ(host.journal, savedOnce());
}

TEST_F(PositionStorno, EmptyTara_IsForgottenWithSwitchAndLoyaltyAndWithoutAnAction)
{
    standsTara(2, "A", 5.0, 5.0);
    standsTara(3, "B", 5.0, 4.0);
    standsGoods(5, 1.0, {{"B", 1.0}});

    host.storno(2);

    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{3, "B", 5.0, 4.0}));
    EXPECT_EQ(host.journal, (QStringList{"switch off", "switch on", "loyalty"} + savedOnce()));
    EXPECT_EQ(log.lines(), QStringList{"INFO При удалении позиции: 2"});
    expectSavedRecordsAreThoseOf(plugin);
}

TEST_F(PositionStorno, TaraHeldTwice_IsForgottenAltogether)
{
    standsTara(2, "A", 5.0, 5.0);
    plugin.taraList.append(plugin.taraList.constFirst());

    host.storno(2);

    EXPECT_THAT(plugin.taraList, IsEmpty());
}

TEST_F(PositionStorno, Tara_KeepsItsNumbersForWhoeverHoldsTheRecord)
{
    standsTara(2, "A", 5.0, 3.0);
    standsGoods(5, 2.0, {{"A", 2.0}});
    const auto held = plugin.taraList.constFirst();

    host.storno(2);

    EXPECT_EQ(*held, (TaraInfo{2, "A", 5.0, 3.0}));
}

TEST_F(PositionStorno, Position_IsReadFromTheEventNotFromTheDocument)
{
    plugin.putTara(2, "A", 5.0, 5.0);
    host.putPosition(2, Tmc::NoTara, QVariant(), 1, 1);
    const auto tmc = QSharedPointer<Tmc>::create(Tmc::Tara, QVariant(5.0));

    publishStorno(QSharedPointer<GoodsItem>::create(2, tmc));

    EXPECT_THAT(plugin.taraList, IsEmpty());
}

TEST_F(PositionStorno, LoyaltyLayerThatNobodyMade_IsMadeOnFirstUse)
{
    standsTara(2, "A", 5.0, 5.0);
    const Missing<LoyaltySystemLayer> nobody;

    host.storno(2);

    EXPECT_TRUE(Singleton<LoyaltySystemLayer>::instance);
}

TEST_F(PositionStorno, LoyaltyLayer_IsToldOfTheReceipt)
{
    standsTara(2, "A", 5.0, 5.0);
    const LoyaltyOfReceipts loyalty;

    host.storno(2);

    EXPECT_EQ(loyalty.told, QList<QSharedPointer<AbstractDocument>>{host.receipt()});
}

// Without a document.

class StornoWithoutDocument : public PositionStorno
{
protected:
    void deliverStorno(const QSharedPointer<GoodsItem> &position)
    {
        plugin.disablePlugin();
        plugin.handleEvent(Event(EActivityListener::eventPositionStorno)
                               .addArgument("position", QVariant::fromValue(position)));
    }
};

TEST_F(StornoWithoutDocument, Tara_IsForgottenAndItsGoodsKeepTheirEntry)
{
    standsTara(2, "A", 5.0, 3.0);
    standsGoods(5, 2.0, {{"A", 2.0}});

    deliverStorno(position(2));

    EXPECT_THAT(plugin.taraList, IsEmpty());
    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{5, {{"A", 2.0}}}));
    EXPECT_EQ(host.journal, QStringList());
}

//! Says that the goods were changed, and notes what it was asked for.
class ChangesGoodsItself : public TestPlugin
{
public:
    bool modifyPackagingPositionQuantity(const QSharedPointer<PackagingInfo> &info,
                                         double quantityDelta) override
    {
        changes[info->posnum] = quantityDelta;
        return true;
    }

    QMap<int, double> changes;
};

TEST_F(StornoWithoutDocument, TaraOfASubclassThatChangesGoodsItself_LosesTheirEntries)
{
    const auto tara = host.putPosition(2, Tmc::Tara, 5.0, 1, 1);
    ChangesGoodsItself subclass;
    subclass.putTara(2, "A", 5.0, 2.0);
    subclass.putGoods(5, {{"A", 2.0}});
    subclass.putGoods(6, {{"B", 3.0}});
    subclass.putGoods(7, {{"A", 1.0}});

    subclass.handleEvent(Event(EActivityListener::eventPositionStorno)
                             .addArgument("position", QVariant::fromValue(tara)));

    EXPECT_EQ(subclass.changes, (QMap<int, double>{{5, -2.0}, {7, -1.0}}));
    EXPECT_THAT(
        valuesOf(subclass.packagingList),
        ElementsAre(PackagingInfo{5, {}}, PackagingInfo{6, {{"B", 3.0}}}, PackagingInfo{7, {}}));
}

TEST_F(StornoWithoutDocument, Goods_AreForgottenAndNothingIsSaved)
{
    standsTara(2, "A", 5.0, 3.0);
    standsGoods(5, 2.0, {{"A", 2.0}});

    deliverStorno(position(5));

    EXPECT_THAT(plugin.packagingList, IsEmpty());
    EXPECT_EQ(plugin.taraList[0]->freeCapacity, 5.0);
    EXPECT_EQ(log.lines(), QStringList{"INFO При удалении позиции: 5"});
    EXPECT_EQ(host.journal, QStringList());
}

} // namespace
