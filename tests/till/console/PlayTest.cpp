#include "tests/till/console/ProgramFixture.h"

#include <QtCore/QDir>

// Many scripts in one run.

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

class Play : public ProgramTest
{
protected:
    //! Writes a script into a folder of the test's.
    QString script(const QString &name, const QByteArray &text) const
    {
        EXPECT_TRUE(QDir().mkpath(path(name.section('/', 0, -2))));
        return write(name, text);
    }
    //! Plays with \a arguments, quietly and in English.
    RunResult played(const QStringList &arguments, const QByteArray &input = {}) const
    {
        return run(QStringList{"--lang", "en", "--quiet", "play"} + arguments, input);
    }

    const QByteArray good = "open\nadd CHIPS\nexpect total 129.90\nexpect positions 1\n";
    const QByteArray bad = "open\nadd CHOPS\n";
};

TEST_F(Play, ManyScripts_ShowProgressAndStartAnew)
{
    const QString one = script("s.till", "expect state none\nopen\n");
    const RunResult done = played({one, one});
    EXPECT_EQ(done.status, 0) << done.err;
    EXPECT_EQ(done.out, "[1/2] s.till\n[2/2] s.till\n2 of 2 scripts held; expectations: 2\n");
}

TEST_F(Play, Folder_StandsForTheScriptsBelow)
{
    script("all/b.till", good);
    script("all/a/deep/c.till", good);
    script("all/a/notes.txt", bad);
    const RunResult done = played({path("all"), script("z.till", good)});
    EXPECT_EQ(done.status, 0) << done.err;
    EXPECT_EQ(done.out, "[1/3] c.till\n[2/3] b.till\n[3/3] z.till\n"
                        "3 of 3 scripts held; expectations: 6\n");
}

TEST_F(Play, FolderWithoutScripts_IsSaid)
{
    ASSERT_TRUE(QDir().mkdir(path("none")));
    const RunResult none = played({script("s.till", good), path("none")});
    EXPECT_EQ(none.status, 3);
    EXPECT_EQ(none.out, "");
    EXPECT_EQ(none.err, "till: " + path("none").toStdString() + ": no scripts there\n");
}

TEST_F(Play, Dash_IsStandardInput)
{
    EXPECT_EQ(played({"-"}, good).out, "[1/1] -\n1 of 1 scripts held; expectations: 2\n");
    const RunResult failed = played({"-"}, bad);
    EXPECT_EQ(failed.status, 1);
    EXPECT_EQ(failed.err, "till: -:2: add CHOPS: no article \"CHOPS\" in the catalogue\n");
}

TEST_F(Play, ScriptsThatDoNotHold_AreInTheTable)
{
    const RunResult failed =
        played({script("bad.till", bad), script("good.till", good),
                script("total.till", "open\nexpect total 1\n"), script("bytes.till", "\xff"),
                script("answer.till", "open\nanswer yes\nexpect positions 0")});
    EXPECT_EQ(failed.status, 3);
    const std::string at = path("").toStdString() + "/";
    EXPECT_THAT(failed.out,
                EndsWith("[5/5] answer.till\n"
                         "\n"
                         "failed    "
                         + at
                         + "bad.till:2\n"
                           "command   add CHOPS\n"
                           "expected  accepted\n"
                           "found     no article \"CHOPS\" in the catalogue\n"
                           "\n"
                           "failed    "
                         + at
                         + "total.till:2\n"
                           "command   expect total 1\n"
                           "expected  total: 1.00\n"
                           "found     0.00\n"
                           "\n"
                           "wrong     "
                         + at
                         + "bytes.till\n"
                           "found     not UTF-8 text\n"
                           "\n"
                           "failed    "
                         + at
                         + "answer.till:3\n"
                           "found     1 answer(s) were given that nobody asked for\n"
                           "\n"
                           "1 of 5 scripts held, 3 failed, 1 wrong; expectations: 4\n"));
    EXPECT_THAT(failed.err, HasSubstr("total.till:2: expect total 1: total: expected 1.00"));
}

TEST_F(Play, FailedScriptAlone_EndsWith1)
{
    EXPECT_EQ(played({script("bad.till", bad), script("good.till", good)}).status, 1);
}

TEST_F(Play, Stop_EndsAtTheFirstThatDoesNotHold)
{
    const QStringList three{script("good.till", good), script("bad.till", bad), path("good.till")};
    const RunResult failed = played(QStringList{"--stop"} + three);
    EXPECT_EQ(failed.status, 1);
    EXPECT_THAT(failed.out, HasSubstr("[2/3] bad.till\n"));
    EXPECT_THAT(failed.out, Not(HasSubstr("[3/3]")));
    EXPECT_THAT(failed.out,
                EndsWith("1 of 3 scripts held, 1 failed, 1 not played; expectations: 2\n"));
}

TEST_F(Play, ScriptWithoutExpectation_IsSaidToCheckNothing)
{
    const QString one = script("s.till", "open\n# expect\nsay expect\n");
    const RunResult done = played({one});
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.err, "");
    EXPECT_THAT(done.out,
                HasSubstr(one.toStdString() + ": checks nothing, as it expects nothing\n"));
}

TEST_F(Play, TillThatDoesNotStart_EndsThePlay)
{
    const QString one = script("s.till", good);
    const RunResult failed = played({"--catalogue", "/nowhere.csv", one, one});
    EXPECT_EQ(failed.status, 3);
    EXPECT_EQ(failed.out, "[1/2] s.till\n");
    EXPECT_EQ(failed.err, "till: /nowhere.csv: no such file\n");
}

} // namespace
