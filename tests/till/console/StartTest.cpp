#include "tests/till/console/ProgramFixture.h"

// Files that the program cannot use: exit status 3 and an error that says which and why.

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class Start : public ProgramTest
{
protected:
    //! Opens the register, which must fail for \a file.
    void fails(const QStringList &arguments, const QString &file, const char *reason) const
    {
        for (const QStringList &mode : {QStringList(), {"play", write("s.till", "say\n")}}) {
            const RunResult failed = run(arguments + mode);
            EXPECT_EQ(failed.status, 3);
            EXPECT_THAT(failed.err, StartsWith("till: "));
            EXPECT_THAT(failed.err, HasSubstr(file.toStdString()));
            EXPECT_THAT(failed.err, HasSubstr(reason));
            EXPECT_EQ(std::count(failed.err.begin(), failed.err.end(), '\n'), 1) << failed.err;
        }
    }
};

TEST_F(Start, MissingPlugin_IsNamed)
{
    fails({"--plugin", "/nowhere/P.so"}, "/nowhere/P.so", "no such file");
}

TEST_F(Start, BrokenPlugin_IsNamed)
{
    const QString text = write("P.so", "no library at all\n");
    fails({"--plugin", text}, text, "expected a shared library");
    EXPECT_EQ(run({"info", "--plugin", text}).status, 3);
}

TEST_F(Start, MissingCatalogue_IsNamed)
{
    fails({"--catalogue", "/nowhere/c.csv"}, "/nowhere/c.csv", "no such file");
}

TEST_F(Start, BadRow_IsNamedWithLineAndColumn)
{
    const QString catalogue = write("c.csv", "code;name;price;tara mode;tara capacity;pack;unit\n"
                                             "A;A;1;0;;1;pc\nB;B;dear;0;;1;pc\n");
    fails({"--catalogue", catalogue}, catalogue + ":3: column 3", "\"dear\"");
}

TEST_F(Start, PluginThatIsNotReady_IsNamed)
{
    fails({"--plugin", NOT_READY_PLUGIN}, NOT_READY_PLUGIN, "init() answers false");
}

TEST_F(Start, MissingSettings_AreNamed)
{
    fails({"--config", "/nowhere/s.ini"}, "/nowhere/s.ini", "");
}

TEST_F(Start, MissingScript_IsNamed)
{
    const RunResult failed = run({"play", "/nowhere/s.till"});
    EXPECT_EQ(failed.status, 3);
    EXPECT_EQ(failed.err, "till: /nowhere/s.till: No such file or directory\n");
}

TEST_F(Start, FileThatIsNoDatabase_IsNamed)
{
    const QString other = write("letter.txt", "Dear shop,\n");
    fails({"--db", other}, other, "not a database of the till");
}

TEST_F(Start, Trace_ThatCannotBeMade_IsNamed)
{
    fails({"--trace", "/nowhere/t"}, "/nowhere/t", "No such file");
}

TEST_F(Start, Trace_OnAFullDisk_IsReported)
{
    const RunResult full = run({"--trace", "/dev/full", "play", write("s.till", "open\n")});
    EXPECT_EQ(full.status, 3);
    EXPECT_EQ(full.err, "till: /dev/full: No space left on device\n");
}

TEST_F(Start, Trace_OnAFullDisk_IsReportedBesideAScriptThatFailed)
{
    const RunResult full = run({"--trace", "/dev/full", "play", write("s.till", "storno 1\n")});
    EXPECT_EQ(full.status, 1);
    EXPECT_THAT(full.err, HasSubstr("s.till:1: storno 1: "));
    EXPECT_THAT(full.err, HasSubstr("till: /dev/full: No space left on device\n"));
}

TEST_F(Start, Fault_InAFileWithALineBreakInItsName_IsOneLine)
{
    EXPECT_THAT(run({"play", path("a\nb.till")}).err,
                EndsWith("/a b.till: No such file or directory\n"));
}

} // namespace
