#ifndef TILL_SCHEMA_SETAPART_H
#define TILL_SCHEMA_SETAPART_H

#include "till/result/Result.h"

#include <QtCore/QMap>
#include <QtCore/QString>

namespace till {

class Database;

//! Puts the receipts that were set apart into \a reasons, and why; with a fault, as far as they
//! could be read.
Result<> readSetApart(Database &database, QMap<qint64, QString> &reasons);

//! Why the receipt may be set apart, in words without a place; the fault is why it may not.
Result<QString> reasonToSetApart(Database &database, qint64 id);

} // namespace till

#endif // TILL_SCHEMA_SETAPART_H
