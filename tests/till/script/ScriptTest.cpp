#include "till/script/Script.h"

#include "tests/till/support/TillFixture.h"

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
              path() + ":4: add CHOPS: no article \"CHOPS\" in the catalogue");
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
              path() + ":4: no answer was given to: tillStornoPosition");
}

TEST_F(ScriptRun, UnusedAnswer_IsWrongAtTheEnd)
{
    EXPECT_EQ(play("open\nanswer yes"),
              path() + ":2: 1 answer(s) were given that nobody asked for");
}

TEST_F(ScriptRun, Commands_AreEchoedAndWatchersAreNot)
{
    play("# c\nsay hi\nopen\nexpect accepted add CHIPS\nexpect total 129.90\nshow\nanswer yes\n"
         " storno 1\n");
    EXPECT_EQ(echoed, QStringList({"open", "add CHIPS", "storno 1"}));
}

TEST_F(ScriptRun, Quit_EndsTheScript)
{
    EXPECT_EQ(play("open\nquit\nnonsense\n"), QString());
    EXPECT_EQ(echoed, QStringList({"open", "quit"}));
}

TEST_F(ScriptRun, LineEndsOfOtherSystems_AreTaken)
{
    EXPECT_EQ(play("\xef\xbb\xbfopen\r\nadd CHIPS\r\nexpect total 129.90\r\n"), QString());
}

class ScriptFile : public TillTest
{
protected:
    QString errorOf(const QString &path) { return faultText(Script().read(path)); }
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

} // namespace

} // namespace till
