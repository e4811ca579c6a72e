#include "tests/receipts/TriggerStory.h"

// The cashier changes the quantity of tara that goods were poured into.

namespace {

using TaraQuantity = TriggerStoryOfBoth;

TEST_P(TaraQuantity, SharedTara_IsRefusedAndNothingChanges)
{
    host.addTara(1, 10);
    host.addGoods(2, 4);
    host.addGoods(3, 6);
    const QStringList before = records();
    host.journal.clear();

    EXPECT_EQ(enterQuantity(1, 2), EContext::Error);

    EXPECT_EQ(host.journal, QStringList{"error packingControlTaraUsedDiffGoods"});
    EXPECT_EQ(quantity(1), 1);
    EXPECT_EQ(records(), before);
    EXPECT_FALSE(host.modifiers().isSet(modifiers::Quantity));
}

TEST_P(TaraQuantity, PartlyFilledTara_IsRefusedUntilItIsFull)
{
    host.addTara(1, 10);
    host.addGoods(2, 4);
    host.journal.clear();

    EXPECT_EQ(enterQuantity(1, 2), EContext::Error);
    EXPECT_EQ(host.journal, QStringList{"error packingControlTaraAlmostFull"});

    EXPECT_EQ(enterQuantity(2, 10), EContext::Continue);
    EXPECT_EQ(enterQuantity(1, 2), EContext::Continue);
    EXPECT_EQ(quantity(2), 20);
}

TEST_P(TaraQuantity, EmptyTara_OnlyGetsItsCapacity)
{
    host.addTara(1, 10);
    host.journal.clear();

    EXPECT_EQ(enterQuantity(1, 3), EContext::Continue);

    EXPECT_EQ(records(), QStringList{"tara 1: 30 of 30 free"});
    EXPECT_EQ(savedRecords(), records());
    EXPECT_EQ(host.journal.filter("change"), QStringList());
}

TEST_P(TaraQuantity, FullTaraGrows_ItsGoodsFollowAndFillIt)
{
    host.addTara(1, 1.5);
    host.addGoods(7, 1.5);
    host.journal.clear();

    EXPECT_EQ(enterQuantity(1, 2), EContext::Continue);

    EXPECT_EQ(host.journal.filter("change"), QStringList{"change 7 to 3.000"});
    EXPECT_EQ(quantity(7), 3);
    EXPECT_EQ(records(), (QStringList{"tara 1: 0 of 3 free", "goods 7: 3 in 1"}));
    EXPECT_EQ(savedRecords(), records());
}

TEST_P(TaraQuantity, FullTaraShrinks_ItsGoodsFollow)
{
    host.addTara(1, 1.5, 2);
    host.addGoods(7, 3);
    host.journal.clear();

    EXPECT_EQ(enterQuantity(1, 1), EContext::Continue);

    EXPECT_EQ(host.journal.filter("change"), QStringList{"change 7 to 1.500"});
    EXPECT_EQ(quantity(7), 1.5);
    EXPECT_EQ(records(), (QStringList{"tara 1: 0 of 1.5 free", "goods 7: 1.5 in 1"}));
    EXPECT_EQ(savedRecords(), records());
}

TEST_P(TaraQuantity, GrownTaraWhoseGoodsTheHostKeeps_IsPartlyFilledAndRefusedNextTime)
{
    host.addTara(1, 10);
    host.addGoods(2, 10);
    host.refusedPositions = {2};
    host.journal.clear();

    EXPECT_EQ(enterQuantity(1, 2), EContext::Continue);
    EXPECT_EQ(records(), (QStringList{"tara 1: 10 of 20 free", "goods 2: 10 in 1"}));

    EXPECT_EQ(enterQuantity(1, 3), EContext::Error);
    EXPECT_EQ(host.journal.constLast(), "error packingControlTaraAlmostFull");
}

TEST_P(TaraQuantity, GoodsPouredIntoTara_AreNeverRefused)
{
    host.addTara(1, 10);
    host.addGoods(2, 4);
    host.addGoods(3, 2);

    EXPECT_EQ(enterQuantity(2, 5), EContext::Continue);

    EXPECT_EQ(records(),
              (QStringList{"tara 1: 3 of 10 free", "goods 2: 5 in 1", "goods 3: 2 in 1"}));
    EXPECT_EQ(host.errors.size(), 0);
}

TEST_P(TaraQuantity, SecondGoodsLeave_TheTaraMayChangeAgain)
{
    host.addTara(1, 10);
    host.addGoods(2, 10);
    host.addTara(4, 10);
    host.addGoods(3, 10);
    host.addTara(5, 10);
    host.addGoods(6, 1);
    ASSERT_EQ(enterQuantity(5, 2), EContext::Error);

    host.storno(6);

    EXPECT_EQ(enterQuantity(5, 2), EContext::Continue);
    EXPECT_EQ(records(),
              (QStringList{"tara 1: 0 of 10 free", "tara 4: 0 of 10 free", "tara 5: 20 of 20 free",
                           "goods 2: 10 in 1", "goods 3: 10 in 4"}));
}

INSTANTIATE_TEST_SUITE_P(Setting, TaraQuantity,
                         testing::Values(EmptyTara::Forbidden, EmptyTara::Allowed),
                         testing::PrintToStringParamName());

} // namespace
