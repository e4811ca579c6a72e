#ifndef TILL_WORDS_REGISTERWORDS_H
#define TILL_WORDS_REGISTERWORDS_H

#include "till/register/Command.h"
#include "till/register/Outcome.h"
#include "till/result/Result.h"
#include "till/words/Usage.h"

namespace till {

//! A command, or the mistake in its words.
using ReadCommand = Result<Command, Outcome>;

//! How a command of the register is typed.
struct RegisterWords
{
    Usage usage;
    ReadCommand (*read)(const QStringList &words); //!< given the words behind the name
};

//! Every command of the register, one row each.
const QList<RegisterWords> &registerWords();

//! The command of the register that \a words are.
ReadCommand readCommand(const QStringList &words);

} // namespace till

#endif // TILL_WORDS_REGISTERWORDS_H
