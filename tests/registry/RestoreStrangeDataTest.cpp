#include "tests/registry/RegistryFixture.h"
#include "tests/registry/StrangeData.h"
#include "tests/support/Numbers.h"

#include <cmath>

// The document's data may have been written by anybody. Whatever they are, they become records.

namespace {

using TaraInfo = PackagingControl::TaraInfo;
using PackagingInfo = PackagingControl::PackagingInfo;

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
