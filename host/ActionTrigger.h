#ifndef HOST_ACTIONTRIGGER_H
#define HOST_ACTIONTRIGGER_H

#include "host/Action.h"
#include "host/EContext.h"
#include "host/HostGlobal.h"

#include <functional>

/*!
 * A callback that the host runs before or after it performs an action. A value type; not to be
 * called once the plugin's object is gone.
 */
class HOST_EXPORT ActionTrigger
{
public:
    //! When the callback runs.
    enum Order : int {
        After = 0,  //!< after the action was carried out
        Before = 1, //!< before the action; its answer decides whether the action runs
    };

    //! Reserved by the contract; plugins pass `DefaultResult`.
    enum Result : int {
        DefaultResult = 0,
    };

    //! Place among the triggers of one action: the smaller number runs first.
    enum Priority : int {
        High = 1,
        Normal = 3,
        Low = 5,
    };

    using Callback = std::function<EContext::Result(const control::Action &)>;

    ActionTrigger(EContext::Code context, control::EActionType actionType, Order order,
                  Callback callback, Result result, Priority priority);

    EContext::Code getContext() const;
    control::EActionType getActionType() const;
    Order getOrder() const;
    Result getResult() const;
    Priority getPriority() const;

    /*!
     * Runs the callback for \a action and returns its answer; `EContext::Continue` when the trigger
     * was made without one. The callback may call back into the host.
     */
    EContext::Result call(const control::Action &action) const;

private:
    EContext::Code m_context;
    control::EActionType m_actionType;
    Order m_order;
    Callback m_callback;
    Result m_result;
    Priority m_priority;
};

#endif // HOST_ACTIONTRIGGER_H
