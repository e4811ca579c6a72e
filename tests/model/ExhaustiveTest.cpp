#include "tests/model/Exhaustive.h"
#include "tests/model/BrokenPlugins.h"
#include "tests/model/Difference.h"
#include "tests/model/QuietLog.h"
#include "tests/support/Chance.h"

#include <gtest/gtest.h>

#include <QtCore/QElapsedTimer>

#include <iostream>

// Every short sequence of commands: what chance may leave out for years.

namespace {

using namespace model;

class EverySequence : public testing::Test
{
    QuietLog quiet;
};

class EverySequenceAfter : public EverySequence,
                           public testing::WithParamInterface<std::vector<Command>>
{
};

TEST_P(EverySequenceAfter, AnOpening_PluginDoesWhatTheRulesSay)
{
    const int longest = testEffort() < 10 ? 3 : 4;
    QElapsedTimer timer;
    timer.start();
    Exhaustive exhaustive(make<RealPlugin>, smallAlphabet());
    ASSERT_EQ(exhaustive.compare(GetParam(), longest), "");
    std::cout << "model: " << exhaustive.sequences() << " sequences of up to " << longest
              << " commands in " << timer.elapsed() / 1000.0 << " s, no difference" << std::endl;
}

// A suite of its own each, so that they run side by side.
INSTANTIATE_TEST_SUITE_P(Nothing, EverySequenceAfter, testing::Values(std::vector<Command>()));
INSTANTIATE_TEST_SUITE_P(SharedTara, EverySequenceAfter, testing::Values(sharedOpening()));

TEST_F(EverySequence, BeginningThatIsShared_LeadsWhereItLedAlone)
{
    const auto alphabet = smallAlphabet();
    for (const Command &between : alphabet) {
        RealHost real(7, false, make<RealPlugin>);
        ModelHost expected(7, false);
        for (const Command &command : sharedOpening()) {
            real.run(command);
            expected.run(command);
        }
        const RealHost::Moment moment = real.moment();
        real.run(between);
        real.run(between);
        real.returnTo(moment);
        // The model never left, and so knows what the other has to be like.
        real.journal.clear();
        expected.journal().clear();
        ASSERT_EQ(difference(real, expected), "");
        for (const Command &command : alphabet) {
            real.run(command);
            expected.run(command);
            ASSERT_EQ(difference(real, expected), "");
        }
    }
}

template <typename Plugin>
class BrokenInTheSmall : public EverySequence
{
};
using BrokenPlugins = testing::Types<Forgetful<RealPlugin>, Careless<RealPlugin>, Mute<RealPlugin>,
                                     Stubborn<RealPlugin>>;
TYPED_TEST_SUITE(BrokenInTheSmall, BrokenPlugins);

TYPED_TEST(BrokenInTheSmall, EverySequence_FindsItWithAScript)
{
    Exhaustive exhaustive(make<TypeParam>, smallAlphabet());
    const std::string found = exhaustive.compare(sharedOpening(), 3);
    EXPECT_NE(found.find("\nadd DARK 1\n"), std::string::npos) << found;
    EXPECT_NE(found.find("\nthe plugin:\n"), std::string::npos) << found;
}

} // namespace
