#ifndef TILL_SCHEMA_UPGRADE_H
#define TILL_SCHEMA_UPGRADE_H

#include "till/result/Result.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace till {

class Database;

/*!
 * Brings a database of the first format to today's, whose tables the statements \a makingTables
 * make: first a copy beside it, FILE.schema1, whose path is returned, then all in one transaction.
 * Values of plugins that are damaged stay damaged. With a fault the file is as it was and there is
 * no copy.
 */
Result<QString> upgradeFromSchema1(Database &database, const QStringList &makingTables);

} // namespace till

#endif // TILL_SCHEMA_UPGRADE_H
