#include "tests/registry/RegistryFixture.h"
#include "tests/registry/StrangeData.h"
#include "tests/support/Numbers.h"

#include <QtCore/QDateTime>

// The document's data may have been written by anybody. Whatever stands where something else
// belongs, it becomes a record.

namespace {

using TaraInfo = PackagingControl::TaraInfo;
using PackagingInfo = PackagingControl::PackagingInfo;

//! A value, and what to call it where its text would fill pages.
struct Strange
{
    const char *name;
    QVariant value;
};

void PrintTo(const Strange &strange, std::ostream *out)
{
    *out << strange.name;
}

class WhereAListBelongs : public Registry, public testing::WithParamInterface<Strange>
{
};

TEST_P(WhereAListBelongs, AnythingElse_GivesNoTara)
{
    plugin.putTara(2, "{a}", 1.0, 1.0);

    restoreFrom("taraInfo", GetParam().value);

    EXPECT_THAT(plugin.taraList, testing::IsEmpty());
}

TEST_P(WhereAListBelongs, AnythingElse_GivesNoGoods)
{
    plugin.putGoods(2, {{"{a}", 1.0}});

    restoreFrom("packagingInfo", GetParam().value);

    EXPECT_THAT(plugin.packagingList, testing::IsEmpty());
}

TEST_P(WhereAListBelongs, AnythingElseForTara_DoesNotTouchTheGoods)
{
    plugin.putGoods(2, {{"{a}", 1.0}});
    plugin.savePluginData();

    restoreFrom("taraInfo", GetParam().value);

    ASSERT_EQ(plugin.packagingList.size(), 1);
    EXPECT_EQ(*plugin.packagingList[0], (PackagingInfo{2, {{"{a}", 1.0}}}));
}

INSTANTIATE_TEST_SUITE_P(Values, WhereAListBelongs,
                         testing::Values(Strange{"invalid", QVariant()}, Strange{"int", 5},
                                         Strange{"double", 1.5},
                                         Strange{"not a number", notANumber}, Strange{"bool", true},
                                         Strange{"map", QVariantMap{{"posnum", 5}}},
                                         Strange{"time", QDateTime()},
                                         Strange{"object", QVariant::fromValue<QObject *>(nullptr)},
                                         Strange{"deep maps", nestedMaps(absurdDepth)}));

class WhereAMapBelongs : public Registry, public testing::WithParamInterface<Strange>
{
};

TEST_P(WhereAMapBelongs, AnythingElse_GivesABlankTara)
{
    restoreFrom("taraInfo", QVariantList{GetParam().value});

    ASSERT_EQ(plugin.taraList.size(), 1);
    EXPECT_EQ(*plugin.taraList[0], TaraInfo());
}

TEST_P(WhereAMapBelongs, AnythingElse_GivesBlankGoods)
{
    restoreFrom("packagingInfo", QVariantList{GetParam().value});

    ASSERT_EQ(plugin.packagingList.size(), 1);
    EXPECT_EQ(*plugin.packagingList[0], PackagingInfo());
}

TEST_P(WhereAMapBelongs, AnythingElseAsUsedTara_GivesNoUse)
{
    restoreFrom("packagingInfo",
                QVariantList{QVariantMap{{"posnum", 4}, {"usedTara", GetParam().value}}});

    ASSERT_EQ(plugin.packagingList.size(), 1);
    EXPECT_EQ(*plugin.packagingList[0], (PackagingInfo{4, {}}));
}

TEST_P(WhereAMapBelongs, AnythingElseAmongGoodOnes_KeepsItsPlace)
{
    restoreFrom("taraInfo", QVariantList{QVariantMap{{"posnum", 5}}, GetParam().value,
                                         QVariantMap{{"posnum", 6}}});

    ASSERT_EQ(plugin.taraList.size(), 3);
    EXPECT_EQ(plugin.taraList[0]->posnum, 5);
    EXPECT_EQ(*plugin.taraList[1], TaraInfo());
    EXPECT_EQ(plugin.taraList[2]->posnum, 6);
}

INSTANTIATE_TEST_SUITE_P(
    Values, WhereAMapBelongs,
    testing::Values(Strange{"invalid", QVariant()}, Strange{"int", 5}, Strange{"double", 1.5},
                    Strange{"bool", true}, Strange{"text", "text"},
                    Strange{"bytes", QByteArray("bytes")}, Strange{"list", QVariantList{1, 2}},
                    Strange{"text list", QStringList{"posnum"}},
                    Strange{"empty map", QVariantMap()}, Strange{"time", QDateTime()},
                    Strange{"object", QVariant::fromValue<QObject *>(nullptr)},
                    Strange{"deep lists", nestedLists(absurdDepth)}));

struct NumberRow
{
    const char *name;
    QVariant stored;
    int posnum;
    double capacity;
};

void PrintTo(const NumberRow &row, std::ostream *out)
{
    *out << row.name;
}

class WhereANumberBelongs : public Registry, public testing::WithParamInterface<NumberRow>
{
};

TEST_P(WhereANumberBelongs, InATara_IsConvertedOrZero)
{
    const QVariant value = GetParam().stored;
    restoreFrom("taraInfo",
                QVariantList{QVariantMap{
                    {"posnum", value}, {"id", "{a}"}, {"capacity", value}, {"freeCapacity", 2}}});

    ASSERT_EQ(plugin.taraList.size(), 1);
    EXPECT_EQ(*plugin.taraList[0], (TaraInfo{GetParam().posnum, "{a}", GetParam().capacity, 2.0}));
}

TEST_P(WhereANumberBelongs, AsFreeCapacity_IsConvertedOrZero)
{
    restoreFrom("taraInfo", QVariantList{QVariantMap{{"freeCapacity", GetParam().stored}}});

    ASSERT_EQ(plugin.taraList.size(), 1);
    EXPECT_EQ(*plugin.taraList[0], (TaraInfo{0, {}, 0.0, GetParam().capacity}));
}

TEST_P(WhereANumberBelongs, InGoods_IsConvertedOrZeroAndTheEntryStays)
{
    const QVariant value = GetParam().stored;
    restoreFrom("packagingInfo",
                QVariantList{QVariantMap{{"posnum", value},
                                         {"usedTara", QVariantMap{{"{a}", value}, {"{b}", 1.5}}}}});

    ASSERT_EQ(plugin.packagingList.size(), 1);
    EXPECT_EQ(*plugin.packagingList[0],
              (PackagingInfo{GetParam().posnum, {{"{a}", GetParam().capacity}, {"{b}", 1.5}}}));
}

INSTANTIATE_TEST_SUITE_P(
    Values, WhereANumberBelongs,
    testing::Values(NumberRow{"digits", "17", 17, 17.0},
                    NumberRow{"bytes of digits", QByteArray("17"), 17, 17.0},
                    NumberRow{"text", "no number", 0, 0.0}, NumberRow{"empty text", "", 0, 0.0},
                    NumberRow{"invalid", QVariant(), 0, 0.0}, NumberRow{"below 0", -3, -3, -3.0},
                    NumberRow{"long long", qlonglong(8), 8, 8.0}, NumberRow{"double", 2.0, 2, 2.0},
                    NumberRow{"rounded double", 2.7, 3, 2.7},
                    NumberRow{"text with a fraction", "2.5", 0, 2.5},
                    NumberRow{"bool", true, 1, 1.0}, NumberRow{"list", QVariantList{1}, 0, 0.0},
                    NumberRow{"map", QVariantMap{{"posnum", 5}}, 0, 0.0},
                    NumberRow{"text list", QStringList{"1", "2"}, 0, 0.0},
                    NumberRow{"object", QVariant::fromValue<QObject *>(nullptr), 0, 0.0},
                    NumberRow{"deep lists", nestedLists(absurdDepth), 0, 0.0},
                    NumberRow{"deep maps", nestedMaps(absurdDepth), 0, 0.0}));

struct IdRow
{
    QVariant stored;
    QString id;
};

void PrintTo(const IdRow &row, std::ostream *out)
{
    PrintTo(row.stored, out);
}

class WhereAnIdBelongs : public Registry, public testing::WithParamInterface<IdRow>
{
};

TEST_P(WhereAnIdBelongs, AnyValue_IsConvertedOrEmpty)
{
    restoreFrom("taraInfo", QVariantList{QVariantMap{{"posnum", 5}, {"id", GetParam().stored}}});

    ASSERT_EQ(plugin.taraList.size(), 1);
    EXPECT_EQ(*plugin.taraList[0], (TaraInfo{5, GetParam().id, 0.0, 0.0}));
}

INSTANTIATE_TEST_SUITE_P(Values, WhereAnIdBelongs,
                         testing::Values(IdRow{"{a}", "{a}"}, IdRow{"", ""}, IdRow{17, "17"},
                                         IdRow{QByteArray("{a}"), "{a}"}, IdRow{QVariant(), ""},
                                         IdRow{QVariantMap(), ""}, IdRow{QVariantList{1}, ""},
                                         IdRow{" {A}\n", " {A}\n"}, IdRow{"тара", "тара"}));

} // namespace
