#include "tests/support/Printers.h"
#include "tests/support/QtLines.h"

#include "host/Config.h"

#include <gtest/gtest.h>

#include <QtCore/QStringList>

namespace {

const QString key = QStringLiteral("PackagingControl:allowSaleEmptyTara");

TEST(Config, KeyInOtherLetters_IsAnotherKey)
{
    Config config;
    config.set(key.toLower(), true);

    EXPECT_FALSE(config.getBool(key, false));
}

TEST(Config, SetAgain_ReplacesTheValue)
{
    Config config;
    config.set(key, true);
    config.set(key, false);

    EXPECT_FALSE(config.getBool(key, true));
}

TEST(Config, Reading_DoesNotKeepTheDefault)
{
    const Config config;
    config.getBool(key, true);

    EXPECT_FALSE(config.getBool(key, false));
}

TEST(Config, TwoObjects_KnowNothingOfEachOther)
{
    Config config;
    config.set(key, false);

    EXPECT_TRUE(Config().getBool(key, true));
}

struct Spelling
{
    QVariant value;
    bool meaning;
};

class ConfigSpelling : public testing::TestWithParam<Spelling>
{
};

TEST_P(ConfigSpelling, KnownSpelling_OverrulesTheDefault)
{
    const QtLines warnings;
    Config config;
    config.set(key, GetParam().value);

    EXPECT_EQ(config.getBool(key, true), GetParam().meaning);
    EXPECT_EQ(config.getBool(key, false), GetParam().meaning);
    EXPECT_EQ(warnings(), QStringList());
}

INSTANTIATE_TEST_SUITE_P(True, ConfigSpelling,
                         testing::Values(Spelling{"true", true}, Spelling{"TRUE", true},
                                         Spelling{"True", true}, Spelling{"yes", true},
                                         Spelling{"YES", true}, Spelling{"on", true},
                                         Spelling{"On", true}, Spelling{"1", true},
                                         Spelling{true, true}, Spelling{1, true}));

INSTANTIATE_TEST_SUITE_P(False, ConfigSpelling,
                         testing::Values(Spelling{"false", false}, Spelling{"FALSE", false},
                                         Spelling{"False", false}, Spelling{"no", false},
                                         Spelling{"NO", false}, Spelling{"off", false},
                                         Spelling{"Off", false}, Spelling{"0", false},
                                         Spelling{false, false}, Spelling{0, false}));

class ConfigMisspelling : public testing::TestWithParam<QVariant>
{
};

TEST_P(ConfigMisspelling, UnknownSpelling_IsTheDefault)
{
    const QtLines warnings;
    Config config;
    config.set(key, GetParam());

    EXPECT_TRUE(config.getBool(key, true));
    EXPECT_FALSE(config.getBool(key, false));
}

TEST_P(ConfigMisspelling, UnknownSpelling_IsWarnedAboutWithItsKey)
{
    const QtLines warnings;
    Config config;
    config.set(key, GetParam());

    config.getBool(key, true);

    ASSERT_EQ(warnings().size(), 1);
    EXPECT_TRUE(warnings()[0].contains(key)) << warnings()[0].toStdString();
    EXPECT_TRUE(warnings()[0].contains(GetParam().toString()));
}

INSTANTIATE_TEST_SUITE_P(Each, ConfigMisspelling,
                         testing::Values(QVariant("maybe"), QVariant(""), QVariant("2"),
                                         QVariant(-1), QVariant("truetrue"), QVariant("да"),
                                         QVariant("tru"), QVariant()));

} // namespace
