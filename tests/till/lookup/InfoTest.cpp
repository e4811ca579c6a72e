#include "till/lookup/Info.h"

#include "tests/support/InstalledServices.h"
#include "tests/till/support/FolderTest.h"
#include "tests/till/support/Results.h"

#include <gmock/gmock.h>

// A plugin is described in a process that may have services of its own.

namespace till {

namespace {

class Info : public FolderTest
{
protected:
    //! The services of the process are those that it had.
    void areAsBefore() const
    {
        EXPECT_EQ(Singleton<Config>::instance, &config);
        EXPECT_EQ(Singleton<ActivityNotifier>::instance, &notifier);
    }

    static till::Setup of(const QString &plugin) { return {{}, {}, plugin, {}, {}}; }

    Config config;
    ActivityNotifier notifier;

private:
    const Installed<Config> m_config{&config};
    const Installed<ActivityNotifier> m_notifier{&notifier};
};

TEST_F(Info, Plugin_IsDescribedWithServicesThatGoAgain)
{
    const QString text = must(describePlugin(of(PACKAGINGCONTROL_PLUGIN_FILE)));
    EXPECT_THAT(text.toStdString(), testing::HasSubstr("events:   19 21 26 252"));
    areAsBefore();
}

TEST_F(Info, PluginThatCannotBeInitialised_LeavesTheServicesToo)
{
    EXPECT_NE(faultText(describePlugin(of(NOT_READY_PLUGIN))), QString());
    areAsBefore();
}

TEST_F(Info, PluginThatIsNotThere_LeavesTheServicesToo)
{
    EXPECT_NE(faultText(describePlugin(of(path("none.so")))), QString());
    areAsBefore();
}

} // namespace

} // namespace till
