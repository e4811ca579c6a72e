#include "tests/triggers/TriggerTest.h"

#include "triggers/ArgumentLookup.h"

#include <QtCore/QMetaType>

namespace {

//! Lists as a caller of its own types might write them.
struct ForeignPositions
{
    GoodsItemPtrList positions;
};
struct ForeignSplits
{
    QVariantList splits;
};

void registerForeignTypes()
{
    if (QMetaType::hasRegisteredConverterFunction<ForeignPositions, GoodsItemPtrList>())
        return;
    QMetaType::registerConverter<ForeignPositions, GoodsItemPtrList>(
        [](const ForeignPositions &foreign) { return foreign.positions; });
    QMetaType::registerConverter<ForeignSplits, QVariantList>(
        [](const ForeignSplits &foreign) { return foreign.splits; });
}

} // namespace

Q_DECLARE_METATYPE(ForeignPositions)
Q_DECLARE_METATYPE(ForeignSplits)

namespace {

control::Action with(const QMultiMap<QString, QVariant> &arguments)
{
    return {control::SplitPositions, arguments};
}

GoodsItemPtr position(int posnum)
{
    return GoodsItemPtr::create(posnum, QSharedPointer<Tmc>::create());
}

TEST(Argument, ExactKey_IsFound)
{
    EXPECT_EQ(packaging::argument(with({{"someKey", 1}}), "someKey"), QVariant(1));
}

TEST(Argument, OnlyLowerCaseKey_IsFound)
{
    EXPECT_EQ(packaging::argument(with({{"somekey", 2}}), "someKey"), QVariant(2));
}

TEST(Argument, BothKeys_TheExactOneCounts)
{
    EXPECT_EQ(packaging::argument(with({{"somekey", 2}, {"someKey", 1}}), "someKey"), QVariant(1));
}

TEST(Argument, BothKeysAndTheExactOneIsInvalid_TheExactOneCounts)
{
    const auto found =
        packaging::argument(with({{"somekey", 2}, {"someKey", QVariant()}}), "someKey");
    EXPECT_FALSE(found.isValid());
}

TEST(Argument, NeitherKey_IsInvalid)
{
    EXPECT_FALSE(packaging::argument(with({{"other", 1}}), "someKey").isValid());
}

TEST(Argument, OtherSpellings_AreNotFound)
{
    const auto action = with({{"SOMEKEY", 1}, {"SomeKey", 2}, {"somekey ", 3}});
    EXPECT_FALSE(packaging::argument(action, "someKey").isValid());
}

TEST(Argument, AskedInLowerCase_DoesNotFindMixedCase)
{
    EXPECT_FALSE(packaging::argument(with({{"someKey", 1}}), "somekey").isValid());
}

TEST(Argument, AddedAfterTheActionWasCopied_IsFound)
{
    const auto action = with({});
    const control::Action copy = action;
    copy.setArgument("someKey", 4);
    EXPECT_EQ(packaging::argument(action, "someKey"), QVariant(4));
}

TEST(PositionsArgument, ListOfPositions_IsTakenAsItIs)
{
    const GoodsItemPtrList list{position(1), nullptr, position(2)};
    const auto action = with({{"positions", QVariant::fromValue(list)}});
    EXPECT_EQ(packaging::argument(action, "positions").value<GoodsItemPtrList>(), list);
}

TEST(PositionsArgument, RegisteredConversion_IsUsed)
{
    registerForeignTypes();
    const GoodsItemPtrList list{position(1)};
    const auto action = with({{"positions", QVariant::fromValue(ForeignPositions{list})}});
    EXPECT_EQ(packaging::argument(action, "positions").value<GoodsItemPtrList>(), list);
}

class PositionsArgumentOfAnotherType : public testing::TestWithParam<QVariant>
{
};

TEST_P(PositionsArgumentOfAnotherType, IsAnEmptyList)
{
    const auto action = with({{"positions", GetParam()}});
    EXPECT_EQ(packaging::argument(action, "positions").value<GoodsItemPtrList>(),
              GoodsItemPtrList());
}

INSTANTIATE_TEST_SUITE_P(Value, PositionsArgumentOfAnotherType,
                         testing::Values(QVariant(), QVariant(5), QVariant("text"),
                                         QVariant(QVariantMap{{"a", 1}}),
                                         QVariant::fromValue(QList<int>{1, 2})));

TEST(PositionsArgument, OnePosition_IsNoList)
{
    const auto action = with({{"positions", QVariant::fromValue(position(1))}});
    EXPECT_EQ(packaging::argument(action, "positions").value<GoodsItemPtrList>(),
              GoodsItemPtrList());
}

// What the callbacks make of it.

using Info = PackagingControl::PackagingInfo;

class TriggerArguments : public TriggerTest<TestPlugin>
{
protected:
    EContext::Result afterSplit(const QMultiMap<QString, QVariant> &arguments)
    {
        return after(control::Action(control::SplitPositions, arguments));
    }
    EContext::Result afterUnion(const QMultiMap<QString, QVariant> &arguments)
    {
        return after(control::Action(control::UnitePositions, arguments));
    }

    //! One position that was split off and replaced by position \a piece.
    QVariantMap splitInto(int piece)
    {
        return actions::splitOf(position(90), {goods(piece, 1)}, true);
    }

    QVariant list(const GoodsItemPtrList &positions) const
    {
        return QVariant::fromValue(positions);
    }
};

TEST_F(TriggerArguments, SplitDataUnderTheLowerCaseKey_IsUsed)
{
    afterSplit({{"splitpositionsdata", QVariantList{splitInto(3)}}});
    EXPECT_EQ(posnumsOf(plugin.packagingList), QList<int>{3});
}

TEST_F(TriggerArguments, SplitDataUnderBothKeys_TheExactOneCounts)
{
    afterSplit({{"splitpositionsdata", QVariantList{splitInto(3)}},
                {"splitPositionsData", QVariantList{splitInto(4)}}});
    EXPECT_EQ(posnumsOf(plugin.packagingList), QList<int>{4});
}

TEST_F(TriggerArguments, SplitDataEmptyUnderTheExactKey_TheLowerCaseOneIsNotRead)
{
    afterSplit({{"splitpositionsdata", QVariantList{splitInto(3)}},
                {"splitPositionsData", QVariantList{}}});
    EXPECT_EQ(plugin.packagingList.size(), 0);
}

TEST_F(TriggerArguments, SplitDataOfAnotherType_IsAnEmptyListAndIsSaved)
{
    EXPECT_EQ(afterSplit({{"splitPositionsData", 7}}), EContext::Continue);
    EXPECT_EQ(plugin.packagingList.size(), 0);
    EXPECT_EQ(host.journal, savedOnce());
}

TEST_F(TriggerArguments, SplitDataAsAListOfMaps_Converts)
{
    const QList<QVariantMap> maps{splitInto(3), splitInto(4)};
    afterSplit({{"splitPositionsData", QVariant::fromValue(maps)}});
    EXPECT_EQ(posnumsOf(plugin.packagingList), (QList<int>{3, 4}));
}

TEST_F(TriggerArguments, SplitDataWithARegisteredConversion_Converts)
{
    registerForeignTypes();
    afterSplit({{"splitPositionsData", QVariant::fromValue(ForeignSplits{{splitInto(3)}})}});
    EXPECT_EQ(posnumsOf(plugin.packagingList), QList<int>{3});
}

TEST_F(TriggerArguments, SplitElementAsAHash_Converts)
{
    const QVariantMap element = splitInto(3);
    QVariantHash hash;
    for (auto entry = element.cbegin(); entry != element.cend(); ++entry)
        hash.insert(entry.key(), entry.value());
    afterSplit({{"splitPositionsData", QVariantList{hash}}});
    EXPECT_EQ(posnumsOf(plugin.packagingList), QList<int>{3});
}

TEST_F(TriggerArguments, SplitResultWithARegisteredConversion_Converts)
{
    registerForeignTypes();
    auto element = splitInto(3);
    element["result"] = QVariant::fromValue(ForeignPositions{{goods(4, 1)}});
    afterSplit({{"splitPositionsData", QVariantList{element}}});
    EXPECT_EQ(posnumsOf(plugin.packagingList), QList<int>{4});
}

TEST_F(TriggerArguments, UnitedPositionsUnderLowerCaseKeys_AreUsed)
{
    plugin.putTara(1, "A", 10, 5);
    plugin.putGoods(2, {{"A", 2}});
    plugin.putGoods(3, {{"A", 3}});

    afterUnion(
        {{"deletedpositions", list({goods(3, 3)})}, {"changedpositions", list({goods(2, 4)})}});

    EXPECT_EQ(valuesOf(plugin.packagingList), (QList<Info>{{2, {{"A", 4}}}}));
}

TEST_F(TriggerArguments, UnitedPositionsUnderBothKeys_TheExactOnesCount)
{
    plugin.putTara(1, "A", 10, 5);
    plugin.putGoods(2, {{"A", 2}});
    plugin.putGoods(3, {{"A", 3}});

    afterUnion({{"deletedPositions", list({goods(3, 3)})},
                {"deletedpositions", list({goods(2, 2)})},
                {"changedPositions", list({host.receipt()->getPositionByPosnum(2)})},
                {"changedpositions", list({goods(4, 7)})}});

    EXPECT_EQ(valuesOf(plugin.packagingList), (QList<Info>{{2, {{"A", 2}}}}));
    EXPECT_EQ(plugin.taraList[0]->freeCapacity, 8);
}

TEST_F(TriggerArguments, UnitedPositionsWithARegisteredConversion_Convert)
{
    registerForeignTypes();
    plugin.putTara(1, "A", 10, 5);
    plugin.putGoods(2, {{"A", 2}});
    plugin.putGoods(3, {{"A", 3}});

    afterUnion({{"deletedPositions", QVariant::fromValue(ForeignPositions{{goods(3, 3)}})},
                {"changedPositions", QVariant::fromValue(ForeignPositions{{goods(2, 4)}})}});

    EXPECT_EQ(valuesOf(plugin.packagingList), (QList<Info>{{2, {{"A", 4}}}}));
}

} // namespace
