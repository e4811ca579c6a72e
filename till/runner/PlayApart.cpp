#include "till/runner/PlayApart.h"

#include "till/runner/Child.h"

#include <QtCore/QtGlobal>

#include <algorithm>
#include <csignal>
#include <map>
#include <memory>

namespace till {

namespace {

using Clock = std::chrono::steady_clock;

//! While it lives, the end of a child process waits to be asked for.
class ChildrenAreHeard
{
public:
    ChildrenAreHeard()
    {
        std::signal(SIGCHLD, SIG_DFL); // whoever started this one may have had no use for it
        sigemptyset(&m_signal);
        sigaddset(&m_signal, SIGCHLD);
        sigprocmask(SIG_BLOCK, &m_signal, &m_before);
    }
    ~ChildrenAreHeard() { sigprocmask(SIG_SETMASK, &m_before, nullptr); }
    Q_DISABLE_COPY_MOVE(ChildrenAreHeard)

    //! Returns when one has ended, or at \a deadline at the latest.
    void waitUntil(Clock::time_point deadline) const
    {
        using namespace std::chrono;
        const auto left = std::max(deadline - Clock::now(), Clock::duration::zero());
        const auto whole = duration_cast<seconds>(left);
        const timespec wait{static_cast<std::time_t>(whole.count()),
                            static_cast<long>(nanoseconds(left - whole).count())};
        sigtimedwait(&m_signal, nullptr, &wait);
    }

private:
    sigset_t m_signal;
    sigset_t m_before;
};

//! The plays under way, and the verdicts that wait for one before them.
class Plays
{
public:
    Plays(const QStringList &scripts, const Apart &apart)
        : m_scripts(scripts)
        , m_apart(apart)
    {
    }

    //! The verdict of the next script in order.
    Verdict next()
    {
        for (;;) {
            const auto known = m_known.find(m_told);
            if (known != m_known.end()) {
                ++m_told;
                return m_known.extract(known).mapped();
            }
            begin();
            if (!collect())
                waitOrKill();
        }
    }

private:
    void begin()
    {
        while (m_begun < m_scripts.size() && std::ssize(m_running) < m_apart.jobs) {
            m_running.emplace(m_begun, std::make_unique<Child>(m_scripts[m_begun], m_apart));
            ++m_begun;
        }
    }

    //! Takes in the plays that have ended, if there are any.
    bool collect()
    {
        return std::erase_if(m_running,
                             [this](const auto &child) {
                                 auto verdict = child.second->verdict();
                                 return verdict
                                        && m_known.emplace(child.first, std::move(*verdict)).second;
                             })
               > 0;
    }

    void waitOrKill()
    {
        const auto first = std::min_element(
            m_running.begin(), m_running.end(), [](const auto &one, const auto &other) {
                return one.second->deadline() < other.second->deadline();
            });
        if (first->second->deadline() <= Clock::now())
            first->second->kill();
        else
            m_heard.waitUntil(first->second->deadline());
    }

    const QStringList &m_scripts;
    const Apart &m_apart;
    const ChildrenAreHeard m_heard;
    std::map<qsizetype, std::unique_ptr<Child>> m_running;
    std::map<qsizetype, Verdict> m_known;
    qsizetype m_begun = 0;
    qsizetype m_told = 0;
};

} // namespace

void playApart(const QStringList &scripts, const Apart &apart,
               const std::function<bool(const Verdict &verdict)> &tell)
{
    Plays plays(scripts, apart);
    for (qsizetype i = 0; i < scripts.size(); ++i) {
        if (!tell(plays.next()))
            return;
    }
}

} // namespace till
