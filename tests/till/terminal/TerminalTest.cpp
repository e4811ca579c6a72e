#include "tests/till/terminal/OnTerminal.h"

// The register on a terminal, before a person.

namespace {

using testing::HasSubstr;
using testing::Not;

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
