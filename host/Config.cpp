#include "host/Config.h"

#include <QtCore/QDebug>
#include <QtCore/QStringList>

#include <optional>

template <>
SingletonSlot<Config> Singleton<Config>::instance{};

namespace {

using namespace Qt::StringLiterals;

std::optional<bool> parseBool(const QVariant &value)
{
    const QString text = value.toString().trimmed().toLower();
    if (QStringList{u"true"_s, u"yes"_s, u"on"_s, u"1"_s}.contains(text))
        return true;
    if (QStringList{u"false"_s, u"no"_s, u"off"_s, u"0"_s}.contains(text))
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
