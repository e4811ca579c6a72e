#include "tests/receipts/TriggerStory.h"

// The cashier changes the quantity of tara that goods were poured into.

namespace {

class TaraQuantity : public testing::TestWithParam<EmptyTara>
{
protected:
    Register till{GetParam()};
};

TEST_P(TaraQuantity, SharedTara_IsRefusedAndNothingChanges)
{
    till.host.addTara(1, 10);
    till.host.addGoods(2, 4);
    till.host.addGoods(3, 6);
    const QStringList before = till.records();
    till.host.journal.clear();

    EXPECT_EQ(till.enterQuantity(1, 2), EContext::Error);

    EXPECT_EQ(till.host.journal, QStringList{"error packingControlTaraUsedDiffGoods"});
    EXPECT_EQ(till.position(1)->getBquant(), 1);
    EXPECT_EQ(till.records(), before);
    EXPECT_FALSE(till.host.modifiers().isSet(modifiers::Quantity));
}

TEST_P(TaraQuantity, PartlyFilledTara_IsRefusedUntilItIsFull)
{
    till.host.addTara(1, 10);
    till.host.addGoods(2, 4);
    till.host.journal.clear();

    EXPECT_EQ(till.enterQuantity(1, 2), EContext::Error);
    EXPECT_EQ(till.host.journal, QStringList{"error packingControlTaraAlmostFull"});

    EXPECT_EQ(till.enterQuantity(2, 10), EContext::Continue);
    EXPECT_EQ(till.enterQuantity(1, 2), EContext::Continue);
    EXPECT_EQ(till.position(2)->getBquant(), 20);
}

TEST_P(TaraQuantity, EmptyTara_OnlyGetsItsCapacity)
{
    till.host.addTara(1, 10);
    till.host.journal.clear();

    EXPECT_EQ(till.enterQuantity(1, 3), EContext::Continue);

    EXPECT_EQ(till.records(), QStringList{"tara 1: 30 of 30 free"});
    EXPECT_EQ(till.savedRecords(), till.records());
    EXPECT_EQ(till.host.journal.filter("change"), QStringList());
}

TEST_P(TaraQuantity, FullTaraGrows_ItsGoodsFollowAndFillIt)
{
    till.host.addTara(1, 1.5);
    till.host.addGoods(7, 1.5);
    till.host.journal.clear();

    EXPECT_EQ(till.enterQuantity(1, 2), EContext::Continue);

    EXPECT_EQ(till.host.journal.filter("change"), QStringList{"change 7 to 3.000"});
    EXPECT_EQ(till.position(7)->getBquant(), 3);
    EXPECT_EQ(till.records(), (QStringList{"tara 1: 0 of 3 free", "goods 7: 3 in 1"}));
    EXPECT_EQ(till.savedRecords(), till.records());
}

TEST_P(TaraQuantity, FullTaraShrinks_ItsGoodsFollow)
{
    till.host.addTara(1, 1.5, 2);
    till.host.addGoods(7, 3);
    till.host.journal.clear();

    EXPECT_EQ(till.enterQuantity(1, 1), EContext::Continue);

    EXPECT_EQ(till.host.journal.filter("change"), QStringList{"change 7 to 1.500"});
    EXPECT_EQ(till.position(7)->getBquant(), 1.5);
    EXPECT_EQ(till.records(), (QStringList{"tara 1: 0 of 1.5 free", "goods 7: 1.5 in 1"}));
    EXPECT_EQ(till.savedRecords(), till.records());
}

TEST_P(TaraQuantity, GrownTaraWhoseGoodsTheHostKeeps_IsPartlyFilledAndRefusedNextTime)
{
    till.host.addTara(1, 10);
    till.host.addGoods(2, 10);
    till.host.refusedPositions = {2};
    till.host.journal.clear();

    EXPECT_EQ(till.enterQuantity(1, 2), EContext::Continue);
    EXPECT_EQ(till.records(), (QStringList{"tara 1: 10 of 20 free", "goods 2: 10 in 1"}));

    EXPECT_EQ(till.enterQuantity(1, 3), EContext::Error);
    EXPECT_EQ(till.host.journal.constLast(), "error packingControlTaraAlmostFull");
}

TEST_P(TaraQuantity, GoodsPouredIntoTara_AreNeverRefused)
{
    till.host.addTara(1, 10);
    till.host.addGoods(2, 4);
    till.host.addGoods(3, 2);

    EXPECT_EQ(till.enterQuantity(2, 5), EContext::Continue);

    EXPECT_EQ(till.records(),
              (QStringList{"tara 1: 3 of 10 free", "goods 2: 5 in 1", "goods 3: 2 in 1"}));
    EXPECT_EQ(till.host.errors.size(), 0);
}

TEST_P(TaraQuantity, SecondGoodsLeave_TheTaraMayChangeAgain)
{
    till.host.addTara(1, 10);
    till.host.addGoods(2, 10);
    till.host.addTara(4, 10);
    till.host.addGoods(3, 10);
    till.host.addTara(5, 10);
    till.host.addGoods(6, 1);
    ASSERT_EQ(till.enterQuantity(5, 2), EContext::Error);

    till.host.storno(6);

    EXPECT_EQ(till.enterQuantity(5, 2), EContext::Continue);
    EXPECT_EQ(till.records(),
              (QStringList{"tara 1: 0 of 10 free", "tara 4: 0 of 10 free", "tara 5: 20 of 20 free",
                           "goods 2: 10 in 1", "goods 3: 10 in 4"}));
}

INSTANTIATE_TEST_SUITE_P(Setting, TaraQuantity,
                         testing::Values(EmptyTara::Forbidden, EmptyTara::Allowed),
                         testing::PrintToStringParamName());

} // namespace
