#ifndef HOST_FINALLY_H
#define HOST_FINALLY_H

#include "host/HostGlobal.h"

#include <QtCore/qglobal.h>

#include <functional>

//! Runs a function, which must not be empty, once when the scope ends.
class HOST_EXPORT Finally
{
public:
    explicit Finally(std::function<void()> cleanUp);
    //! What the function throws passes on; thrown while another exception passes, it ends the
    //! process.
    ~Finally() noexcept(false);
    Q_DISABLE_COPY_MOVE(Finally)

private:
    std::function<void()> m_cleanUp;
};

#endif // HOST_FINALLY_H
