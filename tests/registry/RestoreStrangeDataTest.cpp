#include "tests/registry/RegistryFixture.h"
#include "tests/support/Numbers.h"

#include <QtCore/QDateTime>

#include <cmath>

// The document's data may have been written by anybody. Whatever they are, they become records.

namespace {

using TaraInfo = PackagingControl::TaraInfo;
using PackagingInfo = PackagingControl::PackagingInfo;

//! A list in a list, \a depth times.
QVariant nestedLists(int depth)
{
    QVariant value = 1;
    for (int level = 0; level < depth; ++level)
        value = QVariantList{value};
    return value;
}

//! A map in a map, \a depth times, under a key that is read.
QVariant nestedMaps(int depth)
{
    QVariant value = 1;
    for (int level = 0; level < depth; ++level)
        value = QVariantMap{{"usedTara", value}};
    return value;
}

constexpr int absurdDepth = 2000;

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

class RestoreStrangeData : public Registry
{
};

TEST_F(RestoreStrangeData, NotANumber_StaysNotANumber)
{
    restoreFrom("taraInfo",
                QVariantList{QVariantMap{{"capacity", notANumber}, {"freeCapacity", notANumber}}});
    restoreFrom("packagingInfo",
                QVariantList{QVariantMap{{"usedTara", QVariantMap{{"{a}", notANumber}}}}});

    EXPECT_TRUE(std::isnan(plugin.taraList.at(0)->capacity));
    EXPECT_TRUE(std::isnan(plugin.taraList.at(0)->freeCapacity));
    EXPECT_TRUE(std::isnan(plugin.packagingList.at(0)->usedTara.value("{a}")));
}

TEST_F(RestoreStrangeData, Infinity_StaysInfinite)
{
    restoreFrom("taraInfo",
                QVariantList{QVariantMap{{"capacity", infinity}, {"freeCapacity", -infinity}}});

    EXPECT_EQ(*plugin.taraList.at(0), (TaraInfo{0, {}, infinity, -infinity}));
}

TEST_F(RestoreStrangeData, TextList_GivesOneBlankRecordEach)
{
    restoreFrom("taraInfo", QStringList{"a", "b"});

    ASSERT_EQ(plugin.taraList.size(), 2);
    EXPECT_EQ(*plugin.taraList[0], TaraInfo());
    EXPECT_EQ(*plugin.taraList[1], TaraInfo());
}

TEST_F(RestoreStrangeData, Text_GivesNothingButBlankRecords)
{
    restoreFrom("taraInfo", "{\"posnum\": 5}");

    EXPECT_THAT(plugin.taraList, testing::Each(testing::Pointee(TaraInfo())));
}

TEST_F(RestoreStrangeData, Hash_IsReadLikeAMap)
{
    restoreFrom("packagingInfo", QVariantList{QVariantHash{
                                     {"posnum", 5}, {"usedTara", QVariantHash{{"{a}", 1.5}}}}});

    ASSERT_EQ(plugin.packagingList.size(), 1);
    EXPECT_EQ(*plugin.packagingList[0], (PackagingInfo{5, {{"{a}", 1.5}}}));
}

TEST_F(RestoreStrangeData, DeepLists_GiveOneBlankRecord)
{
    restoreFrom("taraInfo", nestedLists(absurdDepth));
    restoreFrom("packagingInfo", nestedLists(absurdDepth));

    EXPECT_THAT(plugin.taraList, testing::ElementsAre(testing::Pointee(TaraInfo())));
    EXPECT_THAT(plugin.packagingList, testing::ElementsAre(testing::Pointee(PackagingInfo())));
}

TEST_F(RestoreStrangeData, DeepMaps_AreReadOneLevelDown)
{
    restoreFrom("packagingInfo", QVariantList{nestedMaps(absurdDepth)});

    EXPECT_THAT(plugin.packagingList,
                testing::ElementsAre(testing::Pointee(PackagingInfo{0, {{"usedTara", 0.0}}})));
}

TEST_F(RestoreStrangeData, FilledMapsUnderOtherKeys_AreNoUse)
{
    const QVariantMap used{{"{a}", 1.0}};
    const QVariantMap other{{"{b}", 2.0}};
    restoreFrom("packagingInfo", QVariantList{QVariantMap{{"posnum", 5},
                                                          {"usedTar", other},
                                                          {"usedTara", used},
                                                          {"usedTara2", other},
                                                          {"zzz", other}}});

    EXPECT_THAT(plugin.packagingList,
                testing::ElementsAre(testing::Pointee(PackagingInfo{5, {{"{a}", 1.0}}})));
}

TEST_F(RestoreStrangeData, HugeLists_ComeBackWhole)
{
    constexpr int count = 100'000;
    QVariantList taras;
    QVariantList packaging;
    for (int posnum = 1; posnum <= count; ++posnum) {
        taras << QVariantMap{{"posnum", posnum}};
        packaging << QVariantMap{{"posnum", -posnum}};
    }
    host.receipt()->setPluginData("PackagingControl", "taraInfo", taras);
    restoreFrom("packagingInfo", packaging);

    ASSERT_EQ(plugin.taraList.size(), count);
    ASSERT_EQ(plugin.packagingList.size(), count);
    EXPECT_EQ(plugin.taraList[count - 1]->posnum, count);
    EXPECT_EQ(plugin.packagingList[count - 1]->posnum, -count);
}

TEST_F(RestoreStrangeData, HugeUsedTara_ComesBackWhole)
{
    constexpr int count = 100'000;
    QVariantMap usedTara;
    for (int tara = 1; tara <= count; ++tara)
        usedTara.insert(QString::number(tara), tara);
    restoreFrom("packagingInfo", QVariantList{QVariantMap{{"usedTara", usedTara}}});

    ASSERT_EQ(plugin.packagingList.size(), 1);
    EXPECT_EQ(plugin.packagingList[0]->usedTara.size(), count);
    EXPECT_EQ(plugin.packagingList[0]->usedTara.value("99999"), 99999.0);
}

TEST_F(RestoreStrangeData, NumbersBeyondAnInt_DoNotStopTheRest)
{
    for (const QVariant &number :
         {QVariant(notANumber), QVariant(infinity), QVariant(1e300), QVariant(qlonglong(1) << 40)})
        restoreFrom("taraInfo",
                    QVariantList{QVariantMap{{"posnum", number}, {"id", "{a}"}, {"capacity", 1}}});

    ASSERT_EQ(plugin.taraList.size(), 1);
    EXPECT_EQ(plugin.taraList[0]->id, "{a}");
    EXPECT_EQ(plugin.taraList[0]->capacity, 1.0);
}

TEST_F(RestoreStrangeData, StrangeRecords_CanBeWorkedWith)
{
    restoreFrom("taraInfo",
                QVariantList{QVariantMap{{"capacity", notANumber}, {"freeCapacity", notANumber}}, 7,
                             QVariantMap{{"posnum", 2}, {"freeCapacity", infinity}}});
    restoreFrom("packagingInfo", QVariantList{QVariantMap{{"posnum", 3}}, QVariant()});

    plugin.modifyPackagingUsedCapacity(plugin.packagingList[0], 5.0);

    // Only the tara without end has room.
    EXPECT_EQ(plugin.packagingList[0]->usedTara, (QMap<QString, double>{{"", 5.0}}));
    EXPECT_EQ(plugin.taraList[2]->freeCapacity, infinity);
    EXPECT_FALSE(plugin.isTaraSplitted(tara(2, 1.0)));
    EXPECT_TRUE(plugin.isTaraPartialFilled(host.receipt()->getPositionByPosnum(2)));
}

} // namespace
