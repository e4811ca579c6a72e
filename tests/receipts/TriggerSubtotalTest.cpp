#include "tests/receipts/TriggerStory.h"

// The cashier goes to payment while some tara is empty.

namespace {

class SubtotalStory : public testing::Test
{
protected:
    explicit SubtotalStory(EmptyTara setting = EmptyTara::Forbidden)
        : till(setting)
    {
        till.host.addTara(1, 10);
        till.host.addGoods(2, 4);
        till.host.addTara(3, 10);
        till.host.addTara(4, 10);
        till.host.addTara(5, 10);
        till.host.journal.clear();
    }

    //! What the cashier and the host's storno saw.
    QStringList asked() const
    {
        QStringList lines;
        for (const QString &line : till.host.journal) {
            if (line.startsWith("ask") || line.startsWith("storno"))
                lines << line;
        }
        return lines;
    }

    const QStringList untouched{"tara 1: 6 of 10 free", "tara 3: 10 of 10 free",
                                "tara 4: 10 of 10 free", "tara 5: 10 of 10 free",
                                "goods 2: 4 in 1"};
    Register till;
};

TEST_F(SubtotalStory, AnsweredYes_EmptyTaraLeavesAndTheReceiptIsPaid)
{
    till.host.dialogAnswer = true;

    EXPECT_EQ(till.subtotal(), EContext::Continue);

    EXPECT_EQ(asked(),
              (QStringList{"ask packingControlSaleEmptyTara", "storno 3", "storno 4", "storno 5"}));
    EXPECT_EQ(till.records(), (QStringList{"tara 1: 6 of 10 free", "goods 2: 4 in 1"}));
    EXPECT_EQ(till.savedRecords(), till.records());
    EXPECT_EQ(till.host.receipt()->getPositionList().size(), 2);
}

TEST_F(SubtotalStory, AnsweredYes_NextSubtotalAsksNothing)
{
    till.host.dialogAnswer = true;
    till.subtotal();
    till.host.journal.clear();
    EXPECT_EQ(till.subtotal(), EContext::Continue);
    EXPECT_EQ(till.host.journal, QStringList());
}

TEST_F(SubtotalStory, AnsweredNo_TheReceiptStaysOpenAsItIs)
{
    till.host.dialogAnswer = false;

    EXPECT_EQ(till.subtotal(), EContext::Cancel);

    EXPECT_EQ(till.host.journal, QStringList{"ask packingControlSaleEmptyTara"});
    EXPECT_EQ(till.records(), untouched);
    EXPECT_EQ(till.host.receipt()->getPositionList().size(), 5);
}

TEST_F(SubtotalStory, AnsweredNo_TheCashierFillsTheTaraAndIsNotAskedAgain)
{
    till.subtotal();
    till.host.journal.clear();

    till.enterQuantity(2, 37);

    EXPECT_EQ(till.subtotal(), EContext::Continue);
    EXPECT_EQ(asked(), QStringList());
    EXPECT_EQ(till.records().constLast(), "goods 2: 10 in 1, 10 in 3, 10 in 4, 7 in 5");
}

TEST_F(SubtotalStory, SecondOfThreeIsRefused_TheFirstIsGoneAndTheReceiptIsNotPaid)
{
    till.host.dialogAnswer = true;
    till.host.refusedPositions = {4};

    EXPECT_EQ(till.subtotal(), EContext::Cancel);

    EXPECT_EQ(asked(), (QStringList{"ask packingControlSaleEmptyTara", "storno 3", "storno 4"}));
    EXPECT_EQ(till.records(), (QStringList{"tara 1: 6 of 10 free", "tara 4: 10 of 10 free",
                                           "tara 5: 10 of 10 free", "goods 2: 4 in 1"}));
    EXPECT_EQ(till.savedRecords(), till.records());
    EXPECT_EQ(till.host.errors.size(), 0);
}

TEST_F(SubtotalStory, SecondOfThreeIsRefusedOnce_TheNextSubtotalFinishes)
{
    till.host.dialogAnswer = true;
    till.host.refusedPositions = {4};
    till.subtotal();
    till.host.refusedPositions.clear();
    till.host.journal.clear();

    EXPECT_EQ(till.subtotal(), EContext::Continue);

    EXPECT_EQ(asked(), (QStringList{"ask packingControlSaleEmptyTara", "storno 4", "storno 5"}));
}

TEST_F(SubtotalStory, GoodsLeaveTheirTara_ItIsEmptyTooAndTheReceiptEndsEmpty)
{
    till.host.storno(2);
    till.host.dialogAnswer = true;

    EXPECT_EQ(till.subtotal(), EContext::Cancel);

    EXPECT_EQ(till.host.receipt()->getPositionList().size(), 0);
    EXPECT_EQ(till.records(), QStringList());
}

class SubtotalOfEmptyTaraAllowed : public SubtotalStory
{
protected:
    SubtotalOfEmptyTaraAllowed()
        : SubtotalStory(EmptyTara::Allowed)
    {
    }
};

TEST_F(SubtotalOfEmptyTaraAllowed, EmptyTara_IsPaidWithoutAQuestion)
{
    for (const bool answer : {true, false}) {
        till.host.dialogAnswer = answer;
        EXPECT_EQ(till.subtotal(), EContext::Continue);
    }
    EXPECT_EQ(till.host.journal, QStringList());
    EXPECT_EQ(till.records(), untouched);
}

TEST_F(SubtotalOfEmptyTaraAllowed, HostThatWouldRefuse_IsNotAsked)
{
    till.host.dialogAnswer = true;
    till.host.refusedPositions = {4};
    EXPECT_EQ(till.subtotal(), EContext::Continue);
    EXPECT_EQ(till.host.journal, QStringList());
    EXPECT_EQ(till.records(), untouched);
}

TEST_F(SubtotalOfEmptyTaraAllowed, OnlyEmptyTara_IsPaidWithoutAQuestion)
{
    till.host.storno(2);
    till.host.journal.clear();
    EXPECT_EQ(till.subtotal(), EContext::Continue);
    EXPECT_EQ(till.host.journal, QStringList());
    EXPECT_EQ(till.host.receipt()->getPositionList().size(), 4);
}

} // namespace
