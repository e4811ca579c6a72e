#ifndef TESTS_TILL_TERMINAL_ONTERMINAL_H
#define TESTS_TILL_TERMINAL_ONTERMINAL_H

#include "tests/till/console/ProgramFixture.h"
#include "tests/till/terminal/Terminal.h"

#include <optional>

//! The register on a terminal, before a person.
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

#endif // TESTS_TILL_TERMINAL_ONTERMINAL_H
