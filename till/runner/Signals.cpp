#include "till/runner/Signals.h"

#include <algorithm>

namespace till {

namespace {

//! A signal that waits to be asked for comes also where it would be ignored otherwise.
bool isIgnored(int signal)
{
    struct sigaction action = {};
    return sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

} // namespace

Signals::Signals()
{
    std::signal(SIGCHLD, SIG_DFL); // whoever started this one may have had no use for it
    sigemptyset(&m_ending);
    for (const int signal : {SIGHUP, SIGINT, SIGTERM}) {
        if (!isIgnored(signal))
            sigaddset(&m_ending, signal);
    }
    m_all = m_ending;
    sigaddset(&m_all, SIGCHLD);
    sigprocmask(SIG_BLOCK, &m_all, nullptr);
}

int Signals::ending() const
{
    const timespec atOnce{};
    return std::max(0, sigtimedwait(&m_ending, nullptr, &atOnce));
}

int Signals::waitUntil(std::chrono::steady_clock::time_point deadline) const
{
    using namespace std::chrono;
    using Duration = steady_clock::duration;
    const auto left = std::max(deadline - steady_clock::now(), Duration::zero());
    const auto whole = duration_cast<seconds>(left);
    const timespec wait{static_cast<std::time_t>(whole.count()),
                        static_cast<long>(nanoseconds(left - whole).count())};
    const int signal = sigtimedwait(&m_all, nullptr, &wait);
    return signal > 0 && signal != SIGCHLD ? signal : 0;
}

} // namespace till
