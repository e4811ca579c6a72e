#ifndef TILL_RUNNER_CHILD_H
#define TILL_RUNNER_CHILD_H

#include "till/runner/PlayApart.h"

#include <optional>

#include <sys/types.h>

namespace till {

//! A file in memory, which a child process inherits.
class MemoryFile
{
public:
    MemoryFile();
    ~MemoryFile();
    Q_DISABLE_COPY_MOVE(MemoryFile)

    int handle() const { return m_handle; }
    QByteArray contents() const;

private:
    int m_handle;
};

//! A process that plays one script.
class Child
{
public:
    //! Begins the play.
    Child(const QString &script, const Apart &apart);
    //! Ends it, if it is still under way.
    ~Child();
    Q_DISABLE_COPY_MOVE(Child)

    using Moment = std::chrono::steady_clock::time_point;

    //! When to end the play if it has not ended by itself; never twice.
    Moment deadline() const { return m_isLate ? Moment::max() : m_started + m_timeout; }
    //! Ends it as one that hangs.
    void kill();

    //! How the play ended, once it has.
    std::optional<Verdict> verdict();

private:
    [[noreturn]] void play(const Apart &apart) const;
    void write(const Verdict &verdict, bool isLast) const;
    Verdict read(int status) const;
    Verdict withoutEnd(Verdict soFar, const QString &how) const;
    QString howItEnded(int status) const;

    const QString m_script;
    const std::chrono::seconds m_timeout;
    const Moment m_started = std::chrono::steady_clock::now();
    const MemoryFile m_course;
    const MemoryFile m_complaints;
    const MemoryFile m_verdicts; //!< lines of JSON, the last one counts
    bool m_isLate = false;
    pid_t m_process = -1;
};

} // namespace till

#endif // TILL_RUNNER_CHILD_H
