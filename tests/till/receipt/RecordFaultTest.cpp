#include "till/receipt/RecordFault.h"

#include "till/goods/Limits.h"
#include "till/receipt/Receipt.h"

#include <gtest/gtest.h>

// What a till can have put into a receipt; tests of the database show each way in which it cannot.

namespace till {

namespace {

const ArticleData dearest{"GOLD", "Gold", greatestSum, 0, 0.0, 1.0, "kg"};

//! That many positions of the dearest article.
ReceiptRecord dearestOf(int count)
{
    ReceiptRecord record;
    record.nextPosnum = count + 1;
    for (int posnum = 1; posnum <= count; ++posnum)
        record.lines.append({posnum, dearest, 1.0, 1.0, {}, false});
    return record;
}

TEST(RecordFault, GreatestSum_IsInRange)
{
    EXPECT_TRUE(check(dearestOf(1)));
    EXPECT_EQ(totalOf(dearestOf(1)).value_or(0), greatestSum);
}

TEST(RecordFault, StornoedPosition_IsNotInTheTotal)
{
    ReceiptRecord record = dearestOf(2);
    record.lines[0].stornoed = true;
    EXPECT_TRUE(check(record));
}

TEST(RecordFault, TotalThatWouldOverflowIntoRange_IsOutOfIt)
{
    constexpr int count = 184'467; // times the greatest sum is nearly 2 to the power of 64
    const auto total = totalOf(dearestOf(count));
    ASSERT_FALSE(total);
    EXPECT_EQ(total.error().text(), "its total is out of range");
}

TEST(RecordFault, WhatIsFarBelowZero_HasNoPlaceInAReceipt)
{
    const Receipt receipt(Document::Sale);
    EXPECT_TRUE(receipt.hasPlaceFor(dearest, -1.0));
    EXPECT_FALSE(receipt.hasPlaceFor(dearest, -1.001));
}

} // namespace

} // namespace till
