#include "till/words/RegisterWords.h"
#include "till/words/Words.h"

#include <gtest/gtest.h>

#include <ostream>

// A command's text, which the script language reads back.

namespace till {

namespace {

struct Written
{
    const char *name;
    Command command;
    const char *text;
};

void PrintTo(const Written &written, std::ostream *out)
{
    *out << written.text;
}

class CommandText : public testing::TestWithParam<Written>
{
};

TEST_P(CommandText, Command_IsWrittenAsTyped)
{
    EXPECT_EQ(toText(GetParam().command).toStdString(), GetParam().text);
}

TEST_P(CommandText, Text_IsReadBack)
{
    const auto words = splitWords(toText(GetParam().command));
    ASSERT_TRUE(words.has_value());
    const ReadCommand read = readCommand(*words);
    ASSERT_TRUE(read);
    EXPECT_TRUE(*read == GetParam().command);
}

INSTANTIATE_TEST_SUITE_P(
    Each, CommandText,
    testing::Values(Written{"Open", command::Open{}, "open sale"},
                    Written{"OpenReturn", command::Open{Document::Return}, "open return"},
                    Written{"Add", command::Add{"CHIPS"}, "add CHIPS 1"},
                    Written{"AddSpaces", command::Add{"A  b", 0.125}, "add \"A  b\" 0.125"},
                    Written{"AddQuote", command::Add{"3\" pipe", 2}, "add \"3\"\"\" pipe\" 2"},
                    Written{"AddQuotes", command::Add{"\"a b\"", 2}, "add \"\"\"\"a b\"\"\"\" 2"},
                    Written{"AddInch", command::Add{"3\"", 2}, "add 3\"\"\" 2"},
                    Written{"Qty", command::ChangeCount{2, 1.5}, "qty 2 1.5"},
                    Written{"QtyNothing", command::ChangeCount{12, 0}, "qty 12 0"},
                    Written{"Storno", command::Storno{3}, "storno 3"},
                    Written{"Split", command::Split{3, {0.5, 1}}, "split 3 0.5 1"},
                    Written{"Unite", command::Unite{{3, 1, 2}}, "unite 3 1 2"},
                    Written{"Order", command::AttachOrder{"A-7"}, "order A-7"},
                    Written{"OrderComment", command::AttachOrder{"#7"}, "order #7"},
                    Written{"SoftCheck", command::AddSoftCheck{"8 b"}, "softcheck \"8 b\""},
                    Written{"Subtotal", command::Subtotal{}, "subtotal"},
                    Written{"Pay", command::Pay{}, "pay"},
                    Written{"PayMoney", command::Pay{15005}, "pay 150.05"},
                    Written{"Cancel", command::Cancel{}, "cancel"}),
    [](const auto &written) { return written.param.name; });

TEST(CommandTextOf, CountThatCannotBeTyped_IsWrittenAsItIs)
{
    EXPECT_EQ(toText(command::Add{"A", 1.0 / 3}), "add A 0.3333333333333333");
    EXPECT_EQ(toText(command::ChangeCount{1, 0.0004}), "qty 1 0.0004");
    EXPECT_EQ(toText(command::Split{1, {1e9, 0.5}}), "split 1 1000000000 0.5");
}

TEST(Words, Joined_AreSplitAgain)
{
    const QStringList words{"add", "a  b", "\"", "3\" pipe", "#1", "x\ty"};
    EXPECT_EQ(splitWords(joinWords(words)), words);
}

TEST(CommandTable, EachCommand_HasARow)
{
    EXPECT_EQ(registerWords().size(), std::variant_size_v<Command>);
}

} // namespace

} // namespace till
