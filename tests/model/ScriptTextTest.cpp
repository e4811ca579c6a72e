#include "tests/model/Command.h"
#include "tests/model/Shop.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

namespace {

using namespace model;

enum ArticleIndex { Beer = 0, Pet1 = 1, Sixpack = 10, Riddle = 12 };

std::string written(const std::vector<Command> &commands)
{
    std::ostringstream out;
    out << Script{7, false, commands};
    const std::string text = out.str();
    const std::string opening = "\nopen\n";
    return text.substr(text.find(opening) + opening.size());
}

Command command(Verb verb, int which = 0, double quantity = 1)
{
    Command made;
    made.verb = verb;
    made.which = which;
    made.quantity = quantity;
    return made;
}

TEST(ScriptText, Settings_ComeFirst)
{
    std::ostringstream out;
    out << Script{7, true, {}};
    EXPECT_EQ(out.str(),
              "\n# identifiers: 7\nset PackagingControl:allowSaleEmptyTara true\nopen\n");
}

TEST(ScriptText, Position_HasTheNumberThatItHasThen)
{
    EXPECT_EQ(written({command(Verb::Add, Beer, 0.5), command(Verb::Add, Pet1),
                       command(Verb::Storno, 2), command(Verb::Quantity, 5, 1.125)}),
              "add BEER 0.5\nadd PET1 1\nanswer yes\nstorno 1\nqty 2 1.125\n");
}

TEST(ScriptText, CommandWithoutAPositionToPick_IsLeftOut)
{
    EXPECT_EQ(written({command(Verb::Storno), command(Verb::Quantity), command(Verb::Restart)}),
              "restart\n");
}

TEST(ScriptText, PartsOfASplit_AreListed)
{
    Command split = command(Verb::Split);
    split.parts = {1, 0.5};
    EXPECT_EQ(written({command(Verb::Add, Beer, 3), split}), "add BEER 3\nsplit 1 1 0.5\n");
}

TEST(ScriptText, Union_NamesEachPositionOnce)
{
    Command unite = command(Verb::Unite);
    unite.other = 2;
    Command again = command(Verb::Unite, 1);
    again.other = 1;
    EXPECT_EQ(written({command(Verb::Add, Beer), command(Verb::Add, Beer), command(Verb::Add, Beer),
                       unite, again}),
              "add BEER 1\nadd BEER 1\nadd BEER 1\nunite 1 3\nunite 2 1\n");
}

TEST(ScriptText, Question_IsAnsweredWhenItIsAsked)
{
    EXPECT_EQ(written({command(Verb::Add, Pet1), command(Verb::Subtotal)}),
              "add PET1 1\nanswer no\nexpect refused subtotal\n");
}

TEST(ScriptText, RefusalOfTheRules_IsExpected)
{
    EXPECT_EQ(written({command(Verb::Add, Pet1), command(Verb::Add, Beer, 0.5),
                       command(Verb::Quantity, 0, 2), command(Verb::Quantity, 1, 0.25)}),
              "add PET1 1\nadd BEER 0.5\nexpect refused qty 1 2\nqty 2 0.25\n");
}

TEST(ScriptText, QuantityThatNeitherTheRulesNorTheTillTake_IsAMistake)
{
    EXPECT_EQ(written({command(Verb::Add, Pet1), command(Verb::Add, Beer, 0.5),
                       command(Verb::Quantity, 0, -1)}),
              "add PET1 1\nadd BEER 0.5\nexpect mistake qty 1 -1\n");
}

TEST(ScriptText, EmptyReceipt_CannotBePaid)
{
    EXPECT_EQ(written({command(Verb::Subtotal), command(Verb::Pay), command(Verb::Add, Beer)}),
              "expect refused subtotal\nexpect refused pay\nanswer yes\ncancel\nopen\n"
              "add BEER 1\n");
}

TEST(ScriptText, SecondOrder_IsAMistake)
{
    EXPECT_EQ(written({command(Verb::Order), command(Verb::Order), command(Verb::SoftCheck)}),
              "order 1\nexpect mistake order 2\nsoftcheck 3\n");
}

TEST(ScriptText, PaymentFromSubtotal_IsMarkedWhenTheTillWouldNotAsk)
{
    Command forbidden = command(Verb::Setting);
    Command allowed = forbidden;
    allowed.yes = true;
    const std::string setting = "set PackagingControl:allowSaleEmptyTara ";
    EXPECT_EQ(written({command(Verb::Add, Pet1), allowed, command(Verb::Subtotal), forbidden,
                       command(Verb::Pay)}),
              "add PET1 1\n" + setting + "true\nsubtotal\n" + setting
                  + "false\n"
                    "# the plugin is asked all the same; the cashier says no\npay\n");
    EXPECT_EQ(
        written({command(Verb::Add, Pet1), allowed, command(Verb::Subtotal), forbidden,
                 command(Verb::Add, Beer, 0.5), command(Verb::Add, Pet1), command(Verb::Pay)}),
        "add PET1 1\n" + setting + "true\nsubtotal\n" + setting
            + "false\n"
              "add BEER 0.5\nadd PET1 1\nanswer no\nexpect refused pay\n");
}

TEST(ScriptText, AcceptedPayment_OpensTheNextReceipt)
{
    EXPECT_EQ(written({command(Verb::Add, Beer), command(Verb::Pay), command(Verb::Add, Beer)}),
              "add BEER 1\npay\nopen\nadd BEER 1\n");
}

TEST(ScriptText, QuantityThatTheTillDoesNotTake_IsMarked)
{
    EXPECT_EQ(written({command(Verb::Restart), command(Verb::Add, Beer, -1)}),
              "restart\n# the till takes no such command: add BEER -1\n");
    EXPECT_EQ(written({command(Verb::Restart), command(Verb::Add, Beer, 0)}),
              "restart\n# the till takes no such command: add BEER 0\n");
    EXPECT_EQ(written({command(Verb::Restart), command(Verb::Add, Beer, 0.0625)}),
              "restart\n# the till takes no such command: add BEER 0.0625\n");
}

TEST(ScriptText, ScriptOfWhichNothingCanBeTyped_SaysSo)
{
    EXPECT_EQ(written({command(Verb::Add, Beer, -1), command(Verb::Forget)}),
              "# the till takes no such command: add BEER -1\n"
              "# the plugin is given no receipt\n"
              "# nothing of this can be typed at a till\n");
}

TEST(ScriptText, GreatestQuantityOfTheTill_IsNotMarked)
{
    EXPECT_EQ(written({command(Verb::Add, Beer, 999999.999), command(Verb::Quantity, 0, 1e6)}),
              "add BEER 999999.999\n# the till takes no such command: qty 1 1000000\n");
}

TEST(ScriptText, CommandThatTheTillRefuses_IsMarked)
{
    Command tooMuch = command(Verb::Split);
    tooMuch.parts = {2};
    EXPECT_EQ(written({command(Verb::Add, Beer), tooMuch}),
              "add BEER 1\n# the till takes no such command: split 1 2\n");
    EXPECT_EQ(written({command(Verb::Add, Beer), command(Verb::Unite)}),
              "add BEER 1\n# the till takes no such command: unite 1\n");
}

TEST(ScriptText, ArticleThatTheTillLacks_ComesWithItsRow)
{
    EXPECT_EQ(written({command(Verb::Add, Sixpack)}),
              "# catalogue: SIXPACK;SIXPACK;1,00;1;0.5;6;\nadd SIXPACK 1\n");
}

TEST(ScriptText, ArticleThatNoCatalogueOfTheTillHas_IsMarked)
{
    EXPECT_EQ(written({command(Verb::Restart), command(Verb::Add, Riddle)}),
              "restart\n# what no catalogue of the till has: RIDDLE;RIDDLE;1,00;1;no number;1;\n"
              "# the till takes no such command: add RIDDLE 1\n");
}

TEST(ScriptText, RefusalOfTheHost_IsCommentedOn)
{
    Command storno = command(Verb::Storno);
    storno.replies = static_cast<std::uint16_t>(Reply::Refuse);
    EXPECT_EQ(written({command(Verb::Add, Pet1), command(Verb::Add, Beer), storno}),
              "add PET1 1\nadd BEER 1\n# the host refuses when asked, time 1\n"
              "answer yes\nstorno 1\n");
}

TEST(Identifiers, OfARun_AreAllDifferentAndInNoOrder)
{
    std::set<std::string> seen;
    int rises = 0;
    std::string last;
    for (int number = 1; number <= 1000; ++number) {
        const std::string id = identifier(42, number);
        seen.insert(id);
        rises += last < id ? 1 : 0;
        last = id;
    }
    EXPECT_EQ(seen.size(), 1000U);
    EXPECT_GT(rises, 300);
    EXPECT_LT(rises, 700);
}

} // namespace
