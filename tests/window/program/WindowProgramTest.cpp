#include "tests/till/console/ProgramFixture.h"

using testing::HasSubstr;

namespace {

//! What is wrong with the command line is told before there is a window.
class WindowProgram : public ProgramTest
{
protected:
    WindowProgram() { qputenv("QT_QPA_PLATFORM", "offscreen"); }

    //! What a program says that must refuse \a arguments. An unknown language is among them, so
    //! that no window opens where nothing else is wrong.
    std::string refusalOf(const QStringList &arguments) const
    {
        const RunResult refused = run(arguments + QStringList{"--lang", "xx"});
        EXPECT_EQ(refused.status, 2);
        return refused.err;
    }
};

TEST_F(WindowProgram, PluginInTwoWords_IsTheProgramsOption)
{
    EXPECT_THAT(refusalOf({"--plugin", "a.so", "--no-plugin"}),
                HasSubstr("--no-plugin: --plugin names one"));
    EXPECT_THAT(refusalOf({"--plugin=a.so", "--no-plugin"}),
                HasSubstr("--no-plugin: --plugin names one"));
}

TEST_F(WindowProgram, UnknownOption_IsNamed)
{
    EXPECT_THAT(refusalOf({"--datbase", "x"}), HasSubstr("Unknown option 'datbase'. Try --help."));
}

TEST_F(WindowProgram, OptionsOfTheToolkit_AreTheToolkits)
{
    EXPECT_THAT(refusalOf({"-style", "fusion", "--platform", "offscreen"}),
                HasSubstr("--lang: \"xx\" is none of"));
}

} // namespace
