#include "tests/till/support/TillFixture.h"

// Quantities and sums that no shop sells, so that none overflows.

namespace till {

namespace {

//! A shop with goods at the greatest price of the catalogue, and a giant tara.
class Limits : public TillTest
{
protected:
    Limits()
    {
        till::Setup dear = setup();
        dear.catalogue = directory.filePath("dear.csv");
        overwrite(dear.catalogue, "code;name;price;tara mode;tara capacity;pack;unit\n"
                                  "GOLD;Gold;49999999999.99;0;;1;kg\n"
                                  "CENT;Cent;0.01;0;;1;pc\n"
                                  "WINE;Wine;1000000;2;;1;l\n"
                                  "VAT;Vat;1;1;100;1;pc\n");
        start(dear);
        done({"open"});
    }

    static constexpr const char *sumFault =
        "the sum of the receipt must not be above 999999999999.99";
    static constexpr const char *countFault = "the quantity must not be above 999999.999";
};

TEST_F(Limits, GreatestQuantity_IsTaken)
{
    done({"add CENT 999999,999", "add CENT 1", "qty 2 999999.999"});
    expect({"position 1 quantity 999999.999", "position 2 quantity 999999.999"});
    EXPECT_EQ(mistake("add CENT 1000000"), QString(countFault));
    EXPECT_EQ(mistake("qty 2 1000000"), QString(countFault));
}

TEST_F(Limits, GreatestSum_IsTakenAndPaid)
{
    done({"add GOLD 20"});
    EXPECT_EQ(mistake("add CENT 20"), QString(sumFault));
    EXPECT_EQ(mistake("qty 1 20.001"), QString(sumFault));
    done({"add CENT 19"});
    expect({"total 999999999999.99"});
    EXPECT_EQ(mistake("qty 2 20"), QString(sumFault));
    done({"pay 999999999999.99"});
}

TEST_F(Limits, WhatIsReplaced_LeavesRoom)
{
    done({"add GOLD 20", "qty 1 19", "add GOLD 1", "qty 1 10", "qty 1 19"});
    expect({"total 999999999999.80"});
}

TEST_F(Limits, StornoedPositions_LeaveRoom)
{
    done({"add GOLD 20", "answer yes", "storno 1", "add GOLD 20"});
    expect({"total 999999999999.80"});
}

TEST_F(Limits, OnePosition_MayNotBeTooDear)
{
    EXPECT_EQ(mistake("add GOLD 999999.999"), QString(sumFault));
    expect({"positions 0"});
}

TEST_F(Limits, Unite_MayNotExceedTheGreatestQuantity)
{
    done({"add CENT 600000", "add CENT 400000"});
    EXPECT_EQ(mistake("unite 1 2"), QString(countFault));
    expect({"positions 2"});
}

TEST_F(Limits, GrowthThroughThePlugin_IsRefusedInTheSameWay)
{
    done({"add VAT 1", "add WINE 100"});
    heard.clear();
    done({"qty 1 999999"}); // the wine would be 99,999,900 l
    expect({"position 1 quantity 999999", "position 2 quantity 100",
            "log \"Не удалось изменить количество позиции, размещенной в тару\""});
    // Of what the plugin asked for, in the middle of what the cashier did.
    EXPECT_EQ(noted("result", "result"), (QVariantList{EContext::Error, EContext::Continue}));
}

} // namespace

} // namespace till
