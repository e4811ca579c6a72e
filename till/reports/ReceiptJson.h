#ifndef TILL_REPORTS_RECEIPTJSON_H
#define TILL_REPORTS_RECEIPTJSON_H

#include "till/archive/Archive.h"

#include <QtCore/QJsonObject>

namespace till {

//! The plugin whose data tell of tara.
QString taraPlugin();

//! What receipts of that type are called in files; "document" where they are neither sales nor
//! returns.
QString wordOfType(int type);

//! \a receipt with its positions and the records of its tara, as docs/reports.md describes it. Of
//! one that does not hold, its number and what is wrong with it; the records alone are left out
//! where nothing else is damaged.
QJsonObject jsonOf(const KeptReceipt &receipt);

} // namespace till

#endif // TILL_REPORTS_RECEIPTJSON_H
