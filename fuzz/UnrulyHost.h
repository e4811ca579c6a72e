#ifndef FUZZ_UNRULYHOST_H
#define FUZZ_UNRULYHOST_H

#include "fuzz/Bytes.h"
#include "host/ActionQueueController.h"
#include "host/Dialog.h"
#include "host/DocumentLogic.h"
#include "tests/support/FakeHost.h"

#include <functional>

namespace fuzz {

/*!
 * Stands before a `FakeHost`: whenever the plugin asks for something, the bytes decide what happens
 * before and after it, and now and then what is answered instead. Like a real host it runs the
 * triggers of the actions that the plugin asks for. It must not outlive the host.
 */
class UnrulyHost
{
public:
    //! \a meanwhile is one more thing that happens; \a before runs the triggers before an action.
    UnrulyHost(Bytes &bytes, std::function<void()> meanwhile,
               std::function<EContext::Result(const control::Action &)> before);
    Q_DISABLE_COPY_MOVE(UnrulyHost)

private:
    class Queue;
    class Logic;
    class Asking;

    template <typename Answer>
    auto surrounded(Answer answer);

    Bytes &m_bytes;
    std::function<void()> m_meanwhile;
    std::function<EContext::Result(const control::Action &)> m_before;
    QSharedPointer<ActionQueueController> m_queue;
};

} // namespace fuzz

#endif // FUZZ_UNRULYHOST_H
