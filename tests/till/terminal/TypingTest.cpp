#include "tests/till/terminal/OnTerminal.h"

// What a person types on a terminal: commands, answers, and the keys that help with them.

namespace {

using testing::HasSubstr;
using testing::Not;

class Typing : public OnTerminal
{
};

TEST_F(Typing, Question_IsAskedUntilAnswered)
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

TEST_F(Typing, ChoicesOfAQuestion_AreAnswersAsTheyAreShown)
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

TEST_F(Typing, TabAtAQuestion_OffersItsAnswersOnly)
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

TEST_F(Typing, Tab_CompletesCommandsArticlesAndPositions)
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

TEST_F(Typing, TabTwice_ListsTheArticles)
{
    enter("open");
    terminal->type("add BEE\t\t\t");
    terminal->readTo("BEER");
    terminal->readTo("BEER3");
    terminal->type("\n");
    EXPECT_THAT(terminal->readTo("ИТОГО"), HasSubstr("BEER "));
}

TEST_F(Typing, History_IsKeptForTheNextTime)
{
    enter("say something rare");
    leave();
    switchOn();
    terminal->type("\x10\x10\n"); // twice back: over "quit"
    EXPECT_THAT(terminal->readTo(Terminal::prompt), HasSubstr("say something rare"));
}

TEST_F(Typing, History_OutlivesAKill)
{
    enter("say something rare");
    switchOn(); // kills the one before
    terminal->type("\x10\n");
    EXPECT_THAT(terminal->readTo(Terminal::prompt), HasSubstr("say something rare"));
}

TEST_F(Typing, PastedLines_AreEachACommandAndInTheHistory)
{
    switchOn({"--colour", "never"}, {{"TERM", "xterm"}});
    terminal->type("\x1b[200~# a script\nopen\nadd CHIPS\nadd BAG 2\n\x1b[201~\n");
    terminal->readTo("199.90"); // both articles: 129.90 and two bags
    terminal->readTo(Terminal::prompt);
    terminal->type("\x10\x10\n"); // the command before the last one
    EXPECT_THAT(terminal->readTo("329.80"), HasSubstr("CHIPS\r\n"));
}

TEST_F(Typing, PastedAnswer_IsTaken)
{
    switchOn({"--colour", "never"}, {{"TERM", "xterm"}});
    terminal->type("\x1b[200~open\nadd CHIPS\nstorno 1\nyes\nsay done\x1b[201~\n");
    terminal->readTo("x 1  CHIPS");
    terminal->readTo("\r\ndone");
}

TEST_F(Typing, CtrlC_DropsTheLine)
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

TEST_F(Typing, CtrlCAtAQuestion_AnswersNo)
{
    enter("open");
    enter("add CHIPS");
    terminal->type("storno 1\n");
    terminal->readTo("да/нет> ");
    terminal->type("\x03");
    EXPECT_THAT(terminal->readTo(Terminal::prompt), HasSubstr("отказано"));
}

TEST_F(Typing, Tab_CompletesByThePlaceOfTheWord)
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

TEST_F(Typing, Tab_CompletesCodesOfAnySigns)
{
    const QString catalogue =
        write("c.csv", "code;name;price;tara mode;tara capacity;pack;unit\nA='B;Odd;7;0;;1;pc\n");
    switchOn({"--colour", "never", "--catalogue", catalogue.toStdString()});
    enter("open");
    terminal->type("add A=\t2\n");
    EXPECT_THAT(terminal->readTo("14.00"), HasSubstr("add A='B 2"));
}

} // namespace
