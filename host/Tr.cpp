#include "host/Tr.h"

namespace tr {

Tr::Tr(const QString &key, const QString &text)
    : m_key(key)
    , m_text(text)
{
}

QString Tr::key() const
{
    return m_key;
}

QString Tr::text() const
{
    return m_text;
}

Tr::operator QVariant() const
{
    return QVariant::fromValue(*this);
}

bool Tr::operator==(const Tr &other) const
{
    return m_key == other.m_key && m_text == other.m_text;
}

} // namespace tr
