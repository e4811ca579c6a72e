#include "tests/till/console/ProgramFixture.h"

#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>

// The program's own arguments and exit statuses.

namespace {

using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;
using testing::StartsWith;

class Options : public ProgramTest
{
};

TEST_F(Options, Help_TellsModesAndStatuses)
{
    const RunResult help = run({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.err, "");
    for (const char *word : {"play PATH...", "demo", "info", "--db", "--trace", "Exit status"})
        EXPECT_THAT(help.out, HasSubstr(word));
}

TEST_F(Options, Manual_HasEveryOptionModeAndCommand)
{
    const RunResult manual = run({"--manual"});
    EXPECT_EQ(manual.status, 0);
    EXPECT_EQ(manual.err, "");
    QString page = QString::fromStdString(manual.out).replace("\\-", "-");
    const QStringList help = QString::fromStdString(run({"--help"}).out).split('\n');
    int entries = 0;
    for (const QString &line : help) {
        if (!line.startsWith("  till ") && !line.startsWith("  --"))
            continue;
        ++entries;
        const QString name = line.trimmed().section(QRegularExpression("  +|[ ,]<?"), 0, 1);
        EXPECT_TRUE(page.contains("\n.B " + name.section(' ', 0, 0))) << name.toStdString();
    }
    EXPECT_GE(entries, 15);
    for (const QString command : {"open", "softcheck NUMBER", "set [KEY VALUE]", "quit"})
        EXPECT_TRUE(page.contains("\n.B " + command)) << command.toStdString();
}

TEST_F(Options, CompletionOfBash_IsThatOfTheHelp)
{
    const auto completed = [](const QString &words) {
        QProcess bash;
        bash.start("bash",
                   {"--norc", "-c",
                    "compopt() { :; }; . " TILL_COMPLETION "; COMP_WORDS=(" TILL_PROGRAM " " + words
                        + "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _till " TILL_PROGRAM
                          "; printf '%s ' \"${COMPREPLY[@]}\""});
        EXPECT_TRUE(bash.waitForFinished(patience));
        EXPECT_EQ(bash.readAllStandardError().toStdString(), "");
        return bash.readAllStandardOutput().toStdString();
    };
    EXPECT_EQ(completed("''"),
              "play demo from-trace info receipts receipt journal check backup set-apart ");
    EXPECT_EQ(completed("s"), "set-apart ");
    EXPECT_EQ(completed("--c"), "--catalogue --config --colour --color --csv ");
    EXPECT_EQ(completed("--lang ''"), "ru en ");
    EXPECT_EQ(completed("--jobs ''"), " ");
    EXPECT_EQ(completed("check ''"), " ");
    for (const char *before : {"play ", "--quiet from-trace ", "backup ", "--junit "})
        EXPECT_EQ(completed(before + write("one", "")), path("one").toStdString() + " ") << before;
    EXPECT_EQ(completed("play " + write("one.till", "")), path("one.till").toStdString() + " ");
}

TEST_F(Options, Version_IsTold)
{
    const RunResult version = run({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_THAT(version.out,
                MatchesRegex("till [0-9.]+ [(](commit [0-9a-f]+(-dirty)?|no commit known), "
                             "Qt 6[.][0-9.]+[)]\n"));
    EXPECT_EQ(version.err, "");
}

TEST_F(Options, GoodScript_EndsWith0AndNothingOnStandardError)
{
    EXPECT_THAT(play("open\nadd CHIPS\nshow\npay 200\n"), HasSubstr("Сдача 70.10"));
}

TEST_F(Options, FailedScript_EndsWith1FileAndLine)
{
    const QString script = write("s.till", "open\nadd CHOPS\n");
    const RunResult failed = run({"play", script});
    EXPECT_EQ(failed.status, 1);
    EXPECT_EQ(failed.err, "till: " + script.toStdString()
                              + ":2: add CHOPS: В каталоге нет товара \"CHOPS\"; "
                                "может быть, CHIPS?\n");
}

TEST_F(Options, Demo_PlaysEveryScriptOfTheShop)
{
    const RunResult demo = run({"--lang", "en", "demo", "--quiet"});
    EXPECT_EQ(demo.status, 0);
    EXPECT_EQ(demo.err, "");
    EXPECT_THAT(demo.out,
                HasSubstr("[12/12] 12-packs.till\n12 of 12 scripts held; expectations: 1"));
}

TEST_F(Options, Info_ShowsThePlugin)
{
    const RunResult info = run({"info", "--set", "PackagingControl:allowSaleEmptyTara=false"});
    EXPECT_EQ(info.status, 0);
    EXPECT_EQ(info.err, "");
    EXPECT_THAT(info.out, HasSubstr("before action 144"));
    EXPECT_THAT(info.out, HasSubstr("events:   19 21 26 252"));
}

TEST_F(Options, English_IsSpokenWithLangEn)
{
    const std::string out =
        play("open\nadd PET1\nadd BEER 0.5\nexpect refused qty 1 2\nshow\n", {"--lang", "en"});
    EXPECT_THAT(out, HasSubstr("! The tara is partly filled.\n"));
    EXPECT_THAT(out, HasSubstr("Receipt No. 1 · open"));
}

TEST_F(Options, NoPlugin_WorksWithoutTara)
{
    const std::string out = play("open\nadd PET1\nadd BEER 0.5\nqty 1 2\nexpect control none\n"
                                 "show\npay\n",
                                 {"--no-plugin"});
    EXPECT_THAT(out, HasSubstr("без контроля тары"));
}

TEST_F(Options, InfoOnAPluginThatIsNotReady_SaysSo)
{
    const RunResult info = run({"info", "--plugin", NOT_READY_PLUGIN});
    EXPECT_EQ(info.status, 3);
    EXPECT_EQ(info.out, "");
    EXPECT_THAT(info.err, HasSubstr("init() answers false"));
}

TEST_F(Options, Settings_ComeFromAFileAndTheCommandLine)
{
    const QString ini = write("s.ini", "[PackagingControl]\nallowSaleEmptyTara=false\n");
    play("open\nadd PET1\nanswer no\nexpect refused subtotal\n", {"--config", ini});
    play("open\nadd PET1\nsubtotal\n",
         {"--config", ini, "--set", "PackagingControl:allowSaleEmptyTara=true"});
}

TEST_F(Options, Colour_IsForTerminalsOrWhenAsked)
{
    EXPECT_THAT(play("open\nshow\n"), Not(HasSubstr("\x1b[")));
    EXPECT_THAT(play("open\nshow\n", {"--colour", "always"}), HasSubstr("\x1b["));
}

TEST_F(Options, PipedRegister_CarriesOutItsInput)
{
    const RunResult good = run({"--db", database()}, "open\nadd CHIPS\nshow\n");
    EXPECT_EQ(good.status, 0);
    EXPECT_EQ(good.err, "");
    EXPECT_THAT(good.out, HasSubstr("129.90"));
    const RunResult bad = run({"--db", database()}, "add CHOPS\nadd BAG\nshow\n");
    EXPECT_EQ(bad.status, 1);
    EXPECT_EQ(bad.err, "till: стандартный ввод:1: add CHOPS: В каталоге нет товара \"CHOPS\"; "
                       "может быть, CHIPS?\n");
    EXPECT_THAT(bad.out, HasSubstr("164.90"));
}

TEST_F(Options, DefaultDatabase_IsAtHome)
{
    EXPECT_EQ(run({}, "open\nadd CHIPS\n").status, 0);
    EXPECT_TRUE(QFileInfo::exists(path("data/till/till.sqlite")));
    EXPECT_THAT(run({}, "show\n").out, HasSubstr("129.90"));
}

//! Arguments that are wrong, and what is said of them.
struct Wrong
{
    const char *name;
    QStringList arguments;
    const char *text;
};

void PrintTo(const Wrong &wrong, std::ostream *out)
{
    *out << wrong.arguments.join(' ').toStdString();
}

class WrongUsage : public ProgramTest, public testing::WithParamInterface<Wrong>
{
};

TEST_P(WrongUsage, EndsWith2AndNamesTheWord)
{
    const RunResult wrong = run(GetParam().arguments);
    EXPECT_EQ(wrong.status, 2);
    EXPECT_THAT(wrong.err, StartsWith("till: "));
    EXPECT_THAT(wrong.err, HasSubstr(GetParam().text));
    EXPECT_EQ(wrong.out, "");
}

INSTANTIATE_TEST_SUITE_P(
    Arguments, WrongUsage,
    testing::Values(
        Wrong{"Command", {"sell"}, "no command \"sell\"; try --help"},
        Wrong{"Option", {"--plugn", "x"}, "'plugn'; try --help\n"}, Wrong{"Value", {"--db"}, "db"},
        Wrong{"NoFile", {"play"}, "which file or folder?"},
        Wrong{"Word", {"demo", "x"}, "\"x\" is one word too many"},
        Wrong{"Lang", {"--lang", "de"}, "\"de\" is none of: ru, en"},
        Wrong{"Colour", {"--colour", "red"}, "\"red\" is none of: auto, always, never"},
        Wrong{"NoTrace", {"--trace", ""}, "--trace: no file is named"},
        Wrong{"NoJunit", {"--junit", ""}, "--junit: no file is named"},
        Wrong{"NoTraceOfThat", {"--trace", "t", "check"}, "--trace: \"check\" writes none"},
        Wrong{"TwoPlugins", {"--no-plugin", "--plugin", "p.so"}, "--no-plugin: --plugin names one"},
        Wrong{"InfoOfNone", {"--no-plugin", "info"}, "--no-plugin: \"info\" tells of a plugin"},
        Wrong{"NoDatabase", {"--db="}, "--db: no file is named"},
        Wrong{"NoScript", {"play", ""}, "a word is empty"},
        Wrong{"NoJobs", {"--jobs", "0", "demo"}, "--jobs: \"0\" is no number from 1 to 86400"},
        Wrong{"Jobs", {"--jobs", "two", "demo"}, "--jobs: \"two\" is no number"},
        Wrong{"Timeout", {"--timeout", "-1", "demo"}, "--timeout: \"-1\" is no number"},
        Wrong{"TapOfInfo", {"info", "--tap"}, "--tap: means something to play, demo alone\n"},
        Wrong{"JobsOfReceipts", {"receipts", "--jobs", "2"}, "--jobs: means something to play"},
        Wrong{"UpdateOfDemo", {"demo", "--update"}, "--update: means something to play alone"},
        Wrong{"CatalogueOfCheck",
              {"check", "--catalogue", "c.csv"},
              "--catalogue: means something to the register, play, demo alone"},
        Wrong{"DatabaseOfATrace", {"from-trace", "t", "--db", "d"}, "--db: means something to the"},
        Wrong{"FromTwice",
              {"receipts", "--from", "2026-01-01", "--from", "2026-01-02"},
              "--from: is given twice\n"},
        Wrong{"DatabaseTwice", {"--db", "a", "--db", "b"}, "--db: is given twice\n"},
        Wrong{"Set", {"--set", "key"}, "\"key\" is not KEY=VALUE"}),
    [](const auto &row) { return std::string(row.param.name); });

} // namespace
