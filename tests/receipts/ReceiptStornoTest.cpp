#include "tests/receipts/ReceiptStory.h"

namespace {

using testing::IsEmpty;

class ReceiptStorno : public ReceiptStory
{
};

TEST_P(ReceiptStorno, MiddleOfThreeTara_TakesItsShareOfTheGoodsAlong)
{
    host.addTara(2, 1.0);
    host.addTara(3, 2.0);
    host.addTara(4, 5.0);
    host.addGoods(5, 6.0);
    ASSERT_EQ(goods(), QStringList{"goods 5: 1 in 2, 2 in 3, 3 in 4"});

    host.storno(3);

    EXPECT_EQ(host.asked(),
              (QStringList{"switch off", "change 5 to 4.000", "switch on", "loyalty"}));
    EXPECT_EQ(quantity(5), 4.0);
    EXPECT_EQ(tara(), (QStringList{"tara 2: 0 of 1 free", "tara 4: 2 of 5 free"}));
    EXPECT_EQ(goods(), QStringList{"goods 5: 1 in 2, 3 in 4"});
    EXPECT_EQ(savedRecords(), records());
}

TEST_P(ReceiptStorno, TaraOneAfterTheOther_EmptiesTheReceipt)
{
    host.addTara(2, 1.0);
    host.addTara(3, 2.0);
    host.addTara(4, 5.0);
    host.addGoods(5, 6.0);

    host.storno(3);
    host.storno(2);
    EXPECT_EQ(quantity(5), 3.0);
    host.storno(4);

    EXPECT_TRUE(host.receipt()->getPositionList().isEmpty());
    EXPECT_THAT(tara(), IsEmpty());
    EXPECT_THAT(goods(), IsEmpty());
    EXPECT_EQ(savedRecords(), records());
}

TEST_P(ReceiptStorno, RefusedReduction_LeavesTheGoodsNamingTheLostTara)
{
    host.addTara(2, 2.0);
    host.addTara(3, 5.0);
    host.addGoods(5, 3.0);
    host.refusedPositions = {5};

    host.storno(2);

    EXPECT_EQ(host.asked(),
              (QStringList{"switch off", "change 5 to 1.000", "switch on", "loyalty"}));
    EXPECT_TRUE(host.receipt()->isSwitchedOn());
    EXPECT_EQ(quantity(5), 3.0);
    EXPECT_EQ(tara(), QStringList{"tara 3: 4 of 5 free"});
    EXPECT_EQ(goods(), QStringList{"goods 5: 1 in 3, 2 in lost tara"});
    EXPECT_EQ(savedRecords(), records());

    host.storno(5); // what was in the lost tara comes back to nobody
    EXPECT_EQ(tara(), QStringList{"tara 3: 5 of 5 free"});
    EXPECT_THAT(goods(), IsEmpty());
}

TEST_P(ReceiptStorno, TaraOfTwoGoods_TakesBothAlong)
{
    host.addTara(2, 5.0);
    host.addGoods(3, 2.0);
    host.addGoods(4, 3.0);

    host.storno(2);

    EXPECT_EQ(host.asked(),
              (QStringList{"switch off", "remove 3", "remove 4", "switch on", "loyalty"}));
    EXPECT_TRUE(host.receipt()->getPositionList().isEmpty());
    EXPECT_THAT(goods(), IsEmpty());
    EXPECT_EQ(savedRecords(), records());
}

TEST_P(ReceiptStorno, TaraOfTwoGoodsOneElsewhereToo_RemovesOneAndReducesTheOther)
{
    host.addTara(2, 5.0);
    host.addTara(6, 5.0);
    host.addGoods(3, 2.0);
    host.addGoods(4, 4.0);

    host.storno(2);

    EXPECT_EQ(host.asked(),
              (QStringList{"switch off", "remove 3", "change 4 to 1.000", "switch on", "loyalty"}));
    EXPECT_EQ(tara(), QStringList{"tara 6: 4 of 5 free"});
    EXPECT_EQ(goods(), QStringList{"goods 4: 1 in 6"});
    EXPECT_EQ(savedRecords(), records());
}

TEST_P(ReceiptStorno, TaraOfTwoGoodsAndASlowHost_IsAtRestWhenAllEventsCame)
{
    host.addTara(2, 5.0);
    host.addTara(6, 5.0);
    host.addGoods(3, 2.0);
    host.addGoods(4, 4.0);
    host.late = true;

    host.storno(2);
    host.deliverLate();

    EXPECT_EQ(tara(), QStringList{"tara 6: 4 of 5 free"});
    EXPECT_EQ(goods(), QStringList{"goods 4: 1 in 6"});
    EXPECT_EQ(savedRecords(), records());
}

TEST_P(ReceiptStorno, Goods_MakeRoomForTheNext)
{
    host.addTara(2, 5.0);
    host.addGoods(3, 5.0);
    host.addGoods(4, 2.0);
    ASSERT_EQ(goods(), (QStringList{"goods 3: 5 in 2", "goods 4: none"}));

    host.storno(3);
    host.addGoods(5, 1.5);

    EXPECT_EQ(tara(), QStringList{"tara 2: 3.5 of 5 free"});
    EXPECT_EQ(goods(), (QStringList{"goods 4: none", "goods 5: 1.5 in 2"}));
    EXPECT_EQ(savedRecords(), records());
}

INSTANTIATE_TEST_SUITE_P(By, ReceiptStorno,
                         testing::Values(Delivery::Notifier, Delivery::MetaObject),
                         testing::PrintToStringParamName());

} // namespace
