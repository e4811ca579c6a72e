#include "till/runner/PlayApart.h"

#include "till/runner/Child.h"
#include "till/runner/Signals.h"

#include <algorithm>
#include <map>
#include <utility>

namespace till {

namespace {

using Clock = std::chrono::steady_clock;

//! The plays under way, and the verdicts that wait for one before them.
class Plays
{
public:
    Plays(const QStringList &scripts, const Apart &apart)
        : m_scripts(scripts)
        , m_apart(apart)
    {
    }

    //! The verdict of the next script in order; nothing when a signal came before it was known.
    std::optional<Verdict> next()
    {
        for (;;) {
            const auto known = m_known.find(m_told);
            if (known != m_known.end()) {
                ++m_told;
                return m_known.extract(known).mapped();
            }
            begin();
            const bool hasMore = collect();
            m_signal = hasMore ? m_signals.ending() : waitOrKill();
            if (m_signal != 0)
                return {};
        }
    }

    //! The signal that came; 0 when none did.
    int signal() const { return m_signal; }

    //! The verdict of the next script that was begun, which is ended for the signal if it has to
    //! be; nothing when there is none any more.
    std::optional<Verdict> nextInterrupted()
    {
        const qsizetype next = m_told++;
        if (const auto known = m_known.find(next); known != m_known.end())
            return m_known.extract(known).mapped();
        if (const auto running = m_running.find(next); running != m_running.end())
            return m_running.extract(running).mapped()->interrupt(m_signal);
        return {};
    }

private:
    void begin()
    {
        const auto enter = [this] {
            for (const auto &other : m_running)
                other.second->forget();
        };
        while (m_begun < m_scripts.size() && std::ssize(m_running) < m_apart.jobs) {
            auto child = Child::start(m_scripts[m_begun], m_apart, enter);
            if (!child && !m_running.empty())
                return; // one that ends makes room
            if (child)
                m_running.emplace(m_begun, std::move(*child));
            else
                m_known.emplace(m_begun,
                                Verdict{m_scripts[m_begun], Verdict::NotStarted, {child.error()}});
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
                   > 0
               || m_known.contains(m_told);
    }

    //! The signal that came meanwhile, or 0.
    int waitOrKill()
    {
        const auto first = std::min_element(
            m_running.begin(), m_running.end(), [](const auto &one, const auto &other) {
                return one.second->deadline() < other.second->deadline();
            });
        if (first->second->deadline() > Clock::now())
            return m_signals.waitUntil(first->second->deadline());
        first->second->kill();
        return 0;
    }

    const QStringList &m_scripts;
    const Apart &m_apart;
    const Signals m_signals;
    std::map<qsizetype, std::unique_ptr<Child>> m_running;
    std::map<qsizetype, Verdict> m_known;
    qsizetype m_begun = 0;
    qsizetype m_told = 0;
    int m_signal = 0;
};

} // namespace

int playApart(const QStringList &scripts, const Apart &apart,
              const std::function<bool(const Verdict &verdict)> &tell)
{
    Plays plays(scripts, apart);
    for (qsizetype i = 0; i < scripts.size(); ++i) {
        const auto verdict = plays.next();
        if (!verdict)
            break;
        if (!tell(*verdict))
            return 0;
    }
    if (plays.signal() == 0)
        return 0;
    while (const auto verdict = plays.nextInterrupted())
        tell(*verdict);
    return plays.signal();
}

} // namespace till
