#include "host/Event.h"

Event::Event(EActivityListener::Event code)
    : m_code(code)
{
}

EActivityListener::Event Event::getCode() const
{
    return m_code;
}

QVariant Event::value(const QString &key, const QVariant &defaultValue) const
{
    return m_arguments.value(key, defaultValue);
}

QVariantMap Event::arguments() const
{
    return m_arguments;
}

Event &Event::addArgument(const QString &key, const QVariant &value)
{
    m_arguments.insert(key, value);
    return *this;
}

bool Event::operator==(const Event &other) const
{
    return m_code == other.m_code && m_arguments == other.m_arguments;
}
