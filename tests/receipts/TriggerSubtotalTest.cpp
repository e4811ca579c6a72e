#include "tests/receipts/TriggerStory.h"

// The cashier goes to payment while some tara is empty.

namespace {

class SubtotalStory : public TriggerStory
{
protected:
    explicit SubtotalStory(EmptyTara setting = EmptyTara::Forbidden)
        : TriggerStory(setting)
    {
        host.addTara(1, 10);
        host.addGoods(2, 4);
        host.addTara(3, 10);
        host.addTara(4, 10);
        host.addTara(5, 10);
        host.journal.clear();
    }

    //! What the cashier and the host's storno saw.
    QStringList seen() const
    {
        QStringList lines;
        for (const QString &line : host.journal) {
            if (line.startsWith("ask") || line.startsWith("storno"))
                lines << line;
        }
        return lines;
    }

    const QStringList untouched{"tara 1: 6 of 10 free", "tara 3: 10 of 10 free",
                                "tara 4: 10 of 10 free", "tara 5: 10 of 10 free",
                                "goods 2: 4 in 1"};
};

TEST_F(SubtotalStory, AnsweredYes_EmptyTaraLeavesAndTheReceiptIsPaid)
{
    host.dialogAnswer = true;

    EXPECT_EQ(subtotal(), EContext::Continue);

    EXPECT_EQ(seen(),
              (QStringList{"ask packingControlSaleEmptyTara", "storno 3", "storno 4", "storno 5"}));
    EXPECT_EQ(records(), (QStringList{"tara 1: 6 of 10 free", "goods 2: 4 in 1"}));
    EXPECT_EQ(savedRecords(), records());
    EXPECT_EQ(host.receipt()->getPositionList().size(), 2);
}

TEST_F(SubtotalStory, AnsweredYes_NextSubtotalAsksNothing)
{
    host.dialogAnswer = true;
    subtotal();
    host.journal.clear();
    EXPECT_EQ(subtotal(), EContext::Continue);
    EXPECT_EQ(host.journal, QStringList());
}

TEST_F(SubtotalStory, AnsweredNo_TheReceiptStaysOpenAsItIs)
{
    host.dialogAnswer = false;

    EXPECT_EQ(subtotal(), EContext::Cancel);

    EXPECT_EQ(host.journal, QStringList{"ask packingControlSaleEmptyTara"});
    EXPECT_EQ(records(), untouched);
    EXPECT_EQ(host.receipt()->getPositionList().size(), 5);
}

TEST_F(SubtotalStory, AnsweredNo_TheCashierFillsTheTaraAndIsNotAskedAgain)
{
    subtotal();
    host.journal.clear();

    enterQuantity(2, 37);

    EXPECT_EQ(subtotal(), EContext::Continue);
    EXPECT_EQ(seen(), QStringList());
    EXPECT_EQ(records().constLast(), "goods 2: 10 in 1, 10 in 3, 10 in 4, 7 in 5");
}

TEST_F(SubtotalStory, SecondOfThreeIsRefused_TheFirstIsGoneAndTheReceiptIsNotPaid)
{
    host.dialogAnswer = true;
    host.refusedPositions = {4};

    EXPECT_EQ(subtotal(), EContext::Cancel);

    EXPECT_EQ(seen(), (QStringList{"ask packingControlSaleEmptyTara", "storno 3", "storno 4"}));
    EXPECT_EQ(records(), (QStringList{"tara 1: 6 of 10 free", "tara 4: 10 of 10 free",
                                      "tara 5: 10 of 10 free", "goods 2: 4 in 1"}));
    EXPECT_EQ(savedRecords(), records());
    EXPECT_EQ(host.errors.size(), 0);
}

TEST_F(SubtotalStory, SecondOfThreeIsRefusedOnce_TheNextSubtotalFinishes)
{
    host.dialogAnswer = true;
    host.refusedPositions = {4};
    subtotal();
    host.refusedPositions.clear();
    host.journal.clear();

    EXPECT_EQ(subtotal(), EContext::Continue);

    EXPECT_EQ(seen(), (QStringList{"ask packingControlSaleEmptyTara", "storno 4", "storno 5"}));
}

TEST_F(SubtotalStory, GoodsLeaveTheirTara_ItIsEmptyTooAndTheReceiptEndsEmpty)
{
    host.storno(2);
    host.dialogAnswer = true;

    EXPECT_EQ(subtotal(), EContext::Cancel);

    EXPECT_EQ(host.receipt()->getPositionList().size(), 0);
    EXPECT_EQ(records(), QStringList());
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
        host.dialogAnswer = answer;
        EXPECT_EQ(subtotal(), EContext::Continue);
    }
    EXPECT_EQ(host.journal, QStringList());
    EXPECT_EQ(records(), untouched);
}

TEST_F(SubtotalOfEmptyTaraAllowed, HostThatWouldRefuse_IsNotAsked)
{
    host.dialogAnswer = true;
    host.refusedPositions = {4};
    EXPECT_EQ(subtotal(), EContext::Continue);
    EXPECT_EQ(host.journal, QStringList());
    EXPECT_EQ(records(), untouched);
}

TEST_F(SubtotalOfEmptyTaraAllowed, OnlyEmptyTara_IsPaidWithoutAQuestion)
{
    host.storno(2);
    host.journal.clear();
    EXPECT_EQ(subtotal(), EContext::Continue);
    EXPECT_EQ(host.journal, QStringList());
    EXPECT_EQ(host.receipt()->getPositionList().size(), 4);
}

} // namespace
