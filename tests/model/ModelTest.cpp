#include "tests/model/RandomRun.h"

#include <gtest/gtest.h>

#include <QtCore/QLoggingCategory>

#include <cstdlib>
#include <iostream>

// The plugin beside a model of it, over receipts at random.
//
// MODEL_COMMANDS sets how many commands are tried; RC_PARAMS="seed=N" repeats a run.

namespace {

using namespace model;

#if defined(__SANITIZE_ADDRESS__)
constexpr bool isSanitized = true;
#elif defined(__has_feature)
#    if __has_feature(address_sanitizer)
constexpr bool isSanitized = true;
#    else
constexpr bool isSanitized = false;
#    endif
#else
constexpr bool isSanitized = false;
#endif

long wantedCommands()
{
    if (const char *const text = std::getenv("MODEL_COMMANDS"))
        return std::strtol(text, nullptr, 10);
    return isSanitized ? 100'000 : 1'000'000;
}

class Model : public testing::Test
{
protected:
    // A million lines of log are for nobody to read.
    Model() { QLoggingCategory::setFilterRules("packaging=false"); }
    ~Model() override { QLoggingCategory::setFilterRules({}); }
};

TEST_F(Model, ReceiptsAtRandom_PluginDoesWhatTheRulesSay)
{
    const std::uint64_t seed = configuredSeed();
    std::cout << "model: seed " << seed << std::endl;
    Tally tally;
    const std::string found =
        compareAtRandom([](RealHost &host) { return std::make_unique<RealPlugin>(host); }, seed,
                        wantedCommands(), tally);
    ASSERT_EQ(found, "");
    std::cout << "model: " << tally.commands << " commands, " << tally.receipts
              << " receipts, no difference" << std::endl;
}

// Plugins that are wrong on purpose: the comparison must not let them pass.

//! Forgets to save as soon as there are two goods.
class Forgetful : public RealPlugin
{
public:
    using RealPlugin::RealPlugin;
    void savePluginData() const override
    {
        if (packagingList.size() < 2)
            RealPlugin::savePluginData();
    }
};

//! Takes an over-full tara for a full one.
class Careless : public RealPlugin
{
public:
    using RealPlugin::RealPlugin;
    void modifyTaraCapacity(const QSharedPointer<TaraInfo> &tara, double newCapacity) override
    {
        RealPlugin::modifyTaraCapacity(tara, newCapacity);
        if (tara->freeCapacity < 0)
            tara->freeCapacity = 0;
    }
};

//! Hides that the goods could not be changed.
class Mute : public RealPlugin
{
public:
    using RealPlugin::RealPlugin;
    bool modifyPackagingPositionQuantity(const QSharedPointer<PackagingInfo> &info,
                                         double quantityDelta) override
    {
        RealPlugin::modifyPackagingPositionQuantity(info, quantityDelta);
        return true;
    }
};

//! Asks about empty tara and then goes on, also when a storno failed.
class Stubborn : public RealPlugin
{
public:
    using RealPlugin::RealPlugin;
    bool stornoAllEmptyTara(const control::Action &action) override
    {
        RealPlugin::stornoAllEmptyTara(action);
        return true;
    }
};

template <typename Plugin>
class BrokenPlugin : public Model
{
};
using BrokenPlugins = testing::Types<Forgetful, Careless, Mute, Stubborn>;
TYPED_TEST_SUITE(BrokenPlugin, BrokenPlugins);

TYPED_TEST(BrokenPlugin, ReceiptsAtRandom_FindItWithAScriptAndASeed)
{
    constexpr long plenty = 200'000;
    Tally tally;
    const std::string found =
        compareAtRandom([](RealHost &host) { return std::make_unique<TypeParam>(host); },
                        configuredSeed(), plenty, tally);
    EXPECT_NE(found.find("\nadd "), std::string::npos) << found;
    EXPECT_NE(found.find("\nthe plugin:\n"), std::string::npos) << found;
    EXPECT_NE(found.find("\nto find it again: RC_PARAMS=\"seed="), std::string::npos) << found;
}

} // namespace
