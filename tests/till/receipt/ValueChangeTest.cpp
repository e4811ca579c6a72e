#include "till/receipt/ValueChange.h"

#include "tests/support/Chance.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

#include <random>

namespace till {

void PrintTo(const ListChange &part, std::ostream *out)
{
    *out << "at " << part.at << " removed " << part.removed << " added ";
    PrintTo(QVariant(part.added), out);
}

namespace {

QList<ListChange> partsOf(const QVariantList &before, const QVariantList &after)
{
    const auto change = changeOf(before, after);
    return change ? change->parts : QList<ListChange>();
}

QVariantList applied(QVariantList list, const QList<ListChange> &parts)
{
    for (const ListChange &part : parts) {
        list.remove(part.at, part.removed);
        for (qsizetype i = 0; i < part.added.size(); ++i)
            list.insert(part.at + i, part.added[i]);
    }
    return list;
}

TEST(ValueChange, OfAListMadeAnew_IsNothing)
{
    const QVariantMap record{{"posnum", 1}, {"free", 0.5}};
    EXPECT_FALSE(changeOf(QVariantList{record, "x"}, QVariantList{record, "x"}));
}

TEST(ValueChange, OfElements_IsTheirParts)
{
    EXPECT_EQ(partsOf({1, 2, 3, 4, 5}, {1, 9, 3, 8, 7}),
              (QList<ListChange>{{1, 1, {9}}, {3, 2, {8, 7}}}));
}

TEST(ValueChange, OfAListThatGrows_IsWhatIsAdded)
{
    EXPECT_EQ(partsOf({1}, {1, 2, 3}), (QList<ListChange>{{1, 0, {2, 3}}}));
}

TEST(ValueChange, OfAListThatLosesElements_IsTheirPlaces)
{
    EXPECT_EQ(partsOf({1, 2, 3, 4, 5}, {2, 3, 5}), (QList<ListChange>{{0, 1, {}}, {2, 1, {}}}));
    EXPECT_EQ(partsOf({1, 2, 3}, {1}), (QList<ListChange>{{1, 2, {}}}));
    EXPECT_EQ(partsOf({1, 2}, {}), (QList<ListChange>{{0, 2, {}}}));
}

TEST(ValueChange, OfAListThatLosesOneBesideAChangedOne_IsBoth)
{
    const QVariantList before{1, 2, 3, 4};
    const QVariantList after{9, 3, 4};
    EXPECT_EQ(partsOf(before, after), (QList<ListChange>{{0, 2, {9}}}));
}

TEST(ValueChange, ToOrFromAnythingButAList_IsTheWholeValue)
{
    for (const auto &[before, after] : {std::pair<QVariant, QVariant>{{}, QVariantList{1}},
                                        {5, QVariantList{1}},
                                        {QVariantList{1}, 5},
                                        {QVariantMap{{"a", 1}}, QVariantMap{{"a", 2}}}}) {
        const auto change = changeOf(before, after);
        ASSERT_TRUE(change);
        EXPECT_TRUE(change->parts.isEmpty());
        EXPECT_EQ(change->value, after);
    }
}

TEST(ValueChange, OfRandomLists_MakesOneOfTheOther)
{
    std::mt19937_64 random(testSeed());
    const auto list = [&random] {
        QVariantList values;
        for (auto size = random() % 8; size > 0; --size)
            values.append(static_cast<int>(random() % 4));
        return values;
    };
    for (int round = 0; round < 5000 * testEffort(); ++round) {
        const QVariantList before = list();
        const QVariantList after = list();
        const QList<ListChange> parts = partsOf(before, after);
        ASSERT_EQ(QVariant(applied(before, parts)), QVariant(after)) << repeatedBy(testSeed());
        for (const ListChange &part : parts) {
            ASSERT_TRUE(part.added.size() <= part.removed
                        || part.at + part.added.size() == after.size());
        }
    }
}

} // namespace

} // namespace till
