#ifndef TILL_RUNNER_SIGNALS_H
#define TILL_RUNNER_SIGNALS_H

#include <QtCore/QtGlobal>

#include <chrono>
#include <csignal>

namespace till {

//! Makes the end of a child process, and whoever asks this one to end, wait to be asked for; from
//! then on.
class Signals
{
public:
    Signals();
    Q_DISABLE_COPY_MOVE(Signals)

    //! The signal by which this process was asked to end; 0 when none has come. Each is told once.
    int ending() const;

    //! Returns when a child process has ended or a signal asks this one to end, which is the value
    //! then, or else 0; at \a deadline at the latest.
    int waitUntil(std::chrono::steady_clock::time_point deadline) const;

private:
    sigset_t m_ending; //!< of those that are not ignored
    sigset_t m_all;
};

} // namespace till

#endif // TILL_RUNNER_SIGNALS_H
