#include "tests/till/console/Terminal.h"
#include "tests/till/console/ProgramFixture.h"

// The register on a terminal, before a person.

namespace {

using testing::HasSubstr;
using testing::Not;

class OnTerminal : public ProgramTest
{
protected:
    OnTerminal() { switchOn(); }

    //! A till at its first prompt, in place of the one before.
    void switchOn(const std::vector<std::string> &options = {"--colour", "never"},
                  const Terminal::Variables &environment = {}, int columns = 200)
    {
        terminal.emplace(TILL_PROGRAM, options, directory.path().toStdString(), environment,
                         columns);
        greeting = terminal->readTo(Terminal::prompt);
    }

    std::string enter(const std::string &line) { return terminal->enter(line); }

    void leave()
    {
        terminal->type("quit\n");
        EXPECT_EQ(terminal->end(), 0);
    }

    std::optional<Terminal> terminal;
    std::string greeting;
};

TEST_F(OnTerminal, Person_IsGreetedAndPrompted)
{
    EXPECT_THAT(greeting, HasSubstr("help — список команд, quit — выход"));
    leave();
}

TEST_F(OnTerminal, EndOfInput_Leaves)
{
    terminal->type("\x04");
    EXPECT_EQ(terminal->end(), 0);
}

TEST_F(OnTerminal, EndOfInput_TellsThatTheReceiptIsKeptWhereOneIsOpen)
{
    for (const auto &[command, isOpen] : {std::pair("say", false), {"open", true}}) {
        enter(command);
        terminal->type("\x04");
        EXPECT_EQ(terminal->end(), 0);
        EXPECT_EQ(terminal->rest().find("Открытый чек сохранён") != std::string::npos, isOpen);
        switchOn();
    }
}

TEST_F(OnTerminal, Receipt_IsShownAfterEachChangeOnly)
{
    EXPECT_THAT(enter("open"), HasSubstr("ИТОГО"));
    EXPECT_THAT(enter("add HONEY 4,5"), HasSubstr("2790.00"));
    EXPECT_THAT(enter("articles honey"), Not(HasSubstr("ИТОГО")));
    EXPECT_THAT(enter("qty 1 2"), HasSubstr("1240.00"));
}

TEST_F(OnTerminal, Mistake_IsTold)
{
    EXPECT_THAT(enter("opn"), HasSubstr("нет команды \"opn\"; может быть, open?"));
}

TEST_F(OnTerminal, Refusal_IsToldInThePluginsWords)
{
    enter("open");
    enter("add CAN3");
    enter("add BEER");
    const std::string said = enter("qty 1 2");
    EXPECT_THAT(said, HasSubstr("! Тара частично заполнена."));
    EXPECT_THAT(said, HasSubstr("отказано"));
}

TEST_F(OnTerminal, Question_IsAskedUntilAnswered)
{
    enter("open");
    enter("add CHIPS");
    terminal->type("storno 1\n");
    EXPECT_THAT(terminal->readTo("да/нет> "), HasSubstr("Сторнировать позицию?"));
    for (const std::string answer : {"maybe\n", "\n"}) {
        terminal->type(answer);
        EXPECT_THAT(
            terminal->readTo("да/нет> "),
            HasSubstr("Чтобы согласиться: Да, yes, y, д. Чтобы отказаться: Нет, no, n, н."));
    }
    terminal->type("нет\n");
    EXPECT_THAT(terminal->readTo(Terminal::prompt), HasSubstr("отказано"));
    terminal->type("storno 1\n");
    terminal->readTo("да/нет> ");
    terminal->type("y\n");
    EXPECT_THAT(terminal->readTo(Terminal::prompt), HasSubstr("x 1  CHIPS"));
}

TEST_F(OnTerminal, ChoicesOfAQuestion_AreAnswersAsTheyAreShown)
{
    switchOn({"--colour", "never", "--set", "PackagingControl:allowSaleEmptyTara=false"});
    enter("open");
    enter("add CAN3");
    terminal->type("pay\n");
    EXPECT_THAT(terminal->readTo("да/нет> "), HasSubstr("[ОК] [Отмена]"));
    terminal->type("отмена\n");
    EXPECT_THAT(terminal->readTo(Terminal::prompt), Not(HasSubstr("Чтобы")));
    terminal->type("pay\n");
    terminal->readTo("да/нет> ");
    terminal->type("ОК\n");
    EXPECT_THAT(terminal->readTo(Terminal::prompt), HasSubstr("x 1  CAN3"));
}

TEST_F(OnTerminal, TabAtAQuestion_OffersItsAnswersOnly)
{
    enter("open");
    enter("add CHIPS");
    terminal->type("cancel\n");
    terminal->readTo("да/нет> ");
    terminal->type("\t\t");
    const std::string offered = terminal->readTo("да/нет> ");
    EXPECT_THAT(offered, HasSubstr("Да"));
    EXPECT_THAT(offered, HasSubstr("Нет"));
    EXPECT_THAT(offered, HasSubstr("no"));
    EXPECT_THAT(offered, Not(HasSubstr("storno")));
    terminal->type("y\t\n");
    EXPECT_THAT(terminal->readTo(Terminal::prompt), HasSubstr("отменён"));
    terminal->type("op\t\n"); // and then commands again
    EXPECT_THAT(terminal->readTo(Terminal::prompt), HasSubstr("открыт"));
}

TEST_F(OnTerminal, Tab_CompletesCommandsArticlesAndPositions)
{
    terminal->type("op\t");
    terminal->readTo("open ");
    terminal->type("\n");
    terminal->readTo(Terminal::prompt);
    terminal->type("ad\tHON\t2\n");
    EXPECT_THAT(terminal->readTo(Terminal::prompt), HasSubstr("add HONEY 2"));
    terminal->type("qty \t3\n");
    EXPECT_THAT(terminal->readTo(Terminal::prompt), HasSubstr("1860.00"));
}

TEST_F(OnTerminal, TabTwice_ListsTheArticles)
{
    enter("open");
    terminal->type("add BEE\t\t\t");
    terminal->readTo("BEER");
    terminal->readTo("BEER3");
    terminal->type("\n");
    EXPECT_THAT(terminal->readTo("ИТОГО"), HasSubstr("BEER "));
}

TEST_F(OnTerminal, History_IsKeptForTheNextTime)
{
    enter("say something rare");
    leave();
    switchOn();
    terminal->type("\x10\x10\n"); // twice back: over "quit"
    EXPECT_THAT(terminal->readTo(Terminal::prompt), HasSubstr("say something rare"));
}

TEST_F(OnTerminal, History_OutlivesAKill)
{
    enter("say something rare");
    switchOn(); // kills the one before
    terminal->type("\x10\n");
    EXPECT_THAT(terminal->readTo(Terminal::prompt), HasSubstr("say something rare"));
}

TEST_F(OnTerminal, InterruptedReceipt_IsShownAndGoesOn)
{
    enter("open");
    enter("add CAN3");
    switchOn();
    EXPECT_THAT(greeting, HasSubstr("CAN3"));
    EXPECT_THAT(enter("add BEER 2"), HasSubstr("340.00"));
}

TEST_F(OnTerminal, Colours_AreForTerminals)
{
    switchOn({}, {{"TERM", "xterm"}});
    EXPECT_THAT(enter("open"), HasSubstr("\x1b[1m"));
    switchOn({}, {{"TERM", "dumb"}});
    EXPECT_THAT(greeting + enter("show"), Not(HasSubstr("\x1b[1m")));
    switchOn({}, {{"TERM", "xterm"}, {"NO_COLOR", "1"}});
    EXPECT_THAT(greeting + enter("show"), Not(HasSubstr("\x1b[1m")));
    switchOn({"--color", "always"}, {{"NO_COLOR", "1"}});
    EXPECT_THAT(enter("show"), HasSubstr("\x1b[1m"));
}

TEST_F(OnTerminal, StornoedLine_IsMarkedInColourToo)
{
    switchOn({"--color", "always"});
    enter("open");
    enter("add CHIPS");
    enter("answer yes");
    EXPECT_THAT(enter("storno 1"), HasSubstr("x \x1b[9m1  CHIPS"));
}

//! The columns of the widest line.
qsizetype widest(const std::string &text)
{
    qsizetype width = 0;
    const QStringList lines = QString::fromStdString(text).split("\r\n");
    for (const QString &line : lines)
        width = std::max(width, line.size());
    return width;
}

TEST_F(OnTerminal, Width_IsTheTerminalsWithinLimits)
{
    struct Size
    {
        int terminal;
        int receipt;
    };
    switchOn({"--colour", "never"}, {}, 80);
    enter("open");
    enter("add CAN3");
    for (const Size size : {Size{60, 60}, {100, 100}, {40, 60}, {200, 120}}) {
        terminal->resize(size.terminal);
        terminal->type("show\n");
        terminal->readTo("show\r\n");
        EXPECT_EQ(widest(terminal->readTo("ИТОГО")), size.receipt) << size.terminal;
    }
}

TEST_F(OnTerminal, LinesWiderThanTheTerminal_AreBrokenAtBlanks)
{
    const auto widestOf = [this](const std::string &line) {
        terminal->type(line + '\n');
        terminal->readTo(line + "\r\n");
        return widest(terminal->readTo(Terminal::prompt));
    };
    switchOn({"--colour", "never"}, {}, 60);
    enter("open");
    enter("add CAN3");
    for (const char *line : {"add BEER 2", "log", "help expect", "qty 1 1.2345", "help", "nothing"})
        EXPECT_LE(widestOf(line), 60) << line;
    const QString script = write("s.till", "say " + QByteArray("word ").repeated(20));
    terminal.emplace(TILL_PROGRAM, std::vector<std::string>{"play", script.toStdString()},
                     directory.path().toStdString(), Terminal::Variables(), 60);
    const std::string words = "word word word word word word word word word word word word";
    terminal->readTo("\r\n" + words + "\r\nword word");
    EXPECT_EQ(terminal->end(), 0);
}

TEST_F(OnTerminal, LongCode_LeavesRoomForPriceAndName)
{
    const QByteArray code = QByteArray("LONG-").repeated(16);
    const QString catalogue = write("c.csv", "code;name;price;tara mode;tara capacity;pack;unit\n"
                                                 + code + ";Odd;7;0;;1;pc\nS;Short;8;0;;1;pc\n");
    switchOn({"--colour", "never", "--catalogue", catalogue.toStdString()}, {}, 60);
    const std::string shown = enter("articles");
    EXPECT_THAT(shown, HasSubstr(code.toStdString() + "\r\n                 7.00 Odd\r\n"));
    EXPECT_THAT(shown, HasSubstr("S                8.00 Short\r\n"));
}

TEST_F(OnTerminal, JsonLines_StayWhole)
{
    enter("open");
    leave();
    terminal.emplace(TILL_PROGRAM, std::vector<std::string>{"journal", "--json", "1"},
                     directory.path().toStdString(), Terminal::Variables(), 60);
    EXPECT_GT(widest(terminal->readTo("}\r\n")), 60);
    EXPECT_EQ(terminal->end(), 0);
}

TEST_F(OnTerminal, PastedLines_AreEachACommandAndInTheHistory)
{
    switchOn({"--colour", "never"}, {{"TERM", "xterm"}});
    terminal->type("\x1b[200~# a script\nopen\nadd CHIPS\nadd BAG 2\n\x1b[201~\n");
    terminal->readTo("199.90"); // both articles: 129.90 and two bags
    terminal->readTo(Terminal::prompt);
    terminal->type("\x10\x10\n"); // the command before the last one
    EXPECT_THAT(terminal->readTo("329.80"), HasSubstr("CHIPS\r\n"));
}

TEST_F(OnTerminal, PastedAnswer_IsTaken)
{
    switchOn({"--colour", "never"}, {{"TERM", "xterm"}});
    terminal->type("\x1b[200~open\nadd CHIPS\nstorno 1\nyes\nsay done\x1b[201~\n");
    terminal->readTo("x 1  CHIPS");
    terminal->readTo("\r\ndone");
}

TEST_F(OnTerminal, CtrlC_DropsTheLine)
{
    terminal->type("nonsense\x03");
    EXPECT_THAT(terminal->readTo(Terminal::prompt), HasSubstr("nonsense^C\r\n"));
    EXPECT_THAT(enter("open"), Not(HasSubstr("nonsense")));
    terminal->type("\x03");
    EXPECT_THAT(terminal->readTo(Terminal::prompt), HasSubstr("ещё раз Ctrl-C"));
    enter("add CHIPS"); // between them: the next one does not leave either
    terminal->type("\x03");
    terminal->readTo(Terminal::prompt);
    terminal->type("\x03");
    EXPECT_THAT(terminal->readTo("сохранён"), HasSubstr("Открытый чек"));
    EXPECT_EQ(terminal->end(), 0);
}

TEST_F(OnTerminal, CtrlCAtAQuestion_AnswersNo)
{
    enter("open");
    enter("add CHIPS");
    terminal->type("storno 1\n");
    terminal->readTo("да/нет> ");
    terminal->type("\x03");
    EXPECT_THAT(terminal->readTo(Terminal::prompt), HasSubstr("отказано"));
}

TEST_F(OnTerminal, Tab_CompletesByThePlaceOfTheWord)
{
    enter("open");
    terminal->type("add HON\t\t2\n"); // a quantity is none of the articles
    EXPECT_THAT(terminal->readTo("1240.00"), HasSubstr("add HONEY \a2"));
    terminal->readTo(Terminal::prompt);
    terminal->type("expect cont\tact\t\n");
    EXPECT_THAT(terminal->readTo(Terminal::prompt), HasSubstr("expect control active"));
    terminal->type("expect accepted qty \t3\n");
    EXPECT_THAT(terminal->readTo("1860.00"), HasSubstr("expect accepted qty 1 3"));
    terminal->readTo(Terminal::prompt);
    terminal->type("set Pack\tfal\t\n");
    EXPECT_THAT(terminal->readTo(Terminal::prompt),
                HasSubstr("set PackagingControl:allowSaleEmptyTara false"));
    terminal->type("articles HON\t\n");
    EXPECT_THAT(terminal->readTo(Terminal::prompt), HasSubstr("articles HONEY"));
    terminal->type("add \"HON\t 1\n");
    EXPECT_THAT(terminal->readTo("2480.00"), HasSubstr("add \"HONEY\" "));
}

TEST_F(OnTerminal, Tab_CompletesCodesOfAnySigns)
{
    const QString catalogue =
        write("c.csv", "code;name;price;tara mode;tara capacity;pack;unit\nA='B;Odd;7;0;;1;pc\n");
    switchOn({"--colour", "never", "--catalogue", catalogue.toStdString()});
    enter("open");
    terminal->type("add A=\t2\n");
    EXPECT_THAT(terminal->readTo("14.00"), HasSubstr("add A='B 2"));
}

TEST_F(OnTerminal, LocaleThatIsNotUtf8_LeavesSignsWholeWhenOneIsTakenBack)
{
    switchOn({"--colour", "never"}, {{"LC_ALL", "C"}});
    terminal->type("say \xd0\xb4\xd0\xb0\x7f.\n");
    terminal->readTo("\r\n\xd0\xb4.");
    leave();
}

TEST_F(OnTerminal, LocaleThatIsNotUtf8_IsToldOnceAndWorks)
{
    switchOn({"--colour", "never"}, {{"LC_ALL", "C"}});
    EXPECT_THAT(greeting, HasSubstr("Локаль не UTF-8"));
    const std::string said = enter("open") + enter("add CHIPS") + enter("say Привет");
    EXPECT_THAT(said, Not(HasSubstr("UTF-8")));
    EXPECT_THAT(said, HasSubstr("ИТОГО"));
    EXPECT_THAT(said, HasSubstr("\r\nПривет"));
    switchOn();
    EXPECT_THAT(greeting, Not(HasSubstr("UTF-8")));
}

} // namespace
