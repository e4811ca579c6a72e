#include "tests/support/Printers.h"
#include "tests/till/view/ShownReceipt.h"

namespace {

//! What a cashier reads below a tara and below goods.
class TaraText : public ShownReceipt
{
};

struct Tara
{
    double capacity;
    double free;
    const char *shown;
};

void PrintTo(const Tara &tara, std::ostream *out)
{
    *out << tara.free << " of " << tara.capacity << " free";
}

class TaraTextFill : public TaraText, public testing::WithParamInterface<Tara>
{
};

TEST_P(TaraTextFill, Tara_ShowsBarAmountsAndMark)
{
    addTara(GetParam().capacity, GetParam().free);

    EXPECT_EQ(notesOf(1), QStringList{GetParam().shown});
}

INSTANTIATE_TEST_SUITE_P(
    Amounts, TaraTextFill,
    testing::Values(Tara{5.0, 5.0, "[..........] 0 / 5, пусто"},
                    Tara{5.0, 2.0, "[######....] 3 / 5, свободно 2"},
                    Tara{1.5, 0.375, "[########..] 1.125 / 1.5, свободно 0.375"},
                    Tara{5.0, 0.0, "[##########] 5 / 5, полна"},
                    Tara{5.0, -1.25, "[!!!!!!!!!!] 6.25 / 5, переполнена на 1.25"}));

// A drop shows as one cell, and what is not quite full as nine.
INSTANTIATE_TEST_SUITE_P(NearTheEnds, TaraTextFill,
                         testing::Values(Tara{5.0, 4.999, "[#.........] 0.001 / 5, свободно 4.999"},
                                         Tara{5.0, 0.001, "[#########.] 4.999 / 5, свободно 0.001"},
                                         Tara{5.0, -0.001,
                                              "[!!!!!!!!!!] 5.001 / 5, переполнена на 0.001"}));

// What is too little for three decimals counts as nothing.
INSTANTIATE_TEST_SUITE_P(Rounded, TaraTextFill,
                         testing::Values(Tara{5.0, 4.9996, "[..........] 0 / 5, пусто"},
                                         Tara{5.0, 5.0004, "[..........] 0 / 5, пусто"},
                                         Tara{5.0, 0.0004, "[##########] 5 / 5, полна"},
                                         Tara{5.0, -0.0004, "[##########] 5 / 5, полна"}));

INSTANTIATE_TEST_SUITE_P(Odd, TaraTextFill,
                         testing::Values(Tara{0.0, 0.0, "[..........] 0 / 0, пусто"},
                                         Tara{0.0, -2.0, "[!!!!!!!!!!] 2 / 0, переполнена на 2"},
                                         Tara{5.0, 6.0, "[..........] -1 / 5, свободно 6"}));

TEST_F(TaraText, TaraWithGoods_NamesThemInTheOrderOfTheirRecords)
{
    addTara(5.0, 2.0);
    addBeer(2.0, {{idOf(1), 2.0}});
    addBeer(1.0, {{idOf(1), 1.0}});

    EXPECT_EQ(notesOf(1), QStringList{"[######....] 3 / 5 л, свободно 2: поз. 2 — 2, поз. 3 — 1"});
}

TEST_F(TaraText, OverfullTaraWithGoods_NamesThem)
{
    addTara(2.0, -1.0);
    addBeer(3.0, {{idOf(1), 3.0}});

    EXPECT_EQ(notesOf(1), QStringList{"[!!!!!!!!!!] 3 / 2 л, переполнена на 1: поз. 2 — 3"});
}

TEST_F(TaraText, GoodsThatUseNothingOfTheTara_AreNamedAllTheSame)
{
    addTara(5.0, 5.0);
    addBeer(1.0, {{idOf(1), 0.0}});

    EXPECT_EQ(notesOf(1), QStringList{"[..........] 0 / 5 л, пусто: поз. 2 — 0"});
}

TEST_F(TaraText, GoodsInOtherTara_AreNotNamed)
{
    addTara(5.0, 5.0);
    addTara(5.0, 4.0);
    addBeer(1.0, {{idOf(2), 1.0}});

    EXPECT_EQ(notesOf(1), QStringList{"[..........] 0 / 5, пусто"});
}

TEST_F(TaraText, GoodsOfDifferentUnits_CapacityHasNoUnit)
{
    addTara(5.0, 3.0);
    addBeer(1.0, {{idOf(1), 1.0}});
    taras.goods.append({add(nuts(), 5), {{idOf(1), 1.0}}});

    EXPECT_EQ(notesOf(1), QStringList{"[####......] 2 / 5, свободно 3: поз. 2 — 1, поз. 3 — 1"});
}

TEST_F(TaraText, GoodsThatTheReceiptNeverHeld_AreNamedByTheirNumber)
{
    addTara(5.0, 4.0);
    taras.goods.append({9, {{idOf(1), 1.0}}});

    EXPECT_EQ(notesOf(1), QStringList{"[##........] 1 / 5, свободно 4: поз. 9 — 1"});
}

TEST_F(TaraText, ManyGoods_GoOnInTheNextLine)
{
    addTara(5.0, 1.5);
    for (int i = 0; i < 7; ++i)
        addBeer(0.5, {{idOf(1), 0.5}});

    EXPECT_EQ(
        notesOf(1),
        (QStringList{"[#######...] 3.5 / 5 л, свободно 1.5: поз. 2 — 0.5, поз. 3 — 0.5,",
                     "поз. 4 — 0.5, поз. 5 — 0.5, поз. 6 — 0.5, поз. 7 — 0.5, поз. 8 — 0.5"}));
}

TEST_F(TaraText, TaraWithoutRecord_HasNoNote)
{
    add(bottle(), 1);

    EXPECT_EQ(notesOf(1), QStringList());
}

TEST_F(TaraText, GoodsWithoutRecord_HaveNoNote)
{
    add(beer(), 1);

    EXPECT_EQ(notesOf(1), QStringList());
}

TEST_F(TaraText, GoodsInSeveralTaras_NameThemInTheOrderOfTheTaras)
{
    addTara(1.0, 0.0);
    addTara(2.0, 0.0);
    taras.taras.swapItemsAt(0, 1);
    addBeer(3.0, {{idOf(1), 1.0}, {idOf(2), 2.0}});

    EXPECT_EQ(notesOf(3), QStringList{"в таре: поз. 2 — 2, поз. 1 — 1"});
}

TEST_F(TaraText, GoodsWithoutEnoughRoom_ShowWhatIsNotPlaced)
{
    addTara(1.0, 0.0);
    addBeer(3.5, {{idOf(1), 1.0}});

    EXPECT_EQ(notesOf(2), QStringList{"в таре: поз. 1 — 1; не размещено 2.5 л"});
}

TEST_F(TaraText, GoodsSoldInPacks_ShowBaseUnitsNotPlaced)
{
    const int posnum = add(nuts(), 3);
    taras.goods.append(till::GoodsUse{posnum, {}});

    EXPECT_EQ(notesOf(1), QStringList{"не размещено 0.6 кг"});
}

TEST_F(TaraText, GoodsThatShrankInTheirTara_ShowWhatIsNotedInExcess)
{
    addTara(5.0, 2.0);
    addBeer(1.0, {{idOf(1), 3.0}});

    EXPECT_EQ(notesOf(2), QStringList{"в таре: поз. 1 — 3; записано лишнее 2 л"});
}

TEST_F(TaraText, RestTooSmallForThreeDecimals_IsNotShown)
{
    addTara(5.0, 4.0);
    addBeer(1.0004, {{idOf(1), 1.0}});

    EXPECT_EQ(notesOf(2), QStringList{"в таре: поз. 1 — 1"});
}

TEST_F(TaraText, RestOfOneThousandth_IsShown)
{
    addTara(5.0, 4.0);
    addBeer(1.001, {{idOf(1), 1.0}});

    EXPECT_EQ(notesOf(2), QStringList{"в таре: поз. 1 — 1; не размещено 0.001 л"});
}

TEST_F(TaraText, GoodsInTaraThatIsGone_MarkIt)
{
    addTara(1.0, 0.0);
    addBeer(2.5, {{idOf(1), 1.0}, {"{a}", 0.5}, {"{b}", 1.0}});

    EXPECT_EQ(notesOf(2),
              QStringList{"в таре: поз. 1 — 1, удалённая тара — 1, удалённая тара — 0.5"});
}

TEST_F(TaraText, StornoedTaraThatIsStillNoted_IsShown)
{
    addTara(1.0, 1.0);
    receipt.storno(1);

    EXPECT_EQ(notesOf(1), QStringList{"[..........] 0 / 1, пусто"});
}

TEST_F(TaraText, PositionNotedAsTaraAndAsGoods_ShowsBoth)
{
    addTara(5.0, 4.0);
    taras.goods.append({1, {{idOf(1), 1.0}}});

    EXPECT_EQ(notesOf(1),
              (QStringList{"[##........] 1 / 5 шт, свободно 4: поз. 1 — 1", "в таре: поз. 1 — 1"}));
}

} // namespace
