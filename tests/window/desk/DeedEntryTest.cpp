#include "tests/window/support/WindowTest.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace till {

namespace {

using DeedEntryTest = WindowTest;

TEST_F(DeedEntryTest, Quantity_IsTypedInADialog)
{
    scan("PET1");
    scan("BEER");
    click("quantity");

    enter("0.5");

    EXPECT_EQ(commands().constLast(), "qty 2 0.5: done");
    EXPECT_EQ(rows().index(1, ReceiptModel::Count).data(), "0.5 л");
}

TEST_F(DeedEntryTest, Quantity_IsTouchedOnThePad)
{
    scan("BEER");
    click("quantity");
    for (const char *const key : {"key1", "key⌫", "key2", "key.", "key5"})
        click(key);

    click("confirm");

    EXPECT_EQ(commands().constLast(), "qty 1 2.5: done");
}

TEST_F(DeedEntryTest, WrongEntry_SaysWhatIsWrong_AndIsNotTaken)
{
    scan("BEER");
    click("quantity");

    enter("much");

    EXPECT_EQ(find<QLabel>("fault").text(), "\"much\" is not a number");
    EXPECT_FALSE(find<QPushButton>("confirm").isEnabled());
    click("back");
    EXPECT_EQ(commands().constLast(), "add BEER 1: done");
}

TEST_F(DeedEntryTest, EntryBeyondALimit_SaysTheLimit)
{
    scan("BEER");
    click("quantity");

    type("1000000");

    EXPECT_EQ(find<QLabel>("fault").text(), "the quantity must not be above 999999.999");
}

TEST_F(DeedEntryTest, Split_TakesParts)
{
    scan("CAN3");
    scan("3*BEER");
    click("split");

    enter("1+0.5");

    EXPECT_EQ(commands().constLast(), "split 2 1 0.5: done");
    EXPECT_EQ(rows().rowCount(), 4);
}

TEST_F(DeedEntryTest, PayAsProposed_PaysExactly)
{
    scan("BAG");
    click("pay");

    press(Qt::Key_Return);

    EXPECT_EQ(commands().constLast(), "pay: done");
    EXPECT_EQ(receipt()->state(), ReceiptState::Closed);
}

TEST_F(DeedEntryTest, SumThatChangedSinceItWasProposed_IsNotPaidUnseen)
{
    scan("BAG");
    click("pay");
    EXPECT_TRUE(till->cashRegister().carryOut(command::Add{"PET1", 1}));

    press(Qt::Key_Return);

    EXPECT_EQ(commands().constLast(), "pay 35.00: refused");
    EXPECT_EQ(receipt()->state(), ReceiptState::Subtotal);
}

TEST_F(DeedEntryTest, Entry_HasTheNameOfWhatIsDone)
{
    scan("BAG");
    click("pay");

    EXPECT_EQ(find("entry").window()->windowTitle(), "Pay");
    EXPECT_EQ(find<QPushButton>("key⌫").accessibleName(), "Delete the last sign");
}

TEST_F(DeedEntryTest, MoneyGiven_GivesChange)
{
    scan("BAG");
    click("pay");

    enter("50");

    EXPECT_EQ(commands().constLast(), "pay 50.00: done");
    EXPECT_EQ(told(), "Change 15.00");
}

TEST_F(DeedEntryTest, TooLittleMoney_SaysWhatIsMissing)
{
    scan("BAG");
    click("pay");

    enter("20");

    EXPECT_EQ(commands().constLast(), "pay 20.00: refused");
    EXPECT_TRUE(told().contains("15.00 missing")) << told().toStdString();
    EXPECT_EQ(receipt()->state(), ReceiptState::Subtotal);
}

} // namespace

} // namespace till
