#include "tests/model/BrokenPlugins.h"
#include "tests/model/QuietLog.h"
#include "tests/model/RandomRun.h"
#include "tests/support/Chance.h"

#include <QtCore/QRegularExpression>

#include <gtest/gtest.h>

#include <iostream>

// The plugin beside a model of it, over receipts at random.

namespace {

using namespace model;

class Model : public testing::Test
{
    QuietLog quiet;
};

TEST_F(Model, ReceiptsAtRandom_PluginDoesWhatTheRulesSay)
{
    const long wanted = 100'000L * testEffort();
    Tally tally;
    const std::string found = compareAtRandom(make<RealPlugin>, testSeed(), wanted, tally);
    ASSERT_EQ(found, "");
    std::cout << "model: " << tally.commands << " commands, " << tally.receipts
              << " receipts, no difference, seed " << testSeed() << std::endl;
}

template <typename Plugin>
class BrokenPlugin : public Model
{
};
using BrokenPlugins = testing::Types<Forgetful<RealPlugin>, Careless<RealPlugin>, Mute<RealPlugin>,
                                     Stubborn<RealPlugin>>;
TYPED_TEST_SUITE(BrokenPlugin, BrokenPlugins);

TYPED_TEST(BrokenPlugin, ReceiptsAtRandom_FindItWithAScriptAndASeed)
{
    constexpr long plenty = 200'000;
    Tally tally;
    const std::string found = compareAtRandom(make<TypeParam>, testSeed(), plenty, tally);

    // Something to type, or the remark that there is nothing; then what each of the two did.
    const QString told = QString::fromStdString(found);
    const QString script = told.section("\nRC_FAIL", 0, 0).section("\nopen\n", 1);
    const QRegularExpression typed(
        QStringLiteral("^([a-z]|# nothing of this can be typed at a till$)"),
        QRegularExpression::MultilineOption);
    EXPECT_TRUE(typed.match(script).hasMatch()) << found;
    EXPECT_NE(found.find("\nthe plugin:\n"), std::string::npos) << found;
    EXPECT_NE(found.find("\nthe model:\n"), std::string::npos) << found;

    const QRegularExpressionMatch seed =
        QRegularExpression(QStringLiteral("\nto find it again: TEST_SEED=(\\d+)")).match(told);
    ASSERT_TRUE(seed.hasMatch()) << found;
    Tally second;
    const quint64 again = seed.captured(1).toULongLong();
    EXPECT_EQ(compareAtRandom(make<TypeParam>, again, 1, second), found);
}

} // namespace
