#ifndef TILL_SETTINGS_SETTINGSFILE_H
#define TILL_SETTINGS_SETTINGSFILE_H

#include "till/language/Message.h"
#include "till/result/Result.h"

#include <QtCore/QStringList>

class Config;

namespace till {

//! Keys of the settings that there are. Each is a boolean, true by default.
QStringList knownSettings();

//! Whether \a key can be set to \a value; not where there is no such setting, or that is no
//! boolean.
Result<void, Message> checkSetting(const QString &key, const QString &value);

//! The settings as \a config has them, "KEY=true" or "KEY=false".
QStringList settingsInForce(const Config &config);

/*!
 * Adds the settings of the INI file \a path to \a config: section "PackagingControl" and key
 * "allowSaleEmptyTara" become "PackagingControl:allowSaleEmptyTara". Settings made before stay
 * unless the file sets them anew. The file is UTF-8, with or without a byte order mark; what
 * follows a ";" or a "#" at the beginning of a line or behind a space is a comment. With a fault
 * nothing of the file is taken.
 */
Result<> readSettingsFile(const QString &path, Config &config);

} // namespace till

#endif // TILL_SETTINGS_SETTINGSFILE_H
