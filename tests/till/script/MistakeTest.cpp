#include "tests/till/support/TillFixture.h"

// Every mistake names what is wrong, and changes nothing.

namespace till {

namespace {

//! What is said of \a line.
struct Mistake
{
    const char *name;
    const char *line;
    const char *text;
};

void PrintTo(const Mistake &mistake, std::ostream *out)
{
    *out << '"' << mistake.line << '"';
}

std::string nameOfMistake(const testing::TestParamInfo<Mistake> &info)
{
    return info.param.name;
}

//! Before a receipt is opened.
class WithoutReceipt : public TillTest, public testing::WithParamInterface<Mistake>
{
};

TEST_P(WithoutReceipt, Command_SaysWhatIsWrong)
{
    EXPECT_EQ(mistake(GetParam().line).toStdString(), GetParam().text);
    EXPECT_EQ(receipt(), nullptr);
}

constexpr const char *noReceipt = "no receipt is open";

INSTANTIATE_TEST_SUITE_P(
    Mistakes, WithoutReceipt,
    testing::Values(
        Mistake{"Add", "add CHIPS", noReceipt}, Mistake{"Qty", "qty 1 1", noReceipt},
        Mistake{"Storno", "storno 1", noReceipt}, Mistake{"Split", "split 1 1", noReceipt},
        Mistake{"Unite", "unite 1 2", noReceipt}, Mistake{"Order", "order 1", noReceipt},
        Mistake{"SoftCheck", "softcheck 1", noReceipt}, Mistake{"Subtotal", "subtotal", noReceipt},
        Mistake{"Pay", "pay", noReceipt}, Mistake{"PayMoney", "pay 5", noReceipt},
        Mistake{"Cancel", "cancel", noReceipt}, Mistake{"Show", "show", "no receipt was opened"},
        Mistake{"OpenWhat", "open sales", "\"sales\" is none of: sale, return"}),
    nameOfMistake);

//! In a receipt of a can, beer in it, crisps, and a stornoed opener.
class WithReceipt : public TillTest, public testing::WithParamInterface<Mistake>
{
protected:
    WithReceipt()
    {
        done({"open", "add CAN3", "add BEER 2", "add CHIPS 3", "add OPENER", "answer yes",
              "storno 4", "softcheck S1"});
    }
};

TEST_P(WithReceipt, Mistake_IsNamedAndChangesNothing)
{
    const ReceiptRecord before = receipt()->record();
    EXPECT_EQ(mistake(GetParam().line).toStdString(), GetParam().text);
    EXPECT_EQ(receipt()->record(), before);
}

constexpr const char *notANumber = " is not a number with at most three decimals (1.5 or 1,5)";
const std::string word = "\"many\"";
const std::string many = word + notANumber;
const std::string fourDecimals = std::string("\"1.0005\"") + notANumber;

INSTANTIATE_TEST_SUITE_P(
    Words, WithReceipt,
    testing::Values(
        Mistake{"Command", "ad CHIPS", "no command \"ad\"; did you mean 'add'?"},
        Mistake{"OpenQuote", "add \"CHIPS", "a quote is not closed"},
        Mistake{"AddArticle", "add SOAP", "no article \"SOAP\" in the catalogue"},
        Mistake{"AddNearArticle", "add can3",
                "no article \"can3\" in the catalogue; did you mean 'CAN3'?"},
        Mistake{"AddQuantity", "add CHIPS many", many.c_str()},
        Mistake{"AddFourDecimals", "add CHIPS 1.0005", fourDecimals.c_str()},
        Mistake{"AddTooManyWords", "add CHIPS 1 2", "usage: add ARTICLE [QUANTITY]"},
        Mistake{"AddTooFewWords", "add", "usage: add ARTICLE [QUANTITY]"},
        Mistake{"QtyPosition", "qty one 1", "\"one\" is not a position number"},
        Mistake{"QtyNegativePosition", "qty -1 1", "\"-1\" is not a position number"},
        Mistake{"QtyQuantity", "qty 1 many", many.c_str()},
        Mistake{"QtyTooFewWords", "qty 1", "usage: qty POSITION QUANTITY"},
        Mistake{"StornoPosition", "storno all", "\"all\" is not a position number"},
        Mistake{"StornoTooFewWords", "storno", "usage: storno POSITION"},
        Mistake{"SplitPosition", "split it 1", "\"it\" is not a position number"},
        Mistake{"SplitPart", "split 3 1 many", many.c_str()},
        Mistake{"SplitTooFewWords", "split 3", "usage: split POSITION PART..."},
        Mistake{"UnitePosition", "unite 2 both", "\"both\" is not a position number"},
        Mistake{"UniteTooFewWords", "unite 2", "usage: unite POSITION POSITION..."},
        Mistake{"PayMoney", "pay 5.005", "\"5.005\" is not an amount of money (12.50 or 12,50)"},
        Mistake{"PayTooMuch", "pay 99999999999999",
                "\"99999999999999\" is more than 999999999999.99, the greatest amount of money"},
        Mistake{"PayNegative", "pay -5", "\"-5\" is not an amount of money (12.50 or 12,50)"},
        Mistake{"AnswerWord", "answer yes maybe", "\"maybe\" is none of: yes, no"},
        Mistake{"HelpCommand", "help ad", "no command \"ad\"; did you mean 'add'?"},
        Mistake{"SubtotalWords", "subtotal now", "usage: subtotal"},
        Mistake{"SetTooFewWords", "set KEY", "usage: set [KEY VALUE]"}),
    nameOfMistake);

INSTANTIATE_TEST_SUITE_P(
    Receipt, WithReceipt,
    testing::Values(
        Mistake{"OpenTwice", "open", "a receipt is open already: pay or cancel it first"},
        Mistake{"AddNothing", "add CHIPS 0", "the quantity must be above 0"},
        Mistake{"AddNegative", "add CHIPS -1", "the quantity must be above 0"},
        Mistake{"QtyNegative", "qty 3 -1", "the quantity must not be below 0"},
        Mistake{"QtyUnknown", "qty 9 1", "the receipt has no position 9"},
        Mistake{"QtyStornoed", "qty 4 1", "position 4 is stornoed"},
        Mistake{"StornoUnknown", "storno 9", "the receipt has no position 9"},
        Mistake{"StornoStornoed", "storno 4", "position 4 is stornoed"},
        Mistake{"SplitUnknown", "split 9 1", "the receipt has no position 9"},
        Mistake{"SplitStornoed", "split 4 1", "position 4 is stornoed"},
        Mistake{"SplitNothing", "split 3 0", "each part must be above 0"},
        Mistake{"SplitTooMuch", "split 3 1 2.001", "position 3 holds less than the parts"},
        Mistake{"UniteUnknown", "unite 2 9", "the receipt has no position 9"},
        Mistake{"UniteStornoed", "unite 4 3", "position 4 is stornoed"},
        Mistake{"UniteTwice", "unite 2 2", "position 2 is named twice"},
        Mistake{"UniteOthers", "unite 2 3", "positions 2 and 3 are of different articles"},
        Mistake{"SoftCheckTwice", "softcheck S1", "the receipt has soft-check S1 already"}),
    nameOfMistake);

constexpr const char *tooMany = "the quantity must not be above 999999.999";

INSTANTIATE_TEST_SUITE_P(Limits, WithReceipt,
                         testing::Values(Mistake{"Add", "add CHIPS 1000000", tooMany},
                                         Mistake{"Qty", "qty 3 1000000", tooMany},
                                         Mistake{"QtyLongest", "qty 3 999999999", tooMany}),
                         nameOfMistake);

class Twice : public TillTest
{
};

TEST_F(Twice, SecondOrder_IsAMistake)
{
    done({"open", "order A"});
    EXPECT_EQ(mistake("order B"), QString("the receipt has order A already"));
    EXPECT_EQ(receipt()->getOrder()->number, QString("A"));
}

TEST_F(Twice, ClosedReceipt_TakesNoCommands)
{
    done({"open", "add CHIPS", "pay"});
    for (const QString line : {"add CHIPS", "qty 1 2", "storno 1", "pay", "subtotal", "cancel"})
        EXPECT_EQ(mistake(line).toStdString(), noReceipt) << line.toStdString();
    done({"show"});
}

} // namespace

} // namespace till
