#include "till/goods/Money.h"

#include "tests/support/Printers.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace till;

struct ReadAmount
{
    const char *text;
    Kopecks kopecks;
};

class MoneyText : public testing::TestWithParam<ReadAmount>
{
};

TEST_P(MoneyText, OfAnAmount_IsRead)
{
    EXPECT_EQ(parseMoney(GetParam().text), GetParam().kopecks);
}

INSTANTIATE_TEST_SUITE_P(Forms, MoneyText,
                         testing::Values(ReadAmount{"0", 0}, ReadAmount{"12", 1200},
                                         ReadAmount{"12.5", 1250}, ReadAmount{"12,5", 1250},
                                         ReadAmount{"12.05", 1205}, ReadAmount{"12,50", 1250},
                                         ReadAmount{"0,01", 1}, ReadAmount{"007", 700},
                                         ReadAmount{"999999999999.99", 99'999'999'999'999}));

class NoMoneyText : public testing::TestWithParam<QString>
{
};

TEST_P(NoMoneyText, IsRejected)
{
    EXPECT_EQ(parseMoney(GetParam()), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Forms, NoMoneyText,
                         testing::Values("", " ", "12.", ".5", ",", "12.505", "12.5.0", "1,234.50",
                                         "-1", "+1", "1e3", "inf", "nan", " 12", "12 ", "12\n",
                                         "12\n13", "1 234", "12 р", "0x10", "١٢", "1000000000000"));

struct PrintedAmount
{
    Kopecks kopecks;
    const char *text;
};

class Amount : public testing::TestWithParam<PrintedAmount>
{
};

TEST_P(Amount, AsText_HasTwoDecimalsAndAPoint)
{
    EXPECT_EQ(toText(GetParam().kopecks), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Amounts, Amount,
                         testing::Values(PrintedAmount{0, "0.00"}, PrintedAmount{5, "0.05"},
                                         PrintedAmount{50, "0.50"}, PrintedAmount{100, "1.00"},
                                         PrintedAmount{123450, "1234.50"},
                                         PrintedAmount{-5, "-0.05"},
                                         PrintedAmount{-123450, "-1234.50"}));

struct SumRow
{
    const char *what;
    Kopecks price;
    double quantity;
    Kopecks sum;
};

void PrintTo(const SumRow &row, std::ostream *out)
{
    *out << row.what;
}

class Sum : public testing::TestWithParam<SumRow>
{
};

TEST_P(Sum, OfPriceAndQuantity_IsWholeKopecks)
{
    EXPECT_EQ(sumOf(GetParam().price, GetParam().quantity), GetParam().sum);
}

INSTANTIATE_TEST_SUITE_P(
    Roundings, Sum,
    testing::Values(
        SumRow{"whole pieces", 14000, 3.0, 42000}, SumRow{"part of a piece", 14000, 0.75, 10500},
        SumRow{"nothing", 14000, 0.0, 0}, SumRow{"below half goes down", 101, 1.004, 101},
        SumRow{"half goes up", 1, 0.5, 1}, SumRow{"above half goes up", 101, 1.006, 102},
        SumRow{"just below half goes down", 1, 0.499, 0},
        SumRow{"half that binary numbers put below", 100, 1.005, 101},
        SumRow{"another half that binary numbers put below", 2990, 1.15, 3439},
        SumRow{"half of a negative quantity goes away from 0", 1, -0.5, -1},
        SumRow{"negative half that binary numbers put above", 2990, -1.15, -3439},
        SumRow{"rounded once: less than half of a kopeck", 1, 0.49986, 0},
        SumRow{"rounded once: more than half of a kopeck", 1, 0.50014, 1},
        SumRow{"a tenth that sums of binary numbers miss", 5, 1.0 - 0.9, 1},
        SumRow{"a tenth that sums of binary numbers pass", 5, 0.3 - 0.2 - 1e-17, 1},
        SumRow{"a third", 10000, 1.0 / 3.0, 3333}, SumRow{"two thirds", 10000, 2.0 / 3.0, 6667},
        SumRow{"large amounts", 99'999'999'999'999, 10.0, 999'999'999'999'990},
        SumRow{"what money cannot hold", 99'999'999'999'999, 1e6, 1'000'000'000'000'000},
        SumRow{"what it cannot hold below 0", 99'999'999'999'999, -1e6, -1'000'000'000'000'000},
        SumRow{"too many for a whole number, for nothing", 0, 1e300, 0},
        SumRow{"no number", 1, std::numeric_limits<double>::quiet_NaN(), 0},
        SumRow{"no end", 1, std::numeric_limits<double>::infinity(), 1'000'000'000'000'000}));

struct ReadQuantity
{
    const char *text;
    double quantity;
};

class QuantityText : public testing::TestWithParam<ReadQuantity>
{
};

TEST_P(QuantityText, OfANumber_IsRead)
{
    EXPECT_EQ(parseQuantity(GetParam().text), GetParam().quantity);
}

INSTANTIATE_TEST_SUITE_P(Forms, QuantityText,
                         testing::Values(ReadQuantity{"0", 0.0}, ReadQuantity{"3", 3.0},
                                         ReadQuantity{"1.5", 1.5}, ReadQuantity{"1,5", 1.5},
                                         ReadQuantity{"0.125", 0.125}, ReadQuantity{"-2,5", -2.5},
                                         ReadQuantity{"010", 10.0}, ReadQuantity{"0.3", 0.3},
                                         ReadQuantity{"123456789,123", 123456789.123},
                                         ReadQuantity{"999999999.999", 999999999.999}));

class NoQuantityText : public testing::TestWithParam<QString>
{
};

TEST_P(NoQuantityText, IsRejected)
{
    EXPECT_EQ(parseQuantity(GetParam()), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Forms, NoQuantityText,
                         testing::Values("", "-", "1.", ".5", "1.2345", "1.5.0", "1,2.3", "--1",
                                         "+1", "1e3", "inf", "nan", " 1", "1 ", "1\n", "1л", "0x1",
                                         "١", "1000000000"));

struct PrintedQuantity
{
    double quantity;
    const char *text;
};

class Quantity : public testing::TestWithParam<PrintedQuantity>
{
};

TEST_P(Quantity, AsText_HasNoIdleZeros)
{
    EXPECT_EQ(toText(GetParam().quantity), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Quantities, Quantity,
    testing::Values(PrintedQuantity{0.0, "0"}, PrintedQuantity{1.0, "1"},
                    PrintedQuantity{10.0, "10"}, PrintedQuantity{100.0, "100"},
                    PrintedQuantity{1.5, "1.5"}, PrintedQuantity{0.25, "0.25"},
                    PrintedQuantity{0.125, "0.125"}, PrintedQuantity{2.0 / 3.0, "0.667"},
                    PrintedQuantity{0.1 + 0.2, "0.3"}, PrintedQuantity{0.9999, "1"},
                    PrintedQuantity{-1.5, "-1.5"}, PrintedQuantity{-0.0004, "0"},
                    PrintedQuantity{1e8, "100000000"}));

} // namespace
