#include "tests/registry/RegistryFixture.h"
#include "tests/support/Numbers.h"

#include <limits>

namespace {

using TaraInfo = PackagingControl::TaraInfo;
using PackagingInfo = PackagingControl::PackagingInfo;

TaraInfo record(double capacity, double freeCapacity)
{
    return TaraInfo{1, "{id}", capacity, freeCapacity};
}

TEST(TaraRecord, WhenMade_IsBlank)
{
    EXPECT_EQ(TaraInfo(), (TaraInfo{0, QString(), 0.0, 0.0}));
}

TEST(PackagingRecord, WhenMade_IsBlank)
{
    EXPECT_EQ(PackagingInfo(), (PackagingInfo{0, {}}));
}

struct UsedRow
{
    double capacity;
    double freeCapacity;
    double used;
};

class UsedCapacity : public testing::TestWithParam<UsedRow>
{
};

TEST_P(UsedCapacity, OfATara_IsTheExactDifference)
{
    EXPECT_EQ(record(GetParam().capacity, GetParam().freeCapacity).getUsedCapacity(),
              GetParam().used);
}

INSTANTIATE_TEST_SUITE_P(Rows, UsedCapacity,
                         testing::Values(UsedRow{2.0, 0.75, 1.25}, UsedRow{2.0, 2.0, 0.0},
                                         UsedRow{1.0, -2.0, 3.0}, UsedRow{1.0, 1.5, -0.5},
                                         UsedRow{0.0005, 0.00025, 0.00025}));

struct FillRow
{
    double capacity;
    double freeCapacity;
    bool empty;
    bool full;
};

void PrintTo(const FillRow &row, std::ostream *out)
{
    *out << "capacity " << row.capacity << " free " << row.freeCapacity;
}

class FillOfTara : public testing::TestWithParam<FillRow>
{
};

TEST_P(FillOfTara, IsJudgedByTheComputedDifference)
{
    const TaraInfo tara = record(GetParam().capacity, GetParam().freeCapacity);

    EXPECT_EQ(tara.isEmpty(), GetParam().empty);
    EXPECT_EQ(tara.isFull(), GetParam().full);
}

INSTANTIATE_TEST_SUITE_P(
    Plain, FillOfTara,
    testing::Values(FillRow{2.0, 2.0, true, false}, FillRow{2.0, 1.9996, true, false},
                    FillRow{2.0, 2.0004, true, false}, FillRow{2.0, 1.999, false, false},
                    FillRow{2.0, 2.001, false, false}, FillRow{2.0, 0.0, false, true},
                    FillRow{2.0, 0.0004, false, true}, FillRow{2.0, -0.0004, false, true},
                    FillRow{2.0, 0.0006, false, false}, FillRow{2.0, -0.0006, false, false},
                    FillRow{2.0, -2.0, false, false}, FillRow{-2.0, -2.0, true, false}));

INSTANTIATE_TEST_SUITE_P(AtTheTolerance, FillOfTara,
                         testing::Values(FillRow{2.0, tolerance, false, false},
                                         FillRow{2.0, -tolerance, false, false},
                                         FillRow{2.0, justBelow, false, true},
                                         FillRow{2.0, -justBelow, false, true},
                                         FillRow{2.0, justAbove, false, false},
                                         // 0.001 less 0.0005 is 0.0005 exactly.
                                         FillRow{0.001, tolerance, false, false},
                                         FillRow{tolerance, 0.001, false, false}));

INSTANTIATE_TEST_SUITE_P(
    DecimalsThatAreNoDoubles, FillOfTara,
    // The decimals differ by 0.0005; what a double makes of them does not reach it, or passes it.
    testing::Values(FillRow{1.0005, 1.0, true, false}, FillRow{3.0, 2.9995, false, false}));

INSTANTIATE_TEST_SUITE_P(
    WithoutCapacity, FillOfTara,
    testing::Values(FillRow{0.0, 0.0, true, true}, FillRow{justBelow, justBelow, true, true},
                    FillRow{0.0, justBelow, true, true}, FillRow{tolerance, 0.0, false, true},
                    FillRow{0.0, tolerance, false, false},
                    FillRow{0.0, std::numeric_limits<double>::denorm_min(), true, true}));

INSTANTIATE_TEST_SUITE_P(NotNumbers, FillOfTara,
                         testing::Values(FillRow{notANumber, notANumber, false, false},
                                         FillRow{2.0, notANumber, false, false},
                                         FillRow{notANumber, 0.0, false, true},
                                         FillRow{infinity, infinity, false, false},
                                         FillRow{infinity, 0.0, false, true}));

class TaraMode : public Registry, public testing::WithParamInterface<int>
{
};

TEST_P(TaraMode, DecidesWhatAPositionIs)
{
    const auto position = host.putPosition(4, GetParam(), 1.0, 1, 1);

    EXPECT_EQ(PackagingControl::isTara(position), GetParam() == 1);
    EXPECT_EQ(PackagingControl::isPackaging(position), GetParam() == 2);
}

INSTANTIATE_TEST_SUITE_P(Numbers, TaraMode,
                         testing::Values(0, 1, 2, 3, -1, -2, 12, 257,
                                         std::numeric_limits<int>::max(),
                                         std::numeric_limits<int>::min()));

} // namespace
