#include "host/ActionTrigger.h"

#include "contract/rows/Row.h"

namespace rowsActionTrigger {

#if ROW(1) // ActionTrigger(context, type, order, callback, result, priority)
inline ActionTrigger make(EContext::Code context, control::EActionType type,
                          ActionTrigger::Order order, ActionTrigger::Result result,
                          ActionTrigger::Priority priority)
{
    const auto callback = [](const control::Action &) { return EContext::Continue; };
    return ActionTrigger(context, type, order, callback, result, priority);
}
#endif

#if ROW(2) // ActionTrigger::After
inline constexpr ActionTrigger::Order after = ActionTrigger::After;
#endif

#if ROW(3) // ActionTrigger::Before
inline constexpr ActionTrigger::Order before = ActionTrigger::Before;
#endif

#if ROW(4) // ActionTrigger::DefaultResult
inline constexpr ActionTrigger::Result result = ActionTrigger::DefaultResult;
#endif

#if ROW(5) // ActionTrigger::High
inline constexpr ActionTrigger::Priority high = ActionTrigger::High;
#endif

#if ROW(6) // ActionTrigger::Normal
inline constexpr ActionTrigger::Priority normal = ActionTrigger::Normal;
#endif

#if ROW(7) // ActionTrigger::Low
inline constexpr ActionTrigger::Priority low = ActionTrigger::Low;
#endif

#if ROW(8) // ActionTrigger.h brings EContext.h
using Answer = EContext::Result;
#endif

} // namespace rowsActionTrigger
