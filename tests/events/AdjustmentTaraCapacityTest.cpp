#include "tests/support/FakeHost.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Numbers.h"
#include "tests/support/Printers.h"
#include "tests/support/TestPlugin.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QtCore/QLocale>

#include <cmath>
#include <limits>

namespace {

class AdjustTara : public testing::Test
{
protected:
    AdjustTara()
    {
        plugin.setDocument(host.receipt());
        host.journal.clear();
    }

    ~AdjustTara() override { QLocale::setDefault(QLocale::c()); }

    FakeHost host;
    LogCapture log;
    TestPlugin plugin;
};

TEST_F(AdjustTara, Grown_GivesTheGrowthToTheFreeCapacity)
{
    const auto tara = plugin.putTara(2, "{a}", 3.0, 0.5);

    plugin.modifyTaraCapacity(tara, 10.0);

    EXPECT_EQ(*tara, (PackagingControl::TaraInfo{2, "{a}", 10.0, 7.5}));
}

TEST_F(AdjustTara, ShrunkBelowWhatItHolds_LeavesTheFreeCapacityNegative)
{
    const auto tara = plugin.putTara(2, "{a}", 3.0, 0.0);

    plugin.modifyTaraCapacity(tara, 1.0);

    EXPECT_EQ(*tara, (PackagingControl::TaraInfo{2, "{a}", 1.0, -2.0}));
    EXPECT_EQ(tara->getUsedCapacity(), 3.0);
}

TEST_F(AdjustTara, CapacityZeroOrBelow_IsTakenAsItIs)
{
    const auto tara = plugin.putTara(2, "{a}", 3.0, 1.0);

    plugin.modifyTaraCapacity(tara, 0.0);
    EXPECT_EQ(*tara, (PackagingControl::TaraInfo{2, "{a}", 0.0, -2.0}));

    plugin.modifyTaraCapacity(tara, -1.0);
    EXPECT_EQ(*tara, (PackagingControl::TaraInfo{2, "{a}", -1.0, -3.0}));
}

TEST_F(AdjustTara, Changed_LogsTheOldAndTheNewCapacity)
{
    plugin.modifyTaraCapacity(plugin.putTara(2, "{a}", 3.0, 3.0), 1.23456);

    EXPECT_EQ(log.lines(), QStringList{"INFO Изменение ёмкости тары 3.000 -> 1.235"});
}

TEST_F(AdjustTara, LargeAndNegativeNumbers_AreLoggedInFull)
{
    plugin.modifyTaraCapacity(plugin.putTara(2, "{a}", 1234567.5, 0.0), -0.75);

    EXPECT_EQ(log.lines(), QStringList{"INFO Изменение ёмкости тары 1234567.500 -> -0.750"});
}

TEST_F(AdjustTara, Changed_LeavesOtherRecordsAloneAndDoesNotAskTheHost)
{
    const auto other = plugin.putTara(3, "{b}", 3.0, 1.0);
    const auto user = plugin.putGoods(4, {{"{a}", 3.0}});

    plugin.modifyTaraCapacity(plugin.putTara(2, "{a}", 3.0, 0.0), 1.0);

    EXPECT_EQ(*other, (PackagingControl::TaraInfo{3, "{b}", 3.0, 1.0}));
    EXPECT_EQ(*user, (PackagingControl::PackagingInfo{4, {{"{a}", 3.0}}}));
    EXPECT_EQ(host.journal, QStringList());
}

TEST_F(AdjustTara, RecordThatLeftTheList_IsChangedAllTheSame)
{
    const auto tara = plugin.putTara(2, "{a}", 3.0, 0.0);
    plugin.taraList.clear();

    plugin.modifyTaraCapacity(tara, 4.0);

    EXPECT_EQ(*tara, (PackagingControl::TaraInfo{2, "{a}", 4.0, 1.0}));
    EXPECT_THAT(plugin.taraList, testing::IsEmpty());
}

TEST_F(AdjustTara, WithoutADocument_WorksAsEver)
{
    const auto tara = plugin.putTara(2, "{a}", 3.0, 0.0);
    plugin.disablePlugin();

    plugin.modifyTaraCapacity(tara, 4.0);

    EXPECT_EQ(tara->freeCapacity, 1.0);
}

class LocaleOfTheLog : public AdjustTara, public testing::WithParamInterface<const char *>
{
};

TEST_P(LocaleOfTheLog, DoesNotChangeTheNumbers)
{
    QLocale::setDefault(QLocale(GetParam()));

    plugin.modifyTaraCapacity(plugin.putTara(2, "{a}", 12345.5, 0.0), 0.25);

    EXPECT_EQ(log.lines(), QStringList{"INFO Изменение ёмкости тары 12345.500 -> 0.250"});
}

INSTANTIATE_TEST_SUITE_P(Locales, LocaleOfTheLog, testing::Values("ru_RU", "de_DE", "ar_EG"));

struct Change
{
    double capacity;
    double newCapacity;
    bool changes;
};

void PrintTo(const Change &change, std::ostream *out)
{
    *out << change.capacity << " -> " << change.newCapacity;
}

class SmallChange : public AdjustTara, public testing::WithParamInterface<Change>
{
};

TEST_P(SmallChange, CountsFromTheToleranceUp)
{
    const auto [capacity, newCapacity, changes] = GetParam();
    const auto tara = plugin.putTara(2, "{a}", capacity, 0.0);

    plugin.modifyTaraCapacity(tara, newCapacity);

    EXPECT_EQ(tara->capacity, changes ? newCapacity : capacity);
    EXPECT_EQ(tara->freeCapacity, changes ? newCapacity - capacity : 0.0);
    EXPECT_EQ(log.lines().size(), changes ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(
    Differences, SmallChange,
    testing::Values(Change{2.0, 2.0004, false}, Change{2.0, 1.9996, false},
                    Change{2.0, 2.0006, true}, Change{2.0, 1.9994, true}, Change{2.0, 2.0, false},
                    // Differences that are exact.
                    Change{0.0, tolerance, true}, Change{0.0, -tolerance, true},
                    Change{0.0, justBelow, false}, Change{0.0, -justBelow, false},
                    Change{0.0, justAbove, true}, Change{tolerance, 0.001, true},
                    Change{0.001, tolerance, true},
                    // The decimals differ by 0.0005, the doubles by a little less or more.
                    Change{1.0, 1.0005, false}, Change{3.0, 2.9995, true}));

TEST_F(AdjustTara, CapacityThatIsNotANumber_IsTakenAsItIs)
{
    const auto tara = plugin.putTara(2, "{a}", 3.0, 1.0);

    plugin.modifyTaraCapacity(tara, notANumber);

    EXPECT_TRUE(std::isnan(tara->capacity));
    EXPECT_TRUE(std::isnan(tara->freeCapacity));
    EXPECT_EQ(log.lines(), QStringList{"INFO Изменение ёмкости тары 3.000 -> nan"});
}

TEST_F(AdjustTara, ChangeByADenormal_IsIgnored)
{
    const auto tara = plugin.putTara(2, "{a}", 0.0, 1.0);

    plugin.modifyTaraCapacity(tara, std::numeric_limits<double>::denorm_min());

    EXPECT_EQ(tara->capacity, 0.0);
    EXPECT_EQ(tara->freeCapacity, 1.0);
}

} // namespace
