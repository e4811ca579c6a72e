#include "host/Config.h"

#include <QtCore/QDebug>
#include <QtCore/QFile>
#include <QtCore/QSettings>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryFile>

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

QString Config::readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("%1: %2").arg(path, file.errorString());
    const QByteArray text = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return QStringLiteral("%1: %2").arg(path, file.errorString());
    // QSettings remembers what it read from a path, and takes a broken file for a good one when it
    // meets it again. So it reads a copy, whose path is new.
    QTemporaryFile copy;
    if (!copy.open() || copy.write(text) != text.size() || !copy.flush())
        return QStringLiteral("%1: cannot be copied: %2").arg(path, copy.errorString());

    const QSettings settings(copy.fileName(), QSettings::IniFormat);
    const QStringList keys = settings.allKeys(); // only this parses the sections
    if (settings.status() != QSettings::NoError)
        return QStringLiteral("%1: not a settings file").arg(path);
    for (const QString &key : keys)
        set(QString(key).replace(QLatin1Char('/'), QLatin1Char(':')), settings.value(key));
    return {};
}
