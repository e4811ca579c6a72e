#include "tests/till/runner/PlayFixture.h"
#include "tests/till/terminal/Terminal.h"

#include <cstring>

// Expectations that are rewritten to what was found.

namespace {

using testing::HasSubstr;
using testing::Not;

class PlayUpdate : public PlayTest
{
protected:
    //! What becomes of \a text, which must hold from then on.
    std::string updated(const QByteArray &text) const
    {
        const QString one = script("s.till", text);
        const RunResult done = played({"--update", one});
        EXPECT_EQ(done.status, 0) << done.err;
        const QByteArray after = contents(one);
        EXPECT_EQ(played({one}).status, 0);
        EXPECT_EQ(played({"--update", one}).out.find("@@"), std::string::npos);
        EXPECT_EQ(contents(one), after);
        return after.toStdString();
    }
    //! What becomes of the expectation \a line when a can of three has 1.5 litres of beer.
    std::string mended(const QByteArray &line) const
    {
        const QByteArray before = "open\nadd CAN3\nadd BEER 1.5\n";
        return updated(before + "expect " + line).substr(before.size() + std::strlen("expect "));
    }
};

TEST_F(PlayUpdate, Expectations_AreRewrittenAndTheDifferenceIsShown)
{
    const QString one =
        script("s.till", "# A can\nopen\nadd CAN3\nadd BEER 1.5\nexpect tara 1 free 2\n"
                         "expect positions 2\nexpect total 1\n");
    const RunResult done = played({"--update", one});
    EXPECT_EQ(done.status, 0) << done.err;
    const std::string at = one.toStdString();
    EXPECT_EQ(done.out, "[1/1] s.till\n--- " + at + "\n+++ " + at
                            + "\n"
                              "@@ -5 +5 @@\n-expect tara 1 free 2\n+expect tara 1 free 1.5\n"
                              "@@ -7 +7 @@\n-expect total 1\n+expect total 270.00\n"
                              "1 of 1 scripts held; expectations: 3\n");
    EXPECT_EQ(contents(one).toStdString(),
              "# A can\nopen\nadd CAN3\nadd BEER 1.5\nexpect tara 1 free 1.5\n"
              "expect positions 2\nexpect total 270.00\n");
}

TEST_F(PlayUpdate, EachKindOfExpectation_IsMended)
{
    EXPECT_EQ(mended("tara 1 capacity 3,0 free 1"), "tara 1 capacity 3,0 free 1.5");
    EXPECT_EQ(mended("tara 1 none"), "tara 1 capacity 3 free 1.5");
    EXPECT_EQ(mended("tara 2 capacity 3 free 1"), "tara 2 none");
    EXPECT_EQ(mended("goods 2 none"), "goods 2 in 1 1.5");
    EXPECT_EQ(mended("goods 2 in 1 9 unplaced 4"), "goods 2 in 1 1.5 unplaced 0");
    EXPECT_EQ(mended("goods 7 in 1 9"), "goods 7 none");
    EXPECT_EQ(mended("position 1 stornoed quantity 7 article X"),
              "position 1 live quantity 1 article CAN3");
    EXPECT_EQ(mended("position 2 sum 1 base 2"), "position 2 sum 210.00 base 1.5");
    EXPECT_EQ(mended("position 1 stornoed"), "position 1 live");
    EXPECT_EQ(mended("position 1 group 2 live"), "position 1 group none live");
    EXPECT_EQ(mended("loyalty 3"), "loyalty 0");
    EXPECT_EQ(mended("position 1 none"), "position 1 article CAN3");
    EXPECT_EQ(mended("position 9 live quantity 2"), "position 9 none");
    EXPECT_EQ(mended("positions 9"), "positions 2");
    EXPECT_EQ(mended("records 4 4"), "records 1 1");
    EXPECT_EQ(mended("state closed"), "state open");
    EXPECT_EQ(mended("control none"), "control active");
    EXPECT_EQ(mended("message x"), "message none");
    EXPECT_EQ(mended("question \"a b\""), "question none");
}

TEST_F(PlayUpdate, EndsOfCommands_AreMendedWithWhatTheySaid)
{
    EXPECT_EQ(
        updated("open\nadd CAN3\nadd BEER 1.5\nexpect accepted qty 1 2\nexpect message none\n"
                "expect refused add \"CHIPS\" 1\nexpect mistake pay\nexpect accepted add CHOPS\n"),
        "open\nadd CAN3\nadd BEER 1.5\nexpect refused qty 1 2\n"
        "expect message packingControlTaraAlmostFull\n"
        "expect accepted add CHIPS 1\nexpect accepted pay\nexpect mistake add CHOPS\n");
}

TEST_F(PlayUpdate, LogLine_IsQuotedWhereItHasSpaces)
{
    const std::string mended = updated("open\nadd CAN3\nexpect log none\n");
    EXPECT_THAT(mended, HasSubstr("\nexpect log \""));
}

TEST_F(PlayUpdate, AllElseOfALine_StaysAsItWas)
{
    EXPECT_EQ(
        updated("\xef\xbb\xbf# c\r\nopen\r\n  expect  positions  7\r\n\r\nadd CHIPS \r\nexpect "
                "positions 1"),
        "\xef\xbb\xbf# c\r\nopen\r\n  expect positions 0\r\n\r\nadd CHIPS \r\nexpect positions 1");
}

TEST_F(PlayUpdate, ScriptThatDoesNotHoldAllTheSame_IsLeft)
{
    for (const char *const last :
         {"add CHOPS\n", "answer yes\n", "expect total x\n", "expect nonsense 1\n"}) {
        const QByteArray text = QByteArray("open\nexpect positions 7\n") + last;
        const QString one = script("s.till", text);
        const RunResult failed = played({"--update", one});
        EXPECT_EQ(failed.status, 1) << last;
        EXPECT_THAT(failed.out, Not(HasSubstr("@@")));
        EXPECT_EQ(contents(one), text);
    }
}

TEST_F(PlayUpdate, IncludedFile_IsLeft)
{
    const QString common = script("common.till", "open\nexpect positions 7\n");
    const RunResult failed = played({"--update", script("s.till", "include common.till\n")});
    EXPECT_EQ(failed.status, 1);
    EXPECT_THAT(failed.err, HasSubstr("common.till:2: expect positions 7: "));
    EXPECT_EQ(contents(common), "open\nexpect positions 7\n");
}

TEST_F(PlayUpdate, DifferenceOnATerminal_StandsAlone)
{
    const std::string one = script("s.till", "open\nexpect positions 7\n").toStdString();
    Terminal terminal(TILL_PROGRAM, {"--lang", "en", "--quiet", "play", "--update", one},
                      directory.path().toStdString(), {{"TERM", "xterm"}});
    EXPECT_THAT(terminal.readTo("expectations: 1"),
                HasSubstr("[1/1] s.till\r\x1b[K--- " + one + "\r\n+++ " + one + "\r\n@@ "));
    EXPECT_EQ(terminal.end(), 0);
}

TEST_F(PlayUpdate, DifferenceThatCannotBeShown_IsNotMade)
{
    const QByteArray text = "open\nexpect positions 7\n";
    const QString one = script("s.till", text);
    const RunResult failed =
        runInShell("exec \"$@\" > /dev/full", {"--quiet", "play", "--update", one});
    EXPECT_EQ(failed.status, 3);
    EXPECT_EQ(contents(one), text);
    EXPECT_THAT(failed.err,
                HasSubstr("s.till: is left as it was, as the difference cannot be shown"));
}

TEST_F(PlayUpdate, DifferenceInTap_IsAComment)
{
    const QString one = script("s.till", "open\nexpect positions 7\n");
    const std::string at = one.toStdString();
    EXPECT_EQ(run({"--tap", "play", "--update", one}).out,
              "TAP version 13\n1..1\n# --- " + at + "\n# +++ " + at
                  + "\n# @@ -2 +2 @@\n# -expect positions 7\n# +expect positions 0\nok 1 - " + at
                  + "\n");
}

TEST_F(PlayUpdate, TraceOnStandardOutput_IsRefused)
{
    const RunResult refused = run({"--trace", "-", "--update", "play", script("s.till", good)});
    EXPECT_EQ(refused.status, 2);
    EXPECT_EQ(refused.err, "till: --update: standard output is for the trace; name a file for the "
                           "trace\n");
}

TEST_F(PlayUpdate, FirstLineBehindAMarkOfUtf8_IsMended)
{
    EXPECT_EQ(updated("\xef\xbb\xbf"
                      "expect state open\n"),
              "\xef\xbb\xbf"
              "expect state none\n");
}

TEST_F(PlayUpdate, StandardInput_IsRefused)
{
    const RunResult refused = run({"--update", "play", "-"});
    EXPECT_EQ(refused.status, 2);
    EXPECT_EQ(refused.err, "till: --update: standard input cannot be rewritten\n");
}

} // namespace
