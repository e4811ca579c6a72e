#include "till/register/SettingsFile.h"

#include "host/Config.h"

#include <QtCore/QFile>
#include <QtCore/QSettings>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryFile>

namespace till {

QString readSettingsFile(const QString &path, Config &config)
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
        config.set(QString(key).replace(QLatin1Char('/'), QLatin1Char(':')), settings.value(key));
    return {};
}

} // namespace till
