#include "tests/registry/RegistryFixture.h"
#include "tests/support/Numbers.h"

namespace {

class Lookup : public Registry
{
};

TEST_F(Lookup, TaraInAnEmptyList_IsNull)
{
    EXPECT_TRUE(plugin.getTaraByPosnum(2).isNull());
}

TEST_F(Lookup, TaraOfAnUnknownNumber_IsNull)
{
    plugin.putTara(2, "{a}", 1.0, 1.0);

    EXPECT_TRUE(plugin.getTaraByPosnum(3).isNull());
    EXPECT_TRUE(plugin.getTaraByPosnum(0).isNull());
    EXPECT_TRUE(plugin.getTaraByPosnum(-2).isNull());
}

TEST_F(Lookup, TaraByNumber_IsTheVeryRecord)
{
    plugin.putTara(2, "{a}", 1.0, 1.0);
    const auto wanted = plugin.putTara(3, "{b}", 1.0, 1.0);

    EXPECT_EQ(plugin.getTaraByPosnum(3), wanted);
}

TEST_F(Lookup, TaraOfANumberTwiceThere_IsTheFirst)
{
    const auto first = plugin.putTara(2, "{a}", 1.0, 1.0);
    plugin.putTara(2, "{b}", 1.0, 1.0);

    EXPECT_EQ(plugin.getTaraByPosnum(2), first);
}

TEST_F(Lookup, TaraFound_OutlivesTheList)
{
    plugin.putTara(2, "{a}", 1.0, 0.25);
    const auto found = plugin.getTaraByPosnum(2);

    plugin.taraList.clear();

    EXPECT_EQ(*found, (PackagingControl::TaraInfo{2, "{a}", 1.0, 0.25}));
}

TEST_F(Lookup, GoodsInAnEmptyList_AreAFreshBlankRecordInNoList)
{
    const auto found = plugin.getPackagingInfoByPosnum(99);

    ASSERT_FALSE(found.isNull());
    EXPECT_EQ(*found, (PackagingControl::PackagingInfo{0, {}}));
    EXPECT_THAT(plugin.packagingList, testing::IsEmpty());
}

TEST_F(Lookup, GoodsOfAnUnknownNumber_AreAnotherFreshRecordEachTime)
{
    plugin.putGoods(3, {{"{a}", 1.0}});

    const auto first = plugin.getPackagingInfoByPosnum(99);
    const auto second = plugin.getPackagingInfoByPosnum(99);

    EXPECT_NE(first, second);
    EXPECT_EQ(*first, (PackagingControl::PackagingInfo{0, {}}));
    EXPECT_EQ(plugin.packagingList.size(), 1);
}

TEST_F(Lookup, GoodsByNumber_AreTheVeryRecord)
{
    plugin.putGoods(3);
    const auto wanted = plugin.putGoods(4);

    EXPECT_EQ(plugin.getPackagingInfoByPosnum(4), wanted);
}

TEST_F(Lookup, GoodsOfANumberTwiceThere_AreTheFirst)
{
    const auto first = plugin.putGoods(3);
    plugin.putGoods(3);

    EXPECT_EQ(plugin.getPackagingInfoByPosnum(3), first);
}

TEST_F(Lookup, GoodsOfNumberZero_MayBeARecordOfTheList)
{
    const auto listed = plugin.putGoods(0);

    EXPECT_EQ(plugin.getPackagingInfoByPosnum(0), listed);
}

class EmptyTara : public Registry
{
};

TEST_F(EmptyTara, NoTara_IsNotThere)
{
    EXPECT_FALSE(plugin.isExistsEmptyTara());
}

TEST_F(EmptyTara, AllTaraUsed_IsNotThere)
{
    plugin.putTara(2, "{a}", 2.0, 0.0);
    plugin.putTara(3, "{b}", 2.0, 1.0);
    plugin.putTara(4, "{c}", 2.0, -1.0);

    EXPECT_FALSE(plugin.isExistsEmptyTara());
}

TEST_F(EmptyTara, OnlyTheLastEmpty_IsThere)
{
    plugin.putTara(2, "{a}", 2.0, 0.0);
    plugin.putTara(3, "{b}", 2.0, 2.0);

    EXPECT_TRUE(plugin.isExistsEmptyTara());
}

TEST_F(EmptyTara, EmptyWithinTheTolerance_IsThere)
{
    plugin.putTara(2, "{a}", 2.0, 1.9996);

    EXPECT_TRUE(plugin.isExistsEmptyTara());
}

TEST_F(EmptyTara, DifferenceOfTheTolerance_IsNotEmpty)
{
    plugin.putTara(2, "{a}", 0.001, 0.0005);

    EXPECT_FALSE(plugin.isExistsEmptyTara());
}

TEST_F(EmptyTara, TaraWithoutCapacity_IsEmpty)
{
    plugin.putTara(2, "{a}", 0.0, 0.0);

    EXPECT_TRUE(plugin.isExistsEmptyTara());
}

TEST_F(EmptyTara, CapacityThatIsNotANumber_IsNotEmpty)
{
    plugin.putTara(2, "{a}", notANumber, notANumber);

    EXPECT_FALSE(plugin.isExistsEmptyTara());
}

} // namespace
