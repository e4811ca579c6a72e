#include "till/script/Script.h"

#include "tests/till/support/TillFixture.h"

#include <QtCore/QDir>

namespace till {

namespace {

class ScriptRun : public TillTest
{
protected:
    ScriptRun() { start(setup(), QStringLiteral("en")); }

    QString path() const { return directory.filePath("s.till"); }

    //! Plays \a bytes; what went wrong.
    QString play(const QByteArray &bytes)
    {
        overwrite(path(), bytes);
        Script script;
        must(script.read(path()));
        return faultText(
            script.play(*commands, [this](const QString &line) { echoed.append(line); }));
    }

    QStringList echoed;
};

TEST_F(ScriptRun, GoodScript_IsPlayedToItsEnd)
{
    EXPECT_EQ(play("open\nadd CHIPS 2\nexpect total 259.80\npay\n"), QString());
    expect({"state closed"});
}

TEST_F(ScriptRun, FirstFailure_StopsWithFileAndLine)
{
    EXPECT_EQ(play("open\n\n# nothing\nadd CHOPS\nadd CHIPS\n"),
              path()
                  + ":4: add CHOPS: no article \"CHOPS\" in the catalogue; "
                    "did you mean 'CHIPS'?");
    expect({"positions 0"});
}

TEST_F(ScriptRun, RefusedCommand_Stops)
{
    EXPECT_EQ(play("open\n  pay  \nadd CHIPS"),
              path()
                  + ":2: pay: refused: There are no positions in the receipt (tillReceiptEmpty)");
    EXPECT_EQ(play("add CAN3\nadd BEER\nqty 1 2\n"),
              path()
                  + ":3: qty 1 2: refused: The tara is partly filled. Changing the quantity is "
                    "not allowed (packingControlTaraAlmostFull)");
}

TEST_F(ScriptRun, FailedExpectation_StopsWithBothValues)
{
    EXPECT_EQ(play("open\nadd CHIPS\nexpect total 1\npay\n"),
              path() + ":3: expect total 1: total: expected 1.00, found 129.90");
    expect({"state open"});
}

TEST_F(ScriptRun, MissingAnswer_IsWrongAtTheEnd)
{
    EXPECT_EQ(play("open\nadd CHIPS\nexpect refused storno 1\n"),
              path() + ":3: expect refused storno 1: no answer was given to: tillStornoPosition");
}

TEST_F(ScriptRun, UnusedAnswer_IsWrongAtTheEnd)
{
    EXPECT_EQ(play("open\nanswer yes"),
              path() + ":2: answer yes: 1 answer(s) were given that nobody asked for");
}

TEST_F(ScriptRun, UnusedAnswer_IsToldAtItsOwnLine)
{
    EXPECT_EQ(play("open\nadd CHIPS\nanswer yes\nstorno 1\nanswer no yes\nexpect positions 0\n"),
              path() + ":5: answer no yes: 2 answer(s) were given that nobody asked for");
}

TEST_F(ScriptRun, Commands_AreEchoedAndWatchersAreNot)
{
    play("# c\nsay hi\nopen\nexpect accepted add CHIPS\nexpect total 129.90\nshow\nanswer yes\n"
         " storno 1\n");
    EXPECT_EQ(echoed, QStringList({"open", "add CHIPS", "storno 1"}));
}

TEST_F(ScriptRun, Quit_EndsTheScript)
{
    EXPECT_EQ(play("open\nquit\n\n# the end\n"), QString());
    EXPECT_EQ(echoed, QStringList({"open", "quit"}));
}

TEST_F(ScriptRun, CommandBehindQuit_IsWrong)
{
    EXPECT_EQ(play("open\nquit\n# nothing\npay\n"),
              path() + ":4: pay: stands behind 'quit', where nothing is carried out");
    start(setup(), QStringLiteral("en"));
    EXPECT_EQ(play("expect accepted quit\npay\n"),
              path() + ":2: pay: stands behind 'quit', where nothing is carried out");
}

TEST_F(ScriptRun, LineEndsOfOtherSystems_AreTaken)
{
    EXPECT_EQ(play("\xef\xbb\xbfopen\r\nadd CHIPS\r\nexpect total 129.90\r\n"), QString());
}

TEST_F(ScriptRun, IncludedLines_ArePlayedInPlace)
{
    ASSERT_TRUE(QDir(directory.path()).mkdir("common"));
    overwrite(directory.filePath("common/open.till"), "open\ninclude \"two cans.till\"\n");
    overwrite(directory.filePath("common/two cans.till"), "add CAN3 2\n");
    EXPECT_EQ(play("include common/open.till\nexpect positions 1\n"
                   "Include \"common/two cans.till\"\nexpect positions 2\n"),
              QString());
    EXPECT_EQ(echoed, QStringList({"open", "add CAN3 2", "add CAN3 2"}));
}

TEST_F(ScriptRun, FaultInAnIncludedFile_HasItsNameAndLine)
{
    const QString common = directory.filePath("common.till");
    overwrite(common, "open\nadd CHOPS\n");
    EXPECT_EQ(play("include common.till\n"),
              common
                  + ":2: add CHOPS: no article \"CHOPS\" in the catalogue; "
                    "did you mean 'CHIPS'?");
    EXPECT_EQ(noted("script", "file"), QVariantList({common, common}));
    overwrite(common, "answer yes");
    EXPECT_EQ(play("include common.till"),
              common + ":1: answer yes: 1 answer(s) were given that nobody asked for");
    start(setup(), QStringLiteral("en"));
    overwrite(common, "quit\n");
    EXPECT_EQ(play("include common.till\nopen\n"),
              path() + ":2: open: stands behind 'quit', where nothing is carried out");
}

TEST_F(ScriptRun, IncludeOfAnotherCommand_IsAMistake)
{
    EXPECT_EQ(play("expect accepted include x.till\n"),
              path()
                  + ":1: expect accepted include x.till: include x.till: expected accepted, found "
                    "mistake: 'include' stands in a script, in a line of its own");
    EXPECT_EQ(mistake("include x.till"), "'include' stands in a script, in a line of its own");
}

class ScriptFile : public TillTest
{
protected:
    QString errorOf(const QString &path) { return faultText(Script().read(path)); }
    //! What is wrong with \a bytes as a script.
    QString errorIn(const QByteArray &bytes)
    {
        const QString file = path("s.till");
        overwrite(file, bytes);
        return errorOf(file);
    }
};

TEST_F(ScriptFile, Missing_IsSaid)
{
    EXPECT_EQ(errorOf("/nowhere/s.till"), QString("/nowhere/s.till: No such file or directory"));
}

TEST_F(ScriptFile, NotUtf8_IsSaid)
{
    const QString path = directory.filePath("s.till");
    overwrite(path, "say \xcf\xf0\xe8\n");
    EXPECT_EQ(errorOf(path), path + ": not UTF-8 text");
}

TEST_F(ScriptFile, WrongInclude_IsSaidAtItsPlace)
{
    const QString at = path("s.till");
    EXPECT_EQ(errorIn("\ninclude no.till\n"),
              at + ":2: include no.till: No such file or directory");
    EXPECT_EQ(errorIn("include .\n"), at + ":1: include .: no file");
    EXPECT_EQ(errorIn("include /dev/zero\n"), at + ":1: include /dev/zero: no file");
    EXPECT_EQ(errorIn("include\n"), at + ":1: include: one FILE has to be named");
    EXPECT_EQ(errorIn("include a b\n"), at + ":1: include: one FILE has to be named");
    overwrite(path("b.till"), "\xff");
    EXPECT_EQ(errorIn("include b.till\n"), at + ":1: include b.till: not UTF-8 text");
}

TEST_F(ScriptFile, CircleOfIncludes_IsSaid)
{
    EXPECT_EQ(errorIn("include s.till\n"),
              path("s.till") + ":1: include s.till: it is being read already: a circle");
    ASSERT_TRUE(QFile::link(path("s.till"), path("link.till")));
    overwrite(path("b.till"), "\ninclude link.till\n");
    EXPECT_EQ(errorIn("include b.till\n"),
              path("b.till") + ":2: include link.till: it is being read already: a circle");
    overwrite(path("b.till"), "open\n");
    EXPECT_EQ(errorIn("include b.till\ninclude b.till\n"), QString()); // no circle
}

} // namespace

} // namespace till
