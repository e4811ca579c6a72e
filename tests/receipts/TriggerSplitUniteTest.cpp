#include "tests/receipts/TriggerStory.h"

// The cashier splits poured goods, and unites them again.

namespace {

class SplitAndUnite : public testing::TestWithParam<EmptyTara>
{
protected:
    Register till{GetParam()};
};

TEST_P(SplitAndUnite, PartIsSplitOff_SourceAndPartShareTheTaraAndAGroup)
{
    till.host.addTara(1, 10);
    till.host.addGoods(2, 6);
    till.host.journal.clear();

    EXPECT_EQ(till.splitOff(2, {{3, 2}}), EContext::Continue);

    EXPECT_EQ(till.records(),
              (QStringList{"tara 1: 4 of 10 free", "goods 2: 4 in 1", "goods 3: 2 in 1"}));
    EXPECT_EQ(till.savedRecords(), till.records());
    EXPECT_EQ(till.position(2)->getGroupId().size(), 38);
    EXPECT_EQ(till.position(3)->getGroupId(), till.position(2)->getGroupId());
}

TEST_P(SplitAndUnite, GoodsAreSplitUp_ThePiecesTakeTheirPlace)
{
    till.host.addTara(1, 4);
    till.host.addTara(5, 4);
    till.host.addGoods(2, 6);

    EXPECT_EQ(till.splitUp(2, {{3, 5}, {4, 1}}), EContext::Continue);

    EXPECT_EQ(till.records(), (QStringList{"tara 1: 0 of 4 free", "tara 5: 2 of 4 free",
                                           "goods 3: 4 in 1, 1 in 5", "goods 4: 1 in 5"}));
    EXPECT_EQ(till.savedRecords(), till.records());
    EXPECT_EQ(till.position(4)->getGroupId(), till.position(3)->getGroupId());
}

TEST_P(SplitAndUnite, SplitTwice_AllPiecesStayInOneGroup)
{
    till.host.addTara(1, 10);
    till.host.addGoods(2, 6);

    till.splitOff(2, {{3, 3}});
    till.splitUp(3, {{4, 1}, {5, 2}});

    const QString group = till.position(2)->getGroupId();
    EXPECT_EQ(till.position(4)->getGroupId(), group);
    EXPECT_EQ(till.position(5)->getGroupId(), group);
    EXPECT_EQ(till.records(), (QStringList{"tara 1: 4 of 10 free", "goods 2: 3 in 1",
                                           "goods 4: 1 in 1", "goods 5: 2 in 1"}));
}

TEST_P(SplitAndUnite, FullTaraOfOneGoods_IsSharedAfterASplitAndFreeAfterTheUnion)
{
    till.host.addTara(1, 6);
    till.host.addGoods(2, 6);
    till.splitOff(2, {{3, 2}});
    till.host.journal.clear();

    EXPECT_EQ(till.enterQuantity(1, 2), EContext::Error);
    EXPECT_EQ(till.host.journal, QStringList{"error packingControlTaraUsedDiffGoods"});

    EXPECT_EQ(till.uniteInto(2, 3), EContext::Continue);
    EXPECT_EQ(till.enterQuantity(1, 2), EContext::Continue);
    EXPECT_EQ(till.records(), (QStringList{"tara 1: 0 of 12 free", "goods 2: 12 in 1"}));
}

TEST_P(SplitAndUnite, PieceIsStornoed_GivesItsShareBack)
{
    till.host.addTara(1, 10);
    till.host.addGoods(2, 6);
    till.splitOff(2, {{3, 2}});

    till.host.storno(3);

    EXPECT_EQ(till.records(), (QStringList{"tara 1: 6 of 10 free", "goods 2: 4 in 1"}));
    EXPECT_EQ(till.savedRecords(), till.records());
}

TEST_P(SplitAndUnite, TaraOfTheOnlyPieceGoes_ThePieceGoesToo)
{
    till.host.addTara(1, 10);
    till.host.addGoods(2, 6);
    till.splitOff(2, {{3, 2}});
    till.host.journal.clear();

    till.host.storno(1);

    EXPECT_EQ(till.records(), QStringList());
    EXPECT_EQ(till.host.journal.filter("remove"), (QStringList{"remove 2", "remove 3"}));
}

TEST_P(SplitAndUnite, TwoGoodsOfOneTara_BecomeOneThatUsesAsMuch)
{
    till.host.addTara(1, 5);
    till.host.addGoods(2, 2);
    till.host.addGoods(3, 3);
    till.host.journal.clear();

    EXPECT_EQ(till.uniteInto(2, 3), EContext::Continue);

    EXPECT_EQ(till.records(), (QStringList{"tara 1: 0 of 5 free", "goods 2: 5 in 1"}));
    EXPECT_EQ(till.savedRecords(), till.records());
    EXPECT_EQ(till.host.journal.filter("change"), QStringList());
}

TEST_P(SplitAndUnite, OrdinaryGoodsAreSplit_ThePiecesTakeTara)
{
    till.host.addTara(1, 10);
    till.host.addOther(2, 6);
    ASSERT_EQ(till.records(), QStringList{"tara 1: 10 of 10 free"});

    till.splitOff(2, {{3, 2}});

    EXPECT_EQ(till.records(),
              (QStringList{"tara 1: 4 of 10 free", "goods 2: 4 in 1", "goods 3: 2 in 1"}));
}

TEST_P(SplitAndUnite, OrdinaryGoodsAreUnited_TheirShareOfTheTaraBelongsToNobody)
{
    till.host.addTara(1, 10);
    till.host.addOther(2, 4);
    till.host.addOther(3, 2);

    till.uniteInto(2, 3);

    EXPECT_EQ(till.records(), QStringList{"tara 1: 4 of 10 free"});
    EXPECT_EQ(till.savedRecords(), till.records());
}

INSTANTIATE_TEST_SUITE_P(Setting, SplitAndUnite,
                         testing::Values(EmptyTara::Forbidden, EmptyTara::Allowed),
                         testing::PrintToStringParamName());

} // namespace
