#include "host/ActionTrigger.h"

#include <utility>

ActionTrigger::ActionTrigger(EContext::Code context, control::EActionType actionType, Order order,
                             Callback callback, Result result, Priority priority)
    : m_context(context)
    , m_actionType(actionType)
    , m_order(order)
    , m_callback(std::move(callback))
    , m_result(result)
    , m_priority(priority)
{
}

EContext::Code ActionTrigger::getContext() const
{
    return m_context;
}

control::EActionType ActionTrigger::getActionType() const
{
    return m_actionType;
}

ActionTrigger::Order ActionTrigger::getOrder() const
{
    return m_order;
}

ActionTrigger::Result ActionTrigger::getResult() const
{
    return m_result;
}

ActionTrigger::Priority ActionTrigger::getPriority() const
{
    return m_priority;
}

EContext::Result ActionTrigger::call(const control::Action &action) const
{
    return m_callback ? m_callback(action) : EContext::Continue;
}
