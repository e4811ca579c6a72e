#include "host/Finally.h"

#include <exception>
#include <utility>

Finally::Finally(std::function<void()> cleanUp)
    : m_cleanUp(std::move(cleanUp))
    , m_exceptionsOutside(std::uncaught_exceptions())
{
}

Finally::~Finally() noexcept(false)
{
    if (!m_cleanUp)
        return;
    if (std::uncaught_exceptions() == m_exceptionsOutside) {
        m_cleanUp();
        return;
    }
    QT_TRY
    {
        m_cleanUp();
    }
    QT_CATCH(...) {}
}
