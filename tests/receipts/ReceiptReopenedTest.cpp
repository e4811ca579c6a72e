#include "tests/receipts/ReceiptStory.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ReceiptReopened : public ReceiptStory
{
protected:
    //! Two tara, the first over-full; goods in both, and goods that name a tara that is gone.
    void sellALot()
    {
        host.addTara(2, 2.0);
        host.addTara(3, 1.5, 2);
        host.addTara(4, 4.0);
        host.addGoods(5, 5.0);
        host.addGoods(6, 3.0);
        host.refuseEverything = true;
        host.storno(4);
        host.changeQuantity(3, 1);
        host.refuseEverything = false;
    }
};

TEST_P(ReceiptReopened, SecondPlugin_HasEqualRecords)
{
    sellALot();
    ASSERT_THAT(tara(), ElementsAre(Tara{2, 2.0, 0.0}, Tara{3, 1.5, -1.5}));
    ASSERT_THAT(goods(), ElementsAre(Goods{5, {{2, 2.0}, {3, 3.0}}}, Goods{6, {{0, 3.0}}}));

    expectReopenedIsTheSame();
}

TEST_P(ReceiptReopened, SecondPlugin_GoesOnWhereTheFirstLeftOff)
{
    sellALot();
    plugin.setDocument(nullptr);
    TestPlugin second;
    second.init();
    second.setDocument(host.receipt());

    host.changeQuantity(5, 3.5); // 1.5 comes back out of the over-full tara
    host.storno(2);

    EXPECT_EQ(quantity(5), 1.5);
    ASSERT_EQ(second.taraList.size(), 1);
    EXPECT_EQ(second.taraList[0]->freeCapacity, 0.0);
    ASSERT_EQ(second.packagingList.size(), 2);
    EXPECT_EQ(second.packagingList[0]->usedTara.values(), QList<double>{1.5});
}

TEST_P(ReceiptReopened, SamePlugin_LeavesOneReceiptForAnotherAndComesBack)
{
    const auto first = host.receipt();
    host.addTara(2, 5.0);
    host.addGoods(3, 2.0);

    host.newReceipt();
    open(host.receipt());
    EXPECT_THAT(tara(), IsEmpty());
    EXPECT_THAT(goods(), IsEmpty());
    host.addTara(2, 1.0);

    open(first);
    EXPECT_THAT(tara(), ElementsAre(Tara{2, 5.0, 3.0}));
    EXPECT_THAT(goods(), ElementsAre(Goods{3, {{2, 2.0}}}));
}

INSTANTIATE_TEST_SUITE_P(By, ReceiptReopened,
                         testing::Values(Delivery::Notifier, Delivery::MetaObject),
                         testing::PrintToStringParamName());

} // namespace
