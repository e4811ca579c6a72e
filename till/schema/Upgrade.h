#ifndef TILL_SCHEMA_UPGRADE_H
#define TILL_SCHEMA_UPGRADE_H

#include <QtCore/QString>

namespace till {

class Database;

/*!
 * Brings a database of the first format to today's, whose tables \a makeTables makes: first a copy
 * beside it, FILE.schema1, whose path is put into \a copy, then all in one transaction. Values of
 * plugins that are damaged stay damaged. False with the fault noted; then the file is as it was and
 * there is no copy.
 */
bool upgradeFromSchema1(Database &database, bool (*makeTables)(Database &), QString *copy);

} // namespace till

#endif // TILL_SCHEMA_UPGRADE_H
