#include "tests/receipts/ReceiptStory.h"

namespace {

using testing::IsEmpty;

class ReceiptTara : public ReceiptStory
{
};

TEST_P(ReceiptTara, TypicalSale_FollowsTheCashier)
{
    host.addTara(2, 1.5);
    EXPECT_EQ(tara(), QStringList{"tara 2: 1.5 of 1.5 free"});

    host.addGoods(3, 1.5);
    EXPECT_EQ(tara(), QStringList{"tara 2: 0 of 1.5 free"});
    EXPECT_EQ(goods(), QStringList{"goods 3: 1.5 in 2"});

    EXPECT_EQ(enterQuantity(2, 2), EContext::Continue); // full, and of one goods only
    EXPECT_EQ(host.asked(), QStringList{"change 3 to 3.000"});
    EXPECT_EQ(quantity(3), 3.0);
    EXPECT_EQ(tara(), QStringList{"tara 2: 0 of 3 free"});
    EXPECT_EQ(goods(), QStringList{"goods 3: 3 in 2"});
    EXPECT_EQ(savedRecords(), records());
}

TEST_P(ReceiptTara, PartlyFilledTara_KeepsItsQuantity)
{
    host.addTara(2, 1.5);
    host.addGoods(3, 1.0);

    EXPECT_EQ(enterQuantity(2, 2), EContext::Error);

    EXPECT_EQ(host.asked(), QStringList{"error packingControlTaraAlmostFull"});
    EXPECT_EQ(quantity(2), 1.0);
    EXPECT_EQ(tara(), QStringList{"tara 2: 0.5 of 1.5 free"});
    EXPECT_EQ(goods(), QStringList{"goods 3: 1 in 2"});
}

TEST_P(ReceiptTara, SharedTara_KeepsItsQuantity)
{
    host.addTara(2, 2.0);
    host.addGoods(3, 1.0);
    host.addGoods(4, 1.0);

    EXPECT_EQ(enterQuantity(2, 2), EContext::Error);

    EXPECT_EQ(host.asked(), QStringList{"error packingControlTaraUsedDiffGoods"});
    EXPECT_EQ(tara(), QStringList{"tara 2: 0 of 2 free"});
}

TEST_P(ReceiptTara, GrownAndShrunkBelowItsContents_DrawsItsGoodsBackOut)
{
    host.addTara(2, 1.5);
    host.addGoods(3, 1.5);
    enterQuantity(2, 3);
    EXPECT_EQ(quantity(3), 4.5);
    EXPECT_EQ(tara(), QStringList{"tara 2: 0 of 4.5 free"});

    enterQuantity(2, 1);

    EXPECT_EQ(host.asked(), (QStringList{"change 3 to 4.500", "change 3 to 1.500"}));
    EXPECT_EQ(quantity(3), 1.5);
    EXPECT_EQ(tara(), QStringList{"tara 2: 0 of 1.5 free"});
    EXPECT_EQ(goods(), QStringList{"goods 3: 1.5 in 2"});
    EXPECT_EQ(savedRecords(), records());
}

TEST_P(ReceiptTara, ShrunkWhileTheHostIsSlow_IsOverfullUntilTheGoodsFollow)
{
    host.addTara(2, 1.5, 2);
    host.addGoods(3, 3.0);
    host.late = true;

    enterQuantity(2, 1);
    EXPECT_EQ(tara(), QStringList{"tara 2: -1.5 of 1.5 free"});
    EXPECT_EQ(savedRecords(), records());

    host.deliverLate();
    EXPECT_EQ(tara(), QStringList{"tara 2: 0 of 1.5 free"});
    EXPECT_EQ(goods(), QStringList{"goods 3: 1.5 in 2"});
    EXPECT_EQ(savedRecords(), records());
}

TEST_P(ReceiptTara, ShrunkAgainstTheHostsWill_IsOverfullUntilItsGoodsAreStornoed)
{
    host.addTara(2, 1.5, 2);
    host.addGoods(3, 3.0);
    host.refusedPositions = {3};

    enterQuantity(2, 1);
    EXPECT_EQ(tara(), QStringList{"tara 2: -1.5 of 1.5 free"});
    EXPECT_EQ(quantity(3), 3.0);

    host.storno(3);
    EXPECT_EQ(tara(), QStringList{"tara 2: 1.5 of 1.5 free"});
    EXPECT_THAT(goods(), IsEmpty());
}

TEST_P(ReceiptTara, GoodsBeforeAnyTara_ArePouredWhenTheyChange)
{
    host.addGoods(3, 2.0);
    host.addTara(4, 5.0);
    EXPECT_EQ(tara(), QStringList{"tara 4: 5 of 5 free"});
    EXPECT_EQ(goods(), QStringList{"goods 3: none"});

    enterQuantity(3, 3.0);

    EXPECT_EQ(tara(), QStringList{"tara 4: 2 of 5 free"});
    EXPECT_EQ(goods(), QStringList{"goods 3: 3 in 4"});
    EXPECT_EQ(host.asked(), QStringList());
    EXPECT_EQ(savedRecords(), records());
}

TEST_P(ReceiptTara, OtherGoods_AreNobodysBusiness)
{
    host.addTara(2, 1.5);
    host.addOther(3, 1.0);
    enterQuantity(3, 7.0);
    host.storno(3);

    EXPECT_EQ(tara(), QStringList{"tara 2: 1.5 of 1.5 free"});
    EXPECT_THAT(goods(), IsEmpty());
    EXPECT_EQ(host.asked(), QStringList());
}

INSTANTIATE_TEST_SUITE_P(By, ReceiptTara, testing::Values(Delivery::Notifier, Delivery::MetaObject),
                         testing::PrintToStringParamName());

} // namespace
