#include "host/Finally.h"

#include <utility>

Finally::Finally(std::function<void()> cleanUp)
    : m_cleanUp(std::move(cleanUp))
{
}

Finally::~Finally() noexcept(false)
{
    m_cleanUp();
}
