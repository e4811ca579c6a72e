#ifndef HOST_ACTIONTRIGGER_H
#define HOST_ACTIONTRIGGER_H

#include "host/Action.h"
#include "host/EContext.h"

#include <vendor/ActionTrigger.h>

#include <functional>
#include <utility>

// The plugin hands triggers over and reads none, so that they may be derived from: the names of
// types and enumerators have to be within this class. The host keeps a copy of its own part.
class ActionTrigger : public vendor::ActionTrigger
{
public:
    using Order = vendor::ActionTrigger::Order;
    static constexpr Order After = Order(0);
    static constexpr Order Before = Order(1);

    using Result = vendor::ActionTrigger::Result;
    static constexpr Result DefaultResult = Result(0);

    using Priority = vendor::ActionTrigger::Priority; // the smaller number is called first
    static constexpr Priority High = Priority(1);
    static constexpr Priority Normal = Priority(3);
    static constexpr Priority Low = Priority(5);

    using Callback = std::function<EContext::Result(const control::Action &)>;

    // With an Action of the adapter's, wrap the callback:
    //     [callback](const vendor::Action &action) { return callback(control::Action(action)); }
    ActionTrigger(EContext::Code context, control::EActionType type, Order order, Callback callback,
                  Result result, Priority priority)
        : vendor::ActionTrigger(context, type, order, std::move(callback), result, priority)
    {
    }
};

#endif // HOST_ACTIONTRIGGER_H
