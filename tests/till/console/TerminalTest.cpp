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
    void switchOn(const std::vector<std::string> &options = {"--colour", "never"})
    {
        terminal.emplace(TILL_PROGRAM, options, directory.path().toStdString());
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
    terminal->type("maybe\n");
    terminal->readTo("да/нет> ");
    terminal->type("нет\n");
    EXPECT_THAT(terminal->readTo(Terminal::prompt), HasSubstr("отказано"));
    terminal->type("storno 1\n");
    terminal->readTo("да/нет> ");
    terminal->type("y\n");
    EXPECT_THAT(terminal->readTo(Terminal::prompt), HasSubstr("x 1  CHIPS"));
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
    switchOn({});
    EXPECT_THAT(enter("open"), HasSubstr("\x1b["));
}

} // namespace
