#ifndef TILL_RUNNER_PLAYAPART_H
#define TILL_RUNNER_PLAYAPART_H

#include "till/language/Translator.h"
#include "till/verdicts/Verdict.h"

#include <chrono>
#include <functional>

namespace till {

//! How scripts are played apart from each other.
struct Apart
{
    using SoFar = std::function<void(const Verdict &verdict)>;

    int jobs = 1;                     //!< how many at a time at most, at least one
    std::chrono::seconds timeout{60}; //!< after which a play is ended
    Translator translator;            //!< to the language of the cashier
    //! Plays a script; tells before each line of it what the verdict is if that is the last one.
    std::function<Verdict(const QString &script, const SoFar &soFar)> play;
};

/*!
 * Plays \a scripts, each in a process of its own, which is forked from this one: a play that
 * crashes or hangs fails alone, and no play sees what another left in memory. \a tell is told the
 * verdicts in the order of the scripts, each as soon as it and those before it are known; when it
 * answers false, the plays under way are ended and no more begin. So they are when a signal asks
 * this process to end: then \a tell is told of those that were begun too, and that signal is
 * returned; else 0. From now on such signals wait, for what is still to be told. Where the system
 * has not enough processes or files for so many plays, fewer are under way at a time. No other
 * thread may run in this process.
 */
int playApart(const QStringList &scripts, const Apart &apart,
              const std::function<bool(const Verdict &verdict)> &tell);

} // namespace till

#endif // TILL_RUNNER_PLAYAPART_H
