#ifndef TILL_RUNNER_CHILD_H
#define TILL_RUNNER_CHILD_H

#include "till/runner/MemoryFile.h"
#include "till/runner/PlayApart.h"
#include "till/runner/SharedText.h"

#include <memory>
#include <optional>

#include <sys/types.h>

namespace till {

//! A process that plays one script, with all that a plugin starts from there.
class Child
{
public:
    /*!
     * Begins the play of \a script. The new process calls \a enter first, to let go of what is not
     * its own. The fault is that the system has no process or no file for it just now.
     */
    static Result<std::unique_ptr<Child>> start(const QString &script, const Apart &apart,
                                                const std::function<void()> &enter);
    //! Ends it, if it is still under way.
    ~Child();
    Q_DISABLE_COPY_MOVE(Child)

    using Moment = std::chrono::steady_clock::time_point;

    //! When to end the play if it has not ended by itself; never twice.
    Moment deadline() const { return m_how.isEmpty() ? m_started + m_timeout : Moment::max(); }
    //! Ends it as one that hangs.
    void kill();

    //! How the play ended, once it has.
    std::optional<Verdict> verdict();
    //! Ends the play, if it has not ended, for the signal of that number.
    Verdict interrupt(int signal);

    //! Lets go of its files in a process that is not the one.
    void forget();

private:
    Child(const QString &script, const Apart &apart);

    [[noreturn]] void play(const Apart &apart) const;
    void write(const Verdict &verdict, bool isLast) const;
    int end();
    Verdict ended(int status) const;
    Verdict read(int status) const;
    Verdict withoutEnd(Verdict soFar, const QString &how) const;
    QString howItEnded(int status) const;

    const QString m_script;
    const std::chrono::seconds m_timeout;
    const Translator m_translator;
    const Moment m_started = std::chrono::steady_clock::now();
    MemoryFile m_course;
    MemoryFile m_complaints;
    const SharedText m_verdict;           //!< as JSON
    QString m_how;                        //!< it was ended from here; empty when it was not
    Verdict::End m_end = Verdict::Failed; //!< of a play that did not end by itself
    pid_t m_process = -1;
};

} // namespace till

#endif // TILL_RUNNER_CHILD_H
