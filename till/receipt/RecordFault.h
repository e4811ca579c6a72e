#ifndef TILL_RECEIPT_RECORDFAULT_H
#define TILL_RECEIPT_RECORDFAULT_H

#include "till/receipt/ReceiptRecord.h"

namespace till {

/*!
 * What in \a line no till can have put there: a number of a position below 1 or not below
 * \a nextPosnum, a price or a quantity that is out of range or no number; in words that name the
 * position. Empty when there is nothing.
 */
QString faultOf(const LineRecord &line, int nextPosnum);

//! The same of all lines of \a record, each of which has a number of its own.
QString faultOf(const ReceiptRecord &record);

} // namespace till

#endif // TILL_RECEIPT_RECORDFAULT_H
