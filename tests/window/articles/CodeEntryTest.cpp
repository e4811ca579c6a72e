#include "window/articles/CodeEntry.h"

#include <gtest/gtest.h>

using till::CodeEntry;

namespace {

TEST(CodeEntry, CodeAlone_HasNoCount)
{
    EXPECT_EQ(CodeEntry::read("PET1").code, "PET1");
    EXPECT_FALSE(CodeEntry::read("PET1").count);
}

TEST(CodeEntry, NumberBeforeASign_IsTheCount)
{
    for (const char *const text :
         {"3*PET1", "3xPET1", "3XPET1", "3×PET1", "3хPET1", " 3 * PET1 "}) {
        EXPECT_EQ(CodeEntry::read(text).code, "PET1") << text;
        EXPECT_EQ(CodeEntry::read(text).count, 3.0) << text;
    }
}

TEST(CodeEntry, Count_IsWrittenWithPointOrComma)
{
    EXPECT_EQ(CodeEntry::read("0.5*BEER").count, 0.5);
    EXPECT_EQ(CodeEntry::read("0,5*BEER").count, 0.5);
}

TEST(CodeEntry, NumberOfTheCode_IsNoCount)
{
    EXPECT_EQ(CodeEntry::read("4601234567893").code, "4601234567893");
    EXPECT_FALSE(CodeEntry::read("4601234567893").count);
}

TEST(CodeEntry, WhatIsNoCount_BelongsToTheCode)
{
    EXPECT_EQ(CodeEntry::read("1.2345*X").code, "1.2345*X");
    EXPECT_EQ(CodeEntry::read("A*B").code, "A*B");
    EXPECT_EQ(CodeEntry::read("*B").code, "*B");
}

TEST(CodeEntry, CountAlone_IsForATile)
{
    EXPECT_EQ(CodeEntry::countAlone("3"), 3.0);
    EXPECT_EQ(CodeEntry::countAlone("2,5*"), 2.5);
    EXPECT_FALSE(CodeEntry::countAlone("3*PET1"));
    EXPECT_FALSE(CodeEntry::countAlone("PET1"));
    EXPECT_FALSE(CodeEntry::countAlone(""));
}

} // namespace
