#include "tests/till/terminal/OnTerminal.h"

// What is printed on a terminal fits it.

namespace {

using testing::HasSubstr;

class TerminalWidth : public OnTerminal
{
};

//! The columns of the widest line.
qsizetype widest(const std::string &text)
{
    qsizetype width = 0;
    const QStringList lines = QString::fromStdString(text).split("\r\n");
    for (const QString &line : lines)
        width = std::max(width, line.size());
    return width;
}

TEST_F(TerminalWidth, Width_IsTheTerminalsWithinLimits)
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
        terminal->readTo(Terminal::prompt); // or the rest comes behind what is typed next
    }
}

TEST_F(TerminalWidth, LinesWiderThanTheTerminal_AreBrokenAtBlanks)
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

TEST_F(TerminalWidth, LongCode_LeavesRoomForPriceAndName)
{
    const QByteArray code = QByteArray("LONG-").repeated(16);
    const QString catalogue = write("c.csv", "code;name;price;tara mode;tara capacity;pack;unit\n"
                                                 + code + ";Odd;7;0;;1;pc\nS;Short;8;0;;1;pc\n");
    switchOn({"--colour", "never", "--catalogue", catalogue.toStdString()}, {}, 60);
    const std::string shown = enter("articles");
    EXPECT_THAT(shown, HasSubstr(code.toStdString() + "\r\n                 7.00 Odd\r\n"));
    EXPECT_THAT(shown, HasSubstr("S                8.00 Short\r\n"));
}

TEST_F(TerminalWidth, JsonLines_StayWhole)
{
    enter("open");
    leave();
    terminal.emplace(TILL_PROGRAM, std::vector<std::string>{"journal", "--json", "1"},
                     directory.path().toStdString(), Terminal::Variables(), 60);
    EXPECT_GT(widest(terminal->readTo("}\r\n")), 60);
    EXPECT_EQ(terminal->end(), 0);
}

} // namespace
