#include "tests/till/runner/PlayFixture.h"
#include "tests/till/terminal/Terminal.h"

// Many scripts in one run.

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

class Play : public PlayTest
{
};

TEST_F(Play, ManyScripts_ShowProgressAndStartAnew)
{
    const QString one = script("s.till", "expect state none\nopen\n");
    const RunResult done = played({one, one});
    EXPECT_EQ(done.status, 0) << done.err;
    EXPECT_EQ(done.out, "[1/2] s.till\n[2/2] s.till\n2 of 2 scripts held; expectations: 2\n");
}

TEST_F(Play, Dash_IsStandardInput)
{
    EXPECT_EQ(played({"-", "-"}, good).out,
              "[1/2] -\n[2/2] -\n2 of 2 scripts held; expectations: 4\n");
    EXPECT_EQ(played({"-"}, good).out, "[1/1] -\n1 of 1 scripts held; expectations: 2\n");
    const RunResult failed = played({"-"}, bad);
    EXPECT_EQ(failed.status, 1);
    EXPECT_EQ(failed.err, "till: -:2: add CHOPS: no article \"CHOPS\" in the catalogue; "
                          "did you mean 'CHIPS'?\n");
}

TEST_F(Play, ScriptThatCannotBeReadToItsEnd_IsWrong)
{
    // A file that can be opened, of which the first byte cannot be read.
    for (const QString &file :
         {QStringLiteral("/proc/self/mem"), script("s.till", "open\ninclude /proc/self/mem\n")}) {
        const RunResult failed = played({file});
        EXPECT_EQ(failed.status, 3);
        EXPECT_THAT(failed.err, HasSubstr("Input/output error"));
    }
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
                           "found     no article \"CHOPS\" in the catalogue; did you "
                           "mean 'CHIPS'?\n"
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
                         + "answer.till:2\n"
                           "command   answer yes\n"
                           "found     1 answer(s) were given that nobody asked for\n"
                           "\n"
                           "1 of 5 scripts held, 3 failed, 1 wrong; expectations: 4\n"));
    EXPECT_THAT(failed.err, HasSubstr("total.till:2: expect total 1: total: expected 1.00"));
}

TEST_F(Play, EndThatWasNotExpected_IsInTheTable)
{
    const RunResult failed = played({script("s.till", "open\nexpect refused add CHIPS\n")});
    EXPECT_THAT(failed.out, HasSubstr("command   expect refused add CHIPS\n"
                                      "expected  refused\n"
                                      "found     accepted\n"));
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

TEST_F(Play, CommandBehindQuitAndWrongInclude_AreWrong)
{
    const RunResult wrong = played({script("quit.till", "open\nquit\npay\n"),
                                    script("include.till", "open\ninclude nothing.till\n")});
    EXPECT_EQ(wrong.status, 3);
    EXPECT_THAT(wrong.out,
                HasSubstr("/quit.till:3\ncommand   pay\nfound     stands behind 'quit'"));
    EXPECT_THAT(wrong.out, HasSubstr("wrong     " + path("include.till").toStdString() + ":2\n"));
    EXPECT_THAT(wrong.out, EndsWith("0 of 2 scripts held, 2 wrong; expectations: 0\n"));
}

TEST_F(Play, IncludedExpectations_Count)
{
    script("common.till", good);
    EXPECT_THAT(played({script("s.till", "include common.till\nexpect state open\n")}).out,
                EndsWith("1 of 1 scripts held; expectations: 3\n"));
    EXPECT_THAT(played({"-"}, QByteArray("include ") + path("common.till").toUtf8()).out,
                EndsWith("1 of 1 scripts held; expectations: 2\n"));
}

TEST_F(Play, FaultInAnIncludedFile_NamesTheScriptToo)
{
    const std::string common = script("common.till", bad).toStdString();
    const QString one = script("s.till", "include common.till\n");
    EXPECT_THAT(played({one}).out, HasSubstr("failed    " + common + ":2\nscript    "
                                             + one.toStdString() + "\ncommand   add CHOPS\n"));
}

TEST_F(Play, TooFewFiles_PlayFewerAtATime)
{
    const QStringList scripts(12, script("s.till", good));
    const RunResult done =
        runInShell("ulimit -n 20; exec \"$@\"",
                   QStringList{"--lang", "en", "--quiet", "--jobs", "12", "play"} + scripts);
    EXPECT_EQ(done.status, 0) << done.err;
    EXPECT_THAT(done.out, HasSubstr("12 of 12 scripts held"));
}

TEST_F(Play, ClosedStandardStreams_GiveTheirNumbersToNoFile)
{
    const QString one = script("s.till", good);
    const RunResult failed =
        runInShell("exec \"$@\" <&- >&-", {"--junit", path("j.xml"), "play", one});
    EXPECT_EQ(failed.status, 3);
    EXPECT_EQ(failed.err, "till: standard output: Bad file descriptor\n");
    EXPECT_THAT(contents(path("j.xml")).toStdString(), HasSubstr("failures=\"0\" errors=\"0\""));
}

TEST_F(Play, TillThatDoesNotStart_EndsThePlay)
{
    const QString one = script("s.till", good);
    const RunResult failed = played({"--catalogue", "/nowhere.csv", one, one});
    EXPECT_EQ(failed.status, 3);
    EXPECT_EQ(failed.out, "[1/2] s.till\n");
    EXPECT_EQ(failed.err, "till: /nowhere.csv: no such file; see to it, or name another catalogue "
                          "with --catalogue\n");
}

TEST_F(Play, OutputOfJobs_IsInTheOrderOfTheScripts)
{
    QStringList scripts;
    for (int i = 1; i <= 12; ++i)
        scripts.append(
            script(QString("%1.till").arg(i),
                   "open\n" + QByteArray("add CHIPS\n").repeated(i % 3 * 40) + "say x\n"));
    scripts.insert(5, script("bad.till", bad));
    const auto all = [&](const char *jobs) {
        return run(QStringList{"--lang", "en", "--jobs", jobs, "play"} + scripts);
    };
    const RunResult one = all("1");
    const RunResult four = all("4");
    EXPECT_EQ(one.status, 1);
    EXPECT_EQ(four.status, 1);
    EXPECT_EQ(four.out, one.out);
    EXPECT_EQ(four.err, one.err);
    EXPECT_THAT(four.out, HasSubstr("> add CHOPS\n[7/13] 6.till\n> open\n"));
}

TEST_F(Play, QuietOnATerminal_ShowsProgressInOneLine)
{
    const std::string one = script("good.till", good).toStdString();
    const std::string other = script("bad.till", bad).toStdString();
    Terminal terminal(TILL_PROGRAM, {"--lang", "en", "--quiet", "play", one, other},
                      directory.path().toStdString(), {{"TERM", "xterm"}});
    const std::string clear = "\r\x1b[K";
    EXPECT_THAT(terminal.readTo("expectations: 2\r\n"),
                testing::StartsWith(clear + "[1/2] good.till" + clear + "[2/2] bad.till" + clear
                                    + "till: " + other + ":2: add CHOPS"));
    EXPECT_EQ(terminal.end(), 1);
}

TEST_F(Play, StopWithJobs_EndsAtTheFirstInOrder)
{
    QStringList scripts{script("good.till", good), script("bad.till", bad)};
    for (int i = 0; i < 10; ++i)
        scripts.append(path("bad.till"));
    const RunResult failed = played(QStringList{"--stop", "--jobs", "4"} + scripts);
    EXPECT_EQ(failed.status, 1);
    EXPECT_THAT(failed.out,
                EndsWith("1 of 12 scripts held, 1 failed, 10 not played; expectations: 2\n"));
}

TEST_F(Play, Scripts_SeeNothingOfEachOther)
{
    const QString one =
        script("s.till", "expect state none\nset PackagingControl:allowSaleEmptyTara no\n"
                         "open\nadd PET1\nanswer no\nexpect refused subtotal\n");
    EXPECT_EQ(played({"--jobs", "2", one, one, one}).status, 0);
}

TEST_F(Play, SharedDatabase_IsPlayedInTurn)
{
    const QString first = script("1.till", "open\nadd CHIPS\nexpect positions 1\n");
    const QString second = script("2.till", "add CHIPS\nexpect positions 2\n");
    const RunResult done = played({"--db", database(), first, second});
    EXPECT_EQ(done.status, 0) << done.err;
    for (const QStringList &shared : {QStringList{"--db", database()}, {"--trace", path("t")}}) {
        const RunResult refused = played(shared + QStringList{"--jobs", "2", first, second});
        EXPECT_EQ(refused.status, 2);
        EXPECT_EQ(refused.err, "till: --jobs: scripts that share a database or a trace are played "
                               "in turn\n");
    }
    EXPECT_EQ(played({"--db", database(), "--jobs", "1", second}).status, 1);
    EXPECT_EQ(played({"--db", ":memory:", "--jobs", "2", first, first}).status, 0);
}

} // namespace
