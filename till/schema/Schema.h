#ifndef TILL_SCHEMA_SCHEMA_H
#define TILL_SCHEMA_SCHEMA_H

#include "till/database/Table.h"

namespace till {

/*!
 * The tables of a receipt, and the order of their columns, which their digests keep to. A receipt
 * with all that belongs to it holds while each of its rows is whole and those below make up the
 * `contents` of its header.
 */
const Table &receiptsTable();
const Table &positionsTable();
const Table &softChecksTable();
const Table &pluginDataTable();

/*!
 * Makes \a database one of this till: an empty one gets the tables, one of the till before them is
 * brought to today's, in one transaction, after a check and a copy, whose path is returned; it is
 * empty where none was made. Another program's, another version's or a damaged one is left as it
 * is.
 */
Result<QString> prepareSchema(Database &database);

//! Whether \a database is one of this till, of today's format.
Result<> checkFormat(Database &database);
//! Whether every table and index is as it was made.
Result<> checkTables(Database &database);

//! Whether \a database is one of any till that this one knows, today's or before.
Result<> checkOurs(Database &database);

} // namespace till

#endif // TILL_SCHEMA_SCHEMA_H
