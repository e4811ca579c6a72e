#include "host/ModifiersContainer.h"

bool ModifiersContainer::isSet(modifiers::Type type) const
{
    return m_values.contains(type);
}

QVariant ModifiersContainer::value(modifiers::Type type) const
{
    return m_values.value(type);
}

void ModifiersContainer::set(modifiers::Type type, const QVariant &value)
{
    m_values.insert(type, value);
}

void ModifiersContainer::clearAll()
{
    m_values.clear();
}
