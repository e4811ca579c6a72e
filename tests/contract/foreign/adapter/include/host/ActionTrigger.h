#ifndef HOST_ACTIONTRIGGER_H
#define HOST_ACTIONTRIGGER_H

#include "host/Action.h"
#include "host/EContext.h"

#include <shopline/Extension.h>

#include <utility>

//! The shop's hook with the plugin's names. Triggers are copied by the shop, never read by type.
class ActionTrigger : public shopline::Hook
{
public:
    using Order = shopline::Hook::Moment;
#if defined(SHOPLINE_BREAKS_Numbers_TriggerOrder)
    static constexpr Order After = shopline::Hook::Sooner;
#else
    static constexpr Order After = shopline::Hook::Later;
#endif
    static constexpr Order Before = shopline::Hook::Sooner;

    using Result = shopline::Hook::Outcome;
#if defined(SHOPLINE_BREAKS_Numbers_TriggerResult)
    static constexpr Result DefaultResult = Result(1);
#else
    static constexpr Result DefaultResult = shopline::Hook::Plain;
#endif

    using Priority = shopline::Hook::Rank;
#if defined(SHOPLINE_BREAKS_Numbers_TriggerPriority)
    static constexpr Priority High = shopline::Hook::Last;
#else
    static constexpr Priority High = shopline::Hook::First;
#endif
    static constexpr Priority Normal = shopline::Hook::Middle;
    static constexpr Priority Low = shopline::Hook::Last;

    using Callback = std::function<EContext::Result(const control::Action &)>;

#if defined(SHOPLINE_BREAKS_Form_Trigger)
    ActionTrigger(control::EActionType type, EContext::Code context, Order order,
#else
    ActionTrigger(EContext::Code context, control::EActionType type, Order order,
#endif
                  Callback callback, Result result, Priority priority)
        : shopline::Hook(
            context, type, order,
            [callback = std::move(callback)](const shopline::Task &task) {
                return callback(control::Action(task));
            },
            result, priority)
    {
    }
};

#endif // HOST_ACTIONTRIGGER_H
