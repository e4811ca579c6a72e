#ifndef HOST_FINALLY_H
#define HOST_FINALLY_H

#include "host/HostGlobal.h"

#include <QtCore/qglobal.h>

#include <functional>

/*!
 * Runs a clean-up once when the scope ends, also when an exception passes through it.
 *
 * What the clean-up throws goes on to the caller, unless an exception is passing already: two at
 * once would end the process, so the clean-up's own is dropped then.
 */
class HOST_EXPORT Finally
{
public:
    explicit Finally(std::function<void()> cleanUp);
    ~Finally() noexcept(false);
    Q_DISABLE_COPY_MOVE(Finally)

private:
    std::function<void()> m_cleanUp;
    int m_exceptionsOutside;
};

#endif // HOST_FINALLY_H
