#ifndef TILL_TERMINAL_INTERACTIVE_H
#define TILL_TERMINAL_INTERACTIVE_H

#include "till/script/CommandLine.h"

namespace till {

/*!
 * Lets a cashier type commands, with line editing, a history that is kept from one start to the
 * next and completion by the tabulator key. Where standard input is no terminal, commands are read
 * from it line by line, without a prompt. How a command ended is told by \a show, or on standard
 * error with the line's number where it did not end well without a terminal. Returns when the
 * input ends or "quit" is typed: true when, without a terminal, every command ended well; always
 * true on a terminal.
 */
bool runInteractive(CommandLine &commands, const Translator &translator, const QString &historyFile,
                    const std::function<void(const QString &text)> &show);

//! Asks on the terminal until there is an answer, which is one of \a choices or a word for yes or
//! no, in any letter case; no when the input ends.
bool askOnTerminal(const Translator &translator, const CommandLine::Choices &choices);

//! Whether there is a person at standard input.
bool isTerminal();

} // namespace till

#endif // TILL_TERMINAL_INTERACTIVE_H
