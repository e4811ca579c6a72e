#ifndef TILL_RECEIPT_RECORDFAULT_H
#define TILL_RECEIPT_RECORDFAULT_H

#include "till/receipt/ReceiptRecord.h"
#include "till/result/Result.h"

namespace till {

/*!
 * Whether a till can have put \a line there. The fault, which is of no place and names the
 * position, is a number of a position below 1 or not below \a nextPosnum, or a price or a quantity
 * that is out of range or no number.
 */
Result<> check(const LineRecord &line, int nextPosnum);

//! The same of all lines of \a record, each of which has a number of its own.
Result<> check(const ReceiptRecord &record);

} // namespace till

#endif // TILL_RECEIPT_RECORDFAULT_H
