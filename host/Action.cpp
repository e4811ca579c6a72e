#include "host/Action.h"

namespace control {

struct Action::Data
{
    EActionType type;
    QMultiMap<QString, QVariant> arguments;
};

Action::Action(EActionType type, const QMultiMap<QString, QVariant> &arguments)
    : m_data(new Data{type, arguments})
{
}

EActionType Action::getType() const
{
    return m_data->type;
}

QMultiMap<QString, QVariant> Action::getArguments() const
{
    return m_data->arguments;
}

const QVariant *Action::find(const QString &key) const
{
    const auto found = m_data->arguments.constFind(key);
    return found == m_data->arguments.cend() ? nullptr : &*found;
}

void Action::setArgument(const QString &key, const QVariant &value) const
{
    m_data->arguments.remove(key);
    m_data->arguments.insert(key, value);
}

} // namespace control
