#ifndef TILL_RECEIPT_RECORDFAULT_H
#define TILL_RECEIPT_RECORDFAULT_H

#include "till/receipt/ReceiptRecord.h"
#include "till/result/Result.h"

namespace till {

// Faults are of no place.

/*!
 * Whether a till can have put \a line there. The fault, which names the position, is a number of a
 * position below 1 or not below \a nextPosnum, or a price, a quantity or a sum that is out of range
 * or no number.
 */
Result<> check(const LineRecord &line, int nextPosnum);

//! The same of all lines of \a record, each of which has a number of its own, and of their total.
Result<> check(const ReceiptRecord &record);

//! Whether a receipt can come to \a total.
Result<> checkTotal(Kopecks total);

//! What the lines that are not stornoed come to, if a receipt can.
Result<Kopecks> totalOf(const ReceiptRecord &record);

} // namespace till

#endif // TILL_RECEIPT_RECORDFAULT_H
