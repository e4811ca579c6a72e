#ifndef TILL_REGISTER_SETTINGSFILE_H
#define TILL_REGISTER_SETTINGSFILE_H

#include <QtCore/QString>

class Config;

namespace till {

/*!
 * Adds the settings of the INI file \a path to \a config: section "PackagingControl" and key
 * "allowSaleEmptyTara" become "PackagingControl:allowSaleEmptyTara". Settings made before stay
 * unless the file sets them anew.
 *
 * Returns an empty text, or what is wrong, with the path in it; then nothing of the file is taken.
 */
QString readSettingsFile(const QString &path, Config &config);

} // namespace till

#endif // TILL_REGISTER_SETTINGSFILE_H
