#include "tests/receipts/TriggerStory.h"

// The cashier splits poured goods, and unites them again.

namespace {

using SplitAndUnite = TriggerStoryOfBoth;

TEST_P(SplitAndUnite, PartIsSplitOff_SourceAndPartShareTheTaraAndAGroup)
{
    host.addTara(1, 10);
    host.addGoods(2, 6);
    host.journal.clear();

    EXPECT_EQ(splitOff(2, {{3, 2}}), EContext::Continue);

    EXPECT_EQ(records(),
              (QStringList{"tara 1: 4 of 10 free", "goods 2: 4 in 1", "goods 3: 2 in 1"}));
    EXPECT_EQ(savedRecords(), records());
    EXPECT_EQ(position(2)->getGroupId().size(), 38);
    EXPECT_EQ(position(3)->getGroupId(), position(2)->getGroupId());
}

TEST_P(SplitAndUnite, GoodsAreSplitUp_ThePiecesTakeTheirPlace)
{
    host.addTara(1, 4);
    host.addTara(5, 4);
    host.addGoods(2, 6);

    EXPECT_EQ(splitUp(2, {{3, 5}, {4, 1}}), EContext::Continue);

    EXPECT_EQ(records(), (QStringList{"tara 1: 0 of 4 free", "tara 5: 2 of 4 free",
                                      "goods 3: 4 in 1, 1 in 5", "goods 4: 1 in 5"}));
    EXPECT_EQ(savedRecords(), records());
    EXPECT_EQ(position(4)->getGroupId(), position(3)->getGroupId());
}

TEST_P(SplitAndUnite, SplitTwice_AllPiecesStayInOneGroup)
{
    host.addTara(1, 10);
    host.addGoods(2, 6);

    splitOff(2, {{3, 3}});
    splitUp(3, {{4, 1}, {5, 2}});

    const QString group = position(2)->getGroupId();
    EXPECT_EQ(position(4)->getGroupId(), group);
    EXPECT_EQ(position(5)->getGroupId(), group);
    EXPECT_EQ(records(), (QStringList{"tara 1: 4 of 10 free", "goods 2: 3 in 1", "goods 4: 1 in 1",
                                      "goods 5: 2 in 1"}));
}

TEST_P(SplitAndUnite, FullTaraOfOneGoods_IsSharedAfterASplitAndFreeAfterTheUnion)
{
    host.addTara(1, 6);
    host.addGoods(2, 6);
    splitOff(2, {{3, 2}});
    host.journal.clear();

    EXPECT_EQ(enterQuantity(1, 2), EContext::Error);
    EXPECT_EQ(host.journal, QStringList{"error packingControlTaraUsedDiffGoods"});

    EXPECT_EQ(uniteInto(2, 3), EContext::Continue);
    EXPECT_EQ(enterQuantity(1, 2), EContext::Continue);
    EXPECT_EQ(records(), (QStringList{"tara 1: 0 of 12 free", "goods 2: 12 in 1"}));
}

TEST_P(SplitAndUnite, PieceIsStornoed_GivesItsShareBack)
{
    host.addTara(1, 10);
    host.addGoods(2, 6);
    splitOff(2, {{3, 2}});

    host.storno(3);

    EXPECT_EQ(records(), (QStringList{"tara 1: 6 of 10 free", "goods 2: 4 in 1"}));
    EXPECT_EQ(savedRecords(), records());
}

TEST_P(SplitAndUnite, TaraOfTheOnlyPieceGoes_ThePieceGoesToo)
{
    host.addTara(1, 10);
    host.addGoods(2, 6);
    splitOff(2, {{3, 2}});
    host.journal.clear();

    host.storno(1);

    EXPECT_EQ(records(), QStringList());
    EXPECT_EQ(host.journal.filter("remove"), (QStringList{"remove 2", "remove 3"}));
}

TEST_P(SplitAndUnite, TwoGoodsOfOneTara_BecomeOneThatUsesAsMuch)
{
    host.addTara(1, 5);
    host.addGoods(2, 2);
    host.addGoods(3, 3);
    host.journal.clear();

    EXPECT_EQ(uniteInto(2, 3), EContext::Continue);

    EXPECT_EQ(records(), (QStringList{"tara 1: 0 of 5 free", "goods 2: 5 in 1"}));
    EXPECT_EQ(savedRecords(), records());
    EXPECT_EQ(host.journal.filter("change"), QStringList());
}

TEST_P(SplitAndUnite, OrdinaryGoodsAreSplit_ThePiecesTakeTara)
{
    host.addTara(1, 10);
    host.addOther(2, 6);
    ASSERT_EQ(records(), QStringList{"tara 1: 10 of 10 free"});

    splitOff(2, {{3, 2}});

    EXPECT_EQ(records(),
              (QStringList{"tara 1: 4 of 10 free", "goods 2: 4 in 1", "goods 3: 2 in 1"}));
}

TEST_P(SplitAndUnite, OrdinaryGoodsAreUnited_TheirShareOfTheTaraBelongsToNobody)
{
    host.addTara(1, 10);
    host.addOther(2, 4);
    host.addOther(3, 2);

    uniteInto(2, 3);

    EXPECT_EQ(records(), QStringList{"tara 1: 4 of 10 free"});
    EXPECT_EQ(savedRecords(), records());
}

INSTANTIATE_TEST_SUITE_P(Setting, SplitAndUnite,
                         testing::Values(EmptyTara::Forbidden, EmptyTara::Allowed),
                         testing::PrintToStringParamName());

} // namespace
