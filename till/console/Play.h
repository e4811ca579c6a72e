#ifndef TILL_CONSOLE_PLAY_H
#define TILL_CONSOLE_PLAY_H

#include "till/course/Notes.h"
#include "till/options/Options.h"

#include <functional>

namespace till {

//! Tells that the database of \a desk was brought to today's format, if it was.
void tellCopy(const CashDesk &desk, const Translator &translator,
              const std::function<void(const QString &text)> &show);

//! `till play`, `till demo`: plays the scripts that are the words of \a options and tells what
//! became of them; the exit status.
int play(const Options &options, Notes &notes, const Translator &translator);

} // namespace till

#endif // TILL_CONSOLE_PLAY_H
