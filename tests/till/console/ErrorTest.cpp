#include "tests/till/console/ProgramFixture.h"

#include <QtCore/QRegularExpression>

// What is wrong is said where somebody looks for it: what, where, and what to do.

namespace {

using testing::HasSubstr;
using testing::Not;

class Error : public ProgramTest
{
protected:
    //! What the register says on standard error of \a lines from a pipe.
    std::string errorOf(const QByteArray &lines, const QStringList &options = {"--lang", "en"})
    {
        const RunResult failed = run(QStringList{"--db", ":memory:"} + options, lines);
        EXPECT_EQ(failed.status, 1);
        return failed.err;
    }
};

TEST_F(Error, FromAPipe_HasItsLineAlsoUnderQuiet)
{
    const QByteArray lines = "open\n\n# CHOPS\nadd CHOPS\nadd CHIPS\nqty 2 1\n";
    const std::string errors = "till: standard input:4: add CHOPS: no article \"CHOPS\" in the "
                               "catalogue; did you mean 'CHIPS'?\n"
                               "till: standard input:6: qty 2 1: the receipt has no position 2\n";
    EXPECT_EQ(errorOf(lines), errors);
    EXPECT_EQ(errorOf(lines, {"--lang", "en", "--quiet"}), errors);
}

TEST_F(Error, RefusalByThePlugin_SaysWhy)
{
    EXPECT_EQ(errorOf("open\nadd CAN3\nadd BEER\nqty 1 2\n"),
              "till: standard input:4: qty 1 2: refused: The tara is partly filled. Changing the "
              "quantity is not allowed\n");
}

TEST_F(Error, QuestionThatNobodyAnswered_IsNamed)
{
    EXPECT_EQ(
        errorOf("open\nadd CHIPS\nstorno 1\n"),
        "till: standard input:3: storno 1: refused: nobody answered \"Storno the position?\"; "
        "'answer yes' before it would take it\n");
    EXPECT_EQ(errorOf("open\nadd CHIPS\nanswer no\nstorno 1\n"),
              "till: standard input:4: storno 1: refused: \"Storno the position?\" was answered "
              "no\n");
    const RunResult played = run({"--lang", "en", "play", write("s.till", "open\ncancel\n")});
    EXPECT_THAT(played.err,
                HasSubstr(":2: cancel: refused: nobody answered \"Cancel the receipt?\""));
}

TEST_F(Error, MoneyThatIsNotEnough_IsCounted)
{
    EXPECT_EQ(
        errorOf("open\nadd CHIPS\npay 78.90\n"),
        "till: standard input:3: pay 78.90: refused: Not enough money to pay: 51.00 missing\n");
}

TEST_F(Error, MisspelledWord_BringsTheNearestOne)
{
    EXPECT_THAT(errorOf("strono 1\n"), HasSubstr("did you mean 'storno'?"));
    EXPECT_THAT(errorOf("expect totl 1\n"), HasSubstr("did you mean 'total'?"));
    EXPECT_THAT(errorOf("frobnicate\n"), HasSubstr("try 'help'"));
    EXPECT_THAT(errorOf("set PackagingControl:alowSaleEmptyTara no\n"),
                HasSubstr("did you mean 'PackagingControl:allowSaleEmptyTara'?"));
}

TEST_F(Error, LongWord_IsCut)
{
    const std::string said = errorOf("open\nadd " + QByteArray(5000, 'x') + "\n");
    EXPECT_THAT(said, HasSubstr("no article \"" + std::string(59, 'x') + "…\" in"));
}

TEST_F(Error, LongLine_IsCut)
{
    const QByteArray word(5000, 'x');
    for (const QByteArray &line : {"open " + word, "expect position 1 article " + word,
                                   "expect accepted open " + word, "expect refused say " + word}) {
        EXPECT_LT(errorOf("open\nadd CHIPS\n" + line + "\n").size(), 300U);
        const RunResult played = run({"play", write("s.till", "open\nadd CHIPS\n" + line + "\n")});
        EXPECT_EQ(played.status, 1);
        EXPECT_LT(played.err.size(), path("s.till").size() + 300U);
    }
}

TEST_F(Error, UnknownCommand_KeepsWhatTheLastOneSaid)
{
    EXPECT_THAT(errorOf("open\npay\nnonsense\nexpect message tillReceiptEmpty\n"),
                Not(HasSubstr(":4:")));
}

TEST_F(Error, ArticlesWithoutAny_SaySo)
{
    EXPECT_EQ(run({"--db", ":memory:", "--lang", "en"}, "articles zzz\n").out,
              "No article contains \"zzz\"\n");
}

TEST_F(Error, ArticlesWithHiddenSigns_StayWithinTheWidth)
{
    const QByteArray hidden = "\xe2\x80\xae\xe2\x80\x8b"; // an override, a space of no width
    const QString catalogue = write("c.csv", "code;name;price;tara mode;tara capacity;pack;unit\nT;"
                                                 + (hidden + "x").repeated(100) + ";1;0;;1;pc\n");
    const RunResult listed = run({"--db", ":memory:", "--catalogue", catalogue}, "articles\n");
    EXPECT_EQ(listed.out, "T                1.00 " + std::string(57, 'x') + "…\n");
}

TEST_F(Error, GoodsThatCannotFollowTheirTara_AreTold)
{
    const QString catalogue = write("c.csv", "code;name;price;tara mode;tara capacity;pack;unit\n"
                                             "T;T;0;1;900000;1;pc\nG;G;1;2;;1;l\n");
    const RunResult done = run({"--db", ":memory:", "--lang", "en", "--catalogue", catalogue},
                               "open\nadd T\nadd G 900000\nqty 1 2\nshow\n");
    EXPECT_EQ(done.status, 0) << done.err;
    EXPECT_THAT(done.out, HasSubstr("! The goods in the tara stay as they are: a limit"));
}

TEST_F(Error, Settings_AreListedAndChecked)
{
    const QByteArray lines = "set\nset PackagingControl:allowSaleEmptyTara off\nset\n";
    EXPECT_EQ(run({"--db", ":memory:"}, lines).out, "PackagingControl:allowSaleEmptyTara=true\n"
                                                    "PackagingControl:allowSaleEmptyTara=false\n");
    EXPECT_THAT(errorOf("set PackagingControl:allowSaleEmptyTara perhaps\n"),
                HasSubstr("\"perhaps\" is neither true nor false"));
    const QString ini = write("s.ini", "[PackagingControl]\nallowSaleEmptyTara=perhaps\n");
    for (const QStringList &mode : {QStringList(), {"info"}, {"play", write("s.till", "open\n")}}) {
        const RunResult failed = run(QStringList{"--config", ini} + mode);
        EXPECT_EQ(failed.status, 3);
        EXPECT_THAT(failed.err, HasSubstr(ini.toStdString() + ":2: "));
    }
}

TEST_F(Error, CommandWords_TakeAnyCaseAndTheirUsualNames)
{
    for (const char *const word : {"exit", "Q", "QUIT"})
        EXPECT_EQ(run({"--db", ":memory:"}, QByteArray(word) + "\nnonsense\n").status, 0) << word;
    const RunResult done = run({"--db", ":memory:", "--lang", "en"},
                               "OPEN Return\nAdd CHIPS\nANSWER Yes\nstorno 1\n?\n"
                               "Expect Accepted CANCEL\n");
    EXPECT_THAT(done.out, HasSubstr("list the commands, or explain one"));
    EXPECT_THAT(done.err, HasSubstr("expected accepted, found refused"));
}

TEST_F(Error, InRussian_IsRussian)
{
    for (const char *const line :
         {"nonsense", "add", "qty x 1", "pay x", "\"", "expect x", "expect total 1", "show",
          "set a b", "answer perhaps", "cancel"}) {
        const QString said =
            QString::fromStdString(errorOf(QByteArray(line) + '\n', {"--lang", "ru"}));
        EXPECT_TRUE(said.section(": ", 2).contains(QRegularExpression("[а-я]{2}")))
            << said.toStdString();
        EXPECT_FALSE(said.contains(QRegularExpression("\\b(is|usage|expected|none of)\\b")))
            << said.toStdString();
        const QString english = QString::fromStdString(errorOf(QByteArray(line) + '\n'));
        EXPECT_FALSE(english.contains(QRegularExpression("[а-я]"))) << english.toStdString();
    }
}

TEST_F(Error, Help_IsInTheLanguageOfTheCashier)
{
    const QByteArray lines = "help\nhelp expect\n";
    EXPECT_FALSE(QString::fromStdString(run({"--db", ":memory:", "--lang", "en"}, lines).out)
                     .contains(QRegularExpression("[а-яА-Я]")));
    const QString russian =
        QString::fromStdString(run({"--db", ":memory:", "--lang", "ru"}, lines).out);
    EXPECT_TRUE(russian.contains("add ТОВАР [КОЛИЧЕСТВО]"));
    EXPECT_FALSE(russian.contains(QRegularExpression("\\b(the|a receipt|position is|TEXT)\\b")));
}

} // namespace
