#include "tests/receipts/ReceiptStory.h"

namespace {

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
    ASSERT_EQ(tara(), (QStringList{"tara 2: 0 of 2 free", "tara 3: -1.5 of 1.5 free"}));
    ASSERT_EQ(goods(), (QStringList{"goods 5: 2 in 2, 3 in 3", "goods 6: 3 in lost tara"}));

    EXPECT_EQ(savedRecords(), records());
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
    EXPECT_EQ(tara(), QStringList{"tara 2: 3 of 5 free"});
    EXPECT_EQ(goods(), QStringList{"goods 3: 2 in 2"});
}

INSTANTIATE_TEST_SUITE_P(By, ReceiptReopened,
                         testing::Values(Delivery::Notifier, Delivery::MetaObject),
                         testing::PrintToStringParamName());

} // namespace
