#include "host/Config.h"

#include <QtCore/QDebug>
#include <QtCore/QStringList>

#include <optional>

template <>
SingletonSlot<Config> Singleton<Config>::instance{};

namespace {

std::optional<bool> parseBool(const QVariant &value)
{
    const QString text = value.toString().trimmed().toLower();
    if (QStringList{"true", "yes", "on", "1"}.contains(text))
        return true;
    if (QStringList{"false", "no", "off", "0"}.contains(text))
        return false;
    return std::nullopt;
}

} // namespace

Config::Config() = default;
Config::~Config() = default;

bool Config::getBool(const QString &key, bool defaultValue) const
{
    const auto found = m_values.constFind(key);
    if (found == m_values.cend())
        return defaultValue;
    const std::optional<bool> parsed = parseBool(*found);
    if (!parsed) {
        qWarning().noquote() << "setting" << key
                             << "is neither true nor false:" << found->toString();
    }
    return parsed.value_or(defaultValue);
}

void Config::set(const QString &key, const QVariant &value)
{
    m_values.insert(key, value);
}
