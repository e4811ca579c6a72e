#include "till/view/DisplayText.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

namespace {

struct Width
{
    const char *text;
    int columns;
};

void PrintTo(const Width &width, std::ostream *out)
{
    *out << width.text;
}

class DisplayWidth : public testing::TestWithParam<Width>
{
};

TEST_P(DisplayWidth, Text_TakesSoManyColumns)
{
    EXPECT_EQ(till::displayWidth(GetParam().text), GetParam().columns);
}

INSTANTIATE_TEST_SUITE_P(Texts, DisplayWidth,
                         testing::Values(Width{"", 0}, Width{"beer", 4}, Width{"Пиво №1", 7},
                                         Width{"…─«»", 4}, Width{"и\u0306", 1},
                                         Width{"\u0435\u0308\u0301", 1}, Width{"漢字", 4},
                                         Width{"한", 2}, Width{"Ａ", 2}, Width{"🍺", 2},
                                         Width{"𝔸", 1}, Width{"a\u200db", 2}));

TEST(Elided, TextThatFits_StaysAsItIs)
{
    EXPECT_EQ(till::elided("Пиво", 4), "Пиво");
}

TEST(Elided, TextOneTooLong_EndsInAnEllipsis)
{
    EXPECT_EQ(till::elided("Пиво", 3), "Пи…");
}

TEST(Elided, CombiningMarks_StayWithTheirLetter)
{
    EXPECT_EQ(till::elided("И\u0306И\u0306И\u0306И\u0306", 3), "И\u0306И\u0306…");
}

TEST(Elided, WideSignThatHasNoRoom_IsLeftOut)
{
    EXPECT_EQ(till::elided("漢字漢字", 4), "漢…");
}

TEST(Elided, SignOutsideTheBasicPlane_IsNotCutInTwo)
{
    EXPECT_EQ(till::elided("🍺🍺🍺", 4), "🍺…");
}

struct Wrapping
{
    const char *text;
    const char *inTenColumns;
};

void PrintTo(const Wrapping &wrapping, std::ostream *out)
{
    *out << wrapping.text;
}

class Wrapped : public testing::TestWithParam<Wrapping>
{
};

TEST_P(Wrapped, Text_IsBrokenAtBlanks)
{
    EXPECT_EQ(till::wrapped(GetParam().text, 10), GetParam().inTenColumns);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, Wrapped,
    testing::Values(Wrapping{"", ""}, Wrapping{"ten signs.", "ten signs."},
                    Wrapping{"eleven sign", "eleven\nsign"},
                    Wrapping{"  in the margin", "  in the\n  margin"},
                    Wrapping{"! Тара частично", "! Тара\n  частично"},
                    Wrapping{"one line\nand another one\n", "one line\nand\nanother\none\n"},
                    Wrapping{"a wordlongerthanaline b", "a\nwordlongerthanaline\nb"},
                    Wrapping{"a     b", "a     b"}, Wrapping{"aaaaaaaa      b", "aaaaaaaa  \nb"},
                    Wrapping{"漢字漢字 漢字", "漢字漢字\n漢字"},
                    Wrapping{"\x1b[1mten signs.\x1b[0m", "\x1b[1mten signs.\x1b[0m"},
                    Wrapping{"\x1b[31meleven sign\x1b[0m", "\x1b[31meleven\nsign\x1b[0m"}));

TEST(DisplayWidth, JoinedSigns_TakeTheColumnsOfOne)
{
    EXPECT_EQ(till::displayWidth("👨\u200d👩\u200d👧"), 2);
    EXPECT_EQ(till::displayWidth("👍🏽"), 2);
    EXPECT_EQ(till::displayWidth("🇩🇪"), 2);
    EXPECT_EQ(till::displayWidth("❤\ufe0f"), 2);
    EXPECT_EQ(till::displayWidth("é"), 1);
    EXPECT_EQ(till::displayWidth("e\u0301\u0323"), 1);
}

TEST(Elided, JoinedSigns_AreNotCutInTwo)
{
    EXPECT_EQ(till::elided("👨\u200d👩\u200d👧👨\u200d👩\u200d👧ab", 4), "👨\u200d👩\u200d👧…");
}

TEST(Printable, Joiners_Stay)
{
    EXPECT_EQ(till::printable("👨\u200d👩"), "👨\u200d👩");
}

TEST(Aligned, ShortText_GetsSpacesByItsColumns)
{
    EXPECT_EQ(till::leftAligned("и\u0306漢", 5), "и\u0306漢  ");
    EXPECT_EQ(till::rightAligned("и\u0306漢", 5), "  и\u0306漢");
}

TEST(Aligned, LongText_StaysAsItIs)
{
    EXPECT_EQ(till::leftAligned("Пиво", 3), "Пиво");
    EXPECT_EQ(till::rightAligned("Пиво", 3), "Пиво");
}

TEST(Printable, LetterAndMarks_StayAsTheyAre)
{
    EXPECT_EQ(till::printable("Пиво «И\u0306» 漢 🍺 №1"), "Пиво «И\u0306» 漢 🍺 №1");
}

TEST(Printable, ControlCharacters_BecomeSpaces)
{
    EXPECT_EQ(till::printable("a\x1b[1mb\tc\nd\re\x7f"
                              "f\u009bg\u2028h"),
              "a [1mb c d e f g h");
}

TEST(Printable, FormatCharacters_GoAway)
{
    EXPECT_EQ(till::printable("a\u202eb\u200bc"), "abc");
}

} // namespace
