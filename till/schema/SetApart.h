#ifndef TILL_SCHEMA_SETAPART_H
#define TILL_SCHEMA_SETAPART_H

#include <QtCore/QMap>
#include <QtCore/QString>

namespace till {

class Database;

//! The receipts that were set apart, and why; with a fault noted, as far as they could be read.
QMap<qint64, QString> receiptsSetApart(Database &database);

//! Why the receipt may be set apart; a fault is noted when it may not.
QString reasonToSetApart(Database &database, qint64 id);

} // namespace till

#endif // TILL_SCHEMA_SETAPART_H
