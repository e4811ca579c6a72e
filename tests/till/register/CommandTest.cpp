#include "tests/till/support/TillFixture.h"

// Every command on its good path.

namespace till {

namespace {

using testing::HasSubstr;

class Commands : public TillTest
{
};

TEST_F(Commands, Open_MakesASale)
{
    done({"open"});
    EXPECT_EQ(receipt()->getType(), Document::Sale);
    expect({"state open", "positions 0", "total 0", "control active"});
}

TEST_F(Commands, OpenReturn_MakesAReturn)
{
    done({"open return"});
    EXPECT_EQ(receipt()->getType(), Document::Return);
    expect({"control suspended"});
}

TEST_F(Commands, OpenAfterPayment_MakesAnotherReceipt)
{
    done({"open", "add CHIPS", "pay"});
    const qint64 first = receipt()->id();
    done({"open"});
    EXPECT_EQ(receipt()->id(), first + 1);
    expect({"positions 0"});
}

TEST_F(Commands, AddWithoutQuantity_AddsOnePiece)
{
    done({"open", "add CHIPS"});
    expect({"position 1 article CHIPS quantity 1 base 1 sum 129.90 live"});
}

TEST_F(Commands, Add_TakesDecimalPointAndComma)
{
    done({"open", "add BEER 1.5", "add BEER 1,5"});
    expect({"position 1 quantity 1.5 sum 210", "position 2 quantity 1,5 sum 210,00"});
}

TEST_F(Commands, AddOfAPack_CountsPiecesAndBaseUnits)
{
    done({"open", "add CRATE20 2"});
    expect({"position 1 quantity 2 base 40 sum 2380.00", "total 2380.00"});
}

TEST_F(Commands, Qty_ChangesPiecesAndBaseUnits)
{
    done({"open", "add BEER3 1", "qty 1 2,5"});
    expect({"position 1 quantity 2.5 base 7.5 sum 997.50", "total 997.50"});
}

TEST_F(Commands, QtyOfAPack_KeepsTheCountThatWasTyped)
{
    till::Setup packs = setup();
    packs.catalogue = path("packs.csv");
    overwrite(packs.catalogue,
              "code;name;price;tara mode;tara capacity;pack;unit\nP;Pack;10;0;;0,7;l\n");
    start(packs);
    done({"open", "add P", "qty 1 1.5"});
    EXPECT_EQ(receipt()->line(1)->getCquant(), 1.5);
    EXPECT_EQ(receipt()->line(1)->getBquant(), 1.5 * 0.7);
    EXPECT_NE(1.5 * 0.7 / 0.7, 1.5);
}

TEST_F(Commands, SplitAndUnite_ComputeTheTotalOnce)
{
    done({"open", "add OIL 4"});
    int before = receipt()->recomputations();
    done({"split 1 1 1 1"});
    EXPECT_EQ(receipt()->recomputations() - before, 1);
    before = receipt()->recomputations();
    done({"unite 1 2 3 4"});
    EXPECT_EQ(receipt()->recomputations() - before, 1);
    expect({"position 1 quantity 4"});
}

TEST_F(Commands, Storno_StrikesThePositionAfterAYes)
{
    done({"open", "add CHIPS", "add OPENER", "answer yes", "storno 1"});
    expect({"question tillStornoPosition", "position 1 stornoed", "position 2 live", "total 89",
            "positions 1"});
}

TEST_F(Commands, Storno_LeavesThePositionAfterANo)
{
    done({"open", "add CHIPS", "answer no"});
    refused("storno 1");
    expect({"question \"Сторнировать позицию?\"", "position 1 live", "total 129.90"});
}

TEST_F(Commands, Split_TakesPartsOff)
{
    done({"open", "add OIL 2", "split 1 0.5 0,25"});
    expect({"position 1 quantity 1.25", "position 2 article OIL quantity 0.5",
            "position 3 quantity 0.25", "total 310"});
}

TEST_F(Commands, SplitOfAPack_KeepsItsBaseUnits)
{
    done({"open", "add BEER3 2", "split 1 0.5"});
    expect({"position 1 quantity 1.5 base 4.5", "position 2 quantity 0.5 base 1.5"});
}

TEST_F(Commands, Unite_PutsAllIntoTheFirst)
{
    done({"open", "add OIL 1", "add OIL 2", "add OIL 4", "unite 2 3 1"});
    expect({"position 2 quantity 7", "position 1 stornoed", "position 3 stornoed", "total 1085"});
}

TEST_F(Commands, Order_IsAttached)
{
    done({"open", "order A-7"});
    EXPECT_EQ(receipt()->getOrder()->number, QString("A-7"));
    expect({"control suspended"});
}

TEST_F(Commands, Softchecks_AreAdded)
{
    done({"open", "softcheck 7", "softcheck \"8 b\""});
    EXPECT_EQ(receipt()->softChecks(), QStringList({"7", "8 b"}));
}

TEST_F(Commands, Subtotal_AwaitsPayment)
{
    done({"open", "add CHIPS", "subtotal"});
    expect({"state subtotal"});
}

TEST_F(Commands, ChangeAfterSubtotal_OpensTheReceiptAgain)
{
    for (const QString line : {"add CHIPS", "qty 1 3", "split 1 1", "unite 1 2"}) {
        done({receipt() ? "subtotal" : "open", "add CHIPS", "subtotal", line});
        expect({"state open"});
    }
}

TEST_F(Commands, PayAtOnce_ClosesTheReceipt)
{
    done({"open", "add CHIPS", "pay"});
    expect({"state closed"});
    EXPECT_EQ(noted("action", "type"), (QVariantList{control::OpenReceipt, control::AddPosition,
                                                     control::Payment, control::CloseReceipt}));
}

TEST_F(Commands, PayFromSubtotal_PassesTheGateOnce)
{
    done({"open", "add CHIPS", "subtotal", "pay"});
    EXPECT_EQ(noted("action", "type"), (QVariantList{control::OpenReceipt, control::AddPosition,
                                                     control::Subtotal, control::CloseReceipt}));
}

TEST_F(Commands, PayWithMore_TellsTheChange)
{
    done({"open", "add CHIPS"});
    takePrinted();
    done({"pay 150,5"});
    EXPECT_EQ(takePrinted(), QString("  Сдача 20.60"));
}

TEST_F(Commands, PayExactly_LeavesNoChange)
{
    done({"open", "add CHIPS", "pay 129.90"});
    EXPECT_EQ(takePrinted(), QString("  Сдача 0.00"));
}

TEST_F(Commands, PayWithTooLittle_IsRefusedAtSubtotal)
{
    done({"open", "add CHIPS"});
    EXPECT_EQ(refused("pay 129.89"), QString("tillNotEnoughMoney"));
    expect({"message tillNotEnoughMoney", "message \"Недостаточно денег для оплаты\"",
            "state subtotal"});
    done({"pay 129.90"});
}

TEST_F(Commands, EmptyReceipt_IsNotPaid)
{
    done({"open"});
    for (const QString line : {"pay", "pay 5", "subtotal"}) {
        refused(line);
        expect({"message tillReceiptEmpty", "state open"});
    }
}

TEST_F(Commands, Cancel_EndsTheReceiptAfterAYes)
{
    done({"open", "answer no"});
    refused("cancel");
    expect({"question tillCancelReceipt", "state open"});
    done({"answer yes", "cancel"});
    expect({"state cancelled"});
}

TEST_F(Commands, Show_PrintsTheReceipt)
{
    done({"open", "add CHIPS", "show"});
    EXPECT_EQ(takePrinted(), commands->renderReceipt());
    EXPECT_THAT(commands->renderReceipt().toStdString(), HasSubstr("129.90"));
}

TEST_F(Commands, Articles_ListsTheCatalogueOrTheMatches)
{
    done({"articles"});
    EXPECT_EQ(printed.size(), till->catalogue().articles().size());
    takePrinted();
    done({"articles мёд"});
    EXPECT_EQ(takePrinted().simplified(), QString("HONEY 620.00 Мёд цветочный на развес"));
}

TEST_F(Commands, Log_PrintsWhatThePluginLoggedForTheLastCommand)
{
    done({"open", "add CAN3", "log"});
    EXPECT_EQ(takePrinted(), QString("  Добавлена тара"));
}

TEST_F(Commands, Say_PrintsItsWords)
{
    done({"say two  words"});
    EXPECT_EQ(takePrinted(), QString("\ntwo words"));
}

TEST_F(Commands, Restart_ForgetsASettingThatLeftTheFile)
{
    till::Setup strict = setup();
    strict.settingsFile = path("s.ini");
    overwrite(strict.settingsFile, "[PackagingControl]\nallowSaleEmptyTara=false\n");
    start(strict);
    done({"open", "add PET1", "answer no"});
    refused("subtotal");

    overwrite(strict.settingsFile, {});
    done({"restart", "subtotal"});
}

TEST_F(Commands, Help_ListsEachCommandOrExplainsOne)
{
    start(setup(), "en");
    done({"help"});
    EXPECT_THAT(takePrinted().toStdString(), HasSubstr("softcheck NUMBER"));
    done({"help qty"});
    EXPECT_EQ(takePrinted(), QString("qty POSITION QUANTITY\n  change the quantity of a position"));
}

TEST_F(Commands, Quit_Leaves)
{
    EXPECT_FALSE(commands->hasQuit());
    done({"quit"});
    EXPECT_TRUE(commands->hasQuit());
}

TEST_F(Commands, EmptyLinesAndComments_DoNothing)
{
    heard.clear();
    done({"", "   ", "# open", "  # \"open"});
    EXPECT_TRUE(heard.isEmpty());
}

} // namespace

} // namespace till
