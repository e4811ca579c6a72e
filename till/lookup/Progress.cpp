#include "till/lookup/Progress.h"

#include <cstdio>

#include <unistd.h>

namespace till {

bool Progress::isSeen()
{
    return isatty(STDERR_FILENO) != 0 && isatty(STDOUT_FILENO) == 0;
}

void Progress::start(qint64 all)
{
    m_all = all;
}

void Progress::show(qint64 done)
{
    const qint64 percent = m_all == 0 ? -1 : 100 * done / m_all;
    if (percent == m_shown)
        return;
    m_shown = percent;
    std::fprintf(stderr, "\r%3lld %%  %lld / %lld", static_cast<long long>(percent),
                 static_cast<long long>(done), static_cast<long long>(m_all));
}

void Progress::end()
{
    hide();
    m_all = 0;
}

void Progress::hide()
{
    constexpr int longest = 48;
    if (m_shown >= 0)
        std::fprintf(stderr, "\r%*s\r", longest, "");
    m_shown = -1;
}

} // namespace till
