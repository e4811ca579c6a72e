#include "tests/till/support/TillFixture.h"

#include <cmath>

// What no line can say, but a front can put into a command.

namespace till {

namespace {

struct Wrong
{
    const char *name;
    Command command;
    const char *text;
};

void PrintTo(const Wrong &wrong, std::ostream *out)
{
    *out << '"' << toText(wrong.command).toStdString() << '"';
}

class CommandValue : public TillTest, public testing::WithParamInterface<Wrong>
{
};

TEST_P(CommandValue, Wrong_IsAMistakeAndChangesNothing)
{
    done({"open", "add CHIPS 3", "add CHIPS"});
    const ReceiptRecord before = receipt()->record();
    const Outcome outcome = till->cashRegister().carryOut(GetParam().command);
    EXPECT_EQ(outcome.kind, Outcome::Mistake);
    EXPECT_EQ(outcome.text(Translator("en")).toStdString(), GetParam().text);
    EXPECT_EQ(receipt()->record(), before);
}

const double nan = std::nan("");
constexpr const char *tooMany = "the quantity must not be above 999999.999";
constexpr const char *notAbove0 = "each part must be above 0";

INSTANTIATE_TEST_SUITE_P(
    Each, CommandValue,
    testing::Values(Wrong{"AddNoNumber", command::Add{"CHIPS", nan}, tooMany},
                    Wrong{"AddNoCode", command::Add{}, "no article \"\" in the catalogue"},
                    Wrong{"AddEndless", command::Add{"CHIPS", HUGE_VAL}, tooMany},
                    Wrong{"QtyNoNumber", command::ChangeCount{1, nan}, tooMany},
                    Wrong{"QtyNoPosition", command::ChangeCount{-1, 1},
                          "the receipt has no position -1"},
                    Wrong{"SplitNoNumber", command::Split{1, {nan}}, notAbove0},
                    Wrong{"SplitNoParts", command::Split{1, {}}, "at least one part must be named"},
                    Wrong{"UniteNone", command::Unite{}, "at least two positions must be named"},
                    Wrong{"UniteOne", command::Unite{{1}}, "at least two positions must be named"},
                    Wrong{"Order", command::AttachOrder{}, "the order has no number"},
                    Wrong{"SoftCheck", command::AddSoftCheck{}, "the soft-check has no number"}),
    [](const auto &wrong) { return wrong.param.name; });

} // namespace

} // namespace till
