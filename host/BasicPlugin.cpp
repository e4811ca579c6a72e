#include "host/BasicPlugin.h"

#include <algorithm>
#include <iterator>

BasicPlugin::BasicPlugin() = default;
BasicPlugin::~BasicPlugin() = default;

bool BasicPlugin::init()
{
    return true;
}

void BasicPlugin::deinit() {}

bool BasicPlugin::isFeatureMatched(const QString &feature) const
{
    return m_features.contains(feature);
}

void BasicPlugin::setFeature(const QString &feature)
{
    m_features.insert(feature);
}

void BasicPlugin::addHandler(const ActionHandler &handler)
{
    Q_UNUSED(handler)
}

void BasicPlugin::addTrigger(const ActionTrigger &trigger)
{
    m_triggers.append(trigger);
}

void BasicPlugin::disableTriggers(const QSet<int> &actionTypes)
{
    m_disabledTypes.unite(actionTypes);
}

void BasicPlugin::enableTriggers()
{
    m_disabledTypes.clear();
}

QList<ActionTrigger> BasicPlugin::triggers() const
{
    return m_triggers;
}

QList<ActionTrigger> BasicPlugin::activeTriggers(EContext::Code context,
                                                 control::EActionType actionType,
                                                 ActionTrigger::Order order) const
{
    QList<ActionTrigger> active;
    if (m_disabledTypes.contains(actionType))
        return active;
    std::copy_if(m_triggers.cbegin(), m_triggers.cend(), std::back_inserter(active),
                 [=](const ActionTrigger &trigger) {
                     return trigger.getContext() == context && trigger.getActionType() == actionType
                            && trigger.getOrder() == order;
                 });
    std::stable_sort(active.begin(), active.end(),
                     [](const ActionTrigger &a, const ActionTrigger &b) {
                         return a.getPriority() < b.getPriority();
                     });
    return active;
}
